#pragma once

#include <QString>

namespace BatchWorker {

/// Takes the EXIF block, which the encoder always writes, out of the WebP file `fileName`. Returns whether the file is
/// free of it.
bool RemoveExifFromWebp(const QString& fileName);

} // namespace BatchWorker
