// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"

#include "ZTOutputPlacement_p.h"

#include <limits>

namespace {

/// An empty box; the checks before the call exclude it.
const DeathCase noBox("placement-no-box", [] { ZTOutputPlacement::FittedDiagonal(0, 0, 30); });

/// A box of negative size collapses to a point.
const DeathCase negativeBox("placement-negative-box", [] { ZTOutputPlacement::FittedDiagonal(-4, -3, 30); });

/// The result of an earlier arithmetic error: no line intersects an edge that is not a number.
const DeathCase boxOfNaN("placement-box-of-nan", [] {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    ZTOutputPlacement::FittedDiagonal(nan, nan, 30);
});

} // namespace
