#pragma once

#include <QString>

namespace BatchServer {

/// Takes the EXIF block, which the encoder always writes, out of the WebP file `fileName`. Returns whether the file is
/// free of it.
bool RemoveExifFromWebp(const QString& fileName);

} // namespace BatchServer
