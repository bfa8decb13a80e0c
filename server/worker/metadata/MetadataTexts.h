// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "MetadataReader.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace BatchWorker {

/// Texts that a job writes into the metadata of a result.
struct MetadataTexts
{
    QString creator;
    QString copyright;
    QString credit;
    QString title;
    QStringList keywords;
    QString usageTerms;

    /// Those of the effect "set-metadata" with `parameters`, as metadata can hold them.
    static MetadataTexts Of(const QJsonObject& parameters);

    bool IsEmpty() const;
};

/// Writes `texts` into EXIF, IPTC and XMP of `blocks`, in the places of what is there; docs/reference/metadata.md lists
/// the entries. An empty text leaves its entries. Throws std::exception.
void SetTexts(MetadataBlocks& blocks, const MetadataTexts& texts);

} // namespace BatchWorker
