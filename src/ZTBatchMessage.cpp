// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchMessage.h"

#include <QObject>

QString ZTBatchMessage::Name(Message message)
{
    return QString::number(message, 10);
}

ZTBatchMessage::Message ZTBatchMessage::FromName(const QString& name)
{
    bool isNumber = false;
    const int number = name.toInt(&isNumber, 10);
    if (!isNumber || number < MsgCreateSession || number > MsgCloseServer) {
        return MsgUnknown;
    }
    return static_cast<Message>(number);
}

QString ZTBatchMessage::ErrorDescription(Error error)
{
    switch (error) {
    case NoError:
        return QObject::tr("No error.");
    case UnsupportedInputFormat:
        return QObject::tr("Unsupported input format.");
    case ReadFileError:
        return QObject::tr("Error reading file.");
    case UnsupportedOutputFormat:
        return QObject::tr("Unsupported output format.");
    case WriteOutputFormatError:
        return QObject::tr("Error writing output format.");
    case EmptyBatchDocument:
        return QObject::tr("Empty batch document.");
    case ReadOutputSettingsError:
        return QObject::tr("Error reading output settings.");
    case NoAdjustmentManager:
        return QObject::tr("Adjustment manager does not exist.");
    case NoAdjustment:
        return QObject::tr("Adjustment does not exist.");
    case ApplyAdjustmentError:
        return QObject::tr("Apply adjustment error.");
    case ImageTooLarge:
        return QObject::tr("Image too large.");
    case FileNameAlreadyExists:
        return QObject::tr("File name already exists.");
    }
    return QObject::tr("Unknown error.");
}
