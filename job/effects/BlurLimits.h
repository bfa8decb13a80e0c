// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchJob {

/// Up to this standard deviation, in pixels, effects compute a Gaussian on the picture itself; above it on a reduced
/// copy, for which the whole picture is read at once.
constexpr double largestDirectSigma = 8.0;

} // namespace BatchJob
