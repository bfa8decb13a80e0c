// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/JobValues.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// Lays `layer` over `backdrop`, by the formulas of the W3C's "Compositing and Blending Level 1": its sections
/// "Blending", for the modes, and "Source Over", for the alpha.
///
/// Both are of one size, depth and kind, and `backdrop` has an alpha channel, as the result has. A layer without one is
/// opaque. `coverage`, one band of floats from 0 to 1, and `opacity` scale the layer's alpha. Values are straight,
/// computed as floats and rounded to the nearest. The metadata is that of the layer. Streams.
Picture Blend(const Picture& backdrop, const Picture& layer, const Picture& coverage, double opacity,
              BatchJob::Blending mode);

/// The blending function B(Cb, Cs) of `mode`: the colour where both are opaque. All values are 0 to 1.
float BlendedValue(BatchJob::Blending mode, float backdrop, float source);

} // namespace BatchWorker
