// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "MetadataReader.h"

#include <QString>
#include <QStringList>

namespace BatchWorker {

/// Whether `entry` says who made the picture or whose it is, and is not blank. Cameras write blank ones.
bool IsOfCopyright(const Exiv2::Exifdatum& entry);

/// Removes what does not say who made the picture or whose it is.
void KeepCopyright(Exiv2::IptcData& iptc);
void KeepCopyright(Exiv2::XmpData& xmp);

/// The notice that says whose a picture is, apart from its creator's name.
struct CopyrightNotice
{
    QStringList groups; ///< those that have it: "EXIF", "IPTC", "XMP"; empty if none has it
    QString text;       ///< as the first of them has it
};

CopyrightNotice NoticeIn(const MetadataBlocks& blocks);

} // namespace BatchWorker
