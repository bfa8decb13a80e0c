// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vips/vips8>

/// How pictures look between the stages of the pipeline.
///
/// The pixels are upright, and either grey (VIPS_INTERPRETATION_B_W, VIPS_INTERPRETATION_GREY16) or RGB
/// (VIPS_INTERPRETATION_sRGB, VIPS_INTERPRETATION_RGB16), 8 or 16 bits a channel, with or without an alpha channel
/// behind the others, which is straight, not premultiplied. Values are those of the source's own profile, which the
/// metadata item "icc-profile-data" carries; without one they are sRGB. A stage keeps the metadata, the depth and the
/// kind of the picture that it gets, and states where it does not.
///
/// Pixels may be readable only once, from top to bottom, as a decoder gives them. A stage that looks at them in another
/// order (to turn them, to measure them first) calls WithRandomAccess() of RandomAccess.h before.
///
/// A stage builds a part of a libvips pipeline and returns at once; pixels flow when the result is encoded. Where it
/// can work line by line it does, so that a large picture is never in memory as a whole.
namespace BatchWorker {

using Picture = vips::VImage;

} // namespace BatchWorker
