#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <exiv2/exiv2.hpp>

namespace BatchWorker {

class PictureSource;

/// What a file says about its picture, in the metadata library's own form.
struct MetadataBlocks
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    QByteArray profile; ///< of JPEG 2000 files only, see Metadata::Profile()
};

/// Reads `file`, whose header `source` has read. What cannot be read is left out, with a warning; a damaged colour
/// profile takes nothing else away.
MetadataBlocks ReadMetadata(const QString& file, const PictureSource& source, QStringList& warnings);

} // namespace BatchWorker
