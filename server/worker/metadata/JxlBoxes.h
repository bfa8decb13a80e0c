#pragma once

#include <QByteArray>
#include <QString>

namespace BatchWorker {

/// Metadata of a JPEG XL file; each is empty when there is none, or when it makes no sense.
struct JxlMetadata
{
    QByteArray exif; ///< begins with its TIFF header
    QByteArray xmp;
};

/// Reads the boxes of `file` that hold metadata, packed ones too. The decoder passes them over.
JxlMetadata ReadJxlMetadata(const QString& file);

} // namespace BatchWorker
