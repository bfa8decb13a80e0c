// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

#include "ZTBatchOutputSettings.h"

namespace BatchWorker {

/// Lays `picture` on its frame as `framing`, a checked record whose state is true, says.
///
/// From below: the background, the shadow, the picture. The frame has the picture's own size or the record's custom
/// size. The picture keeps its ratio; it is as large as the area that the margins leave free permits, turned by the
/// record's angle: FramePlacement has the rules, and what margins that leave nothing free mean. The opacities of
/// background, shadow and picture scale their alpha. Background and shadow are laid over each other plainly; the
/// picture is blended with what is below it as Blend() says.
///
/// Colours of the record are sRGB and are converted to the picture's space. A grey picture becomes RGB when a colour
/// is added: a background colour or shadow colour that is not grey, or a background file that is not. The built-in
/// patterns are neutral.
///
/// The result has an alpha channel when the frame can be seen through anywhere: when the background is none or not
/// opaque, unless an opaque picture covers the whole frame. Depth, profile and metadata are those of `original`.
///
/// An upright picture streams. What has to be read in another order is read when this is called, and held in memory in
/// the size that it is drawn in: a picture that is turned, a picture with alpha that throws a shadow, and in the
/// frame's size a background file.
///
/// Warnings, for users, are appended to the list given: margins that leave nothing free, a profile that colours cannot
/// be converted to. Throws PictureFailure, ProcessingFailed, when the frame would have more pixels than `limits` allow,
/// and when the background file cannot be read, with the name of the file; vips::VError for what the library reports of
/// the picture.
Picture FramePicture(const Picture& original, const ZTBatchOutputSettings::Transformation& framing,
                     const BatchProtocol::ServerLimits& limits, BatchJob::Warnings& warnings);

} // namespace BatchWorker
