// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BlurValues.h"

#include <functional>

/// Pictures blurred by a Gaussian with the standard deviation `sigma` in pixels. Beyond its edges the picture goes on
/// as there. The kernel ends at three sigma. Colours have the weight that their opacity gives them; a colour under no
/// opacity at all is 0.
///
/// Above BatchJob::largestDirectSigma the picture is reduced by a whole number of at most sigma / 4, blurred by what is
/// left, and enlarged linearly, so that the cost hardly grows; all of `picture` is read then, at once, for a copy that
/// is small.
namespace BatchWorker {

/// `picture`, all bands alike.
Picture Blurred(const Picture& picture, double sigma);

/// Makes `count` pixels of a result that follow each other from those of the picture at the same place and from the
/// blurred values there, which have the range of the picture's.
using MixPixels = std::function<void(const VipsPel* pixels, const float* blurred, int count, VipsPel* results)>;

/// A picture of the form of `picture` that `mix` makes of it and of what is blurred: of BlurSubject::Colours a value
/// for each band, of BlurSubject::Luma one for each pixel.
Picture MixedWithBlurred(const Picture& picture, BlurSubject subject, double sigma, const MixPixels& mix);

} // namespace BatchWorker
