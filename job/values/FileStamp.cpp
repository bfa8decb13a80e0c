// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileStamp.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace BatchJob {

QByteArray ChecksumOf(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    // Opening anything else, such as a named pipe, could block for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file)) {
        return {};
    }
    return hash.result().toHex();
}

} // namespace BatchJob
