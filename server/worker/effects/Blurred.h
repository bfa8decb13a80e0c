// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// `picture`, all bands alike, blurred by a Gaussian with the standard deviation `sigma` in pixels, as floating-point
/// values of the same range. Beyond its edges the picture goes on as there. The kernel ends at three sigma.
///
/// Above BatchJob::largestDirectSigma the picture is reduced by a whole number of at most sigma / 4, blurred by what is
/// left, and enlarged linearly, so that the cost hardly grows; all of `picture` is read then, at once, for a copy that
/// is small.
Picture Blurred(const Picture& picture, double sigma);

/// The colours of `picture` blurred, with the weight that their opacity gives them; floating-point values of 0 to
/// 1 and, last, the blurred alpha if there is one. A colour under no opacity at all is 0.
Picture BlurredColours(const Picture& picture, double sigma);

} // namespace BatchWorker
