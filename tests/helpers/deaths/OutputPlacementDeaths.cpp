#include "DeathCase.h"

#include "ZTOutputPlacement_p.h"

#include <limits>

namespace {

/// A box without extent: a picture that passed the checks before never leads here.
const DeathCase noBox("placement-no-box", [] { ZTOutputPlacement::FittedDiagonal(0, 0, 30); });

/// Turned inside out, the box collapses to a point.
const DeathCase negativeBox("placement-negative-box", [] { ZTOutputPlacement::FittedDiagonal(-4, -3, 30); });

/// Arithmetic that broke down before: nothing meets an edge that is no number.
const DeathCase boxOfNaN("placement-box-of-nan", [] {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    ZTOutputPlacement::FittedDiagonal(nan, nan, 30);
});

} // namespace
