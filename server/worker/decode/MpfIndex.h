#pragma once

#include <QString>

namespace BatchWorker {

/// How many pictures of its own the JPEG file `path` has by its index: the first one, and the further views of a
/// panorama or of a stereo camera. Previews and gain maps behind the first picture do not count.
int CountListedPictures(const QString& path);

} // namespace BatchWorker
