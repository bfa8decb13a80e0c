#pragma once

#include "Picture.h"

#include "ZTBatchOutputSettings.h"

#include <QByteArray>

namespace BatchServer {

/// Lays `picture` on its frame as `framing`, a checked record whose state is true, says: scaled and turned into the
/// area that the margins leave free, with background, shadow and blending. The frame has the picture's own size or the
/// custom size of the record; in the latter the picture is first scaled to fit it.
///
/// The result has an alpha channel when the background leaves something transparent, else none. Throws vips::VError;
/// a background file that cannot be read is named in the message.
Picture FramePicture(const Picture& picture, const ZTBatchOutputSettings::Transformation& framing);

} // namespace BatchServer
