// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include "ZVFileBookmark.h"

#include <QList>

/// The state of a ZTBatchOutputSettings.
class Q_DECL_HIDDEN ZTBatchOutputSettings::Private
{
public:
    struct NamingPartSettings
    {
        NamingTemplate namingTemplate = TemplateNothing;
        QString customTemplate;
        int startNumber = 0;
        int digitsCount = 1;
    };

    explicit Private(ZTBatchOutputSettings* owner);
    ~Private();

    /// The record of `part`, detached from any copy.
    NamingPartSettings& Naming(NamingPart part);

    ZTBatchOutputSettings* owner;
    QString format;
    QByteArray formatOptions;
    QString path;
    ZVFileBookmark pathBookmark;
    FolderStructure folderStructure = StructureFlat;
    QList<NamingPartSettings> namingParts; ///< by NamingPart
    QString prefixSeparator;
    QString suffixSeparator;
    Transformation transformation;
    Crop crop;
    ImageSize imageSize;
    QByteArray iccProfile;

private:
    Q_DISABLE_COPY(Private)

    void Initialize();
};
