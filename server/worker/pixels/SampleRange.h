// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <limits>
#include <type_traits>

namespace BatchWorker {

/// The largest value of a sample.
template<typename Sample>
constexpr float largestSample = std::numeric_limits<Sample>::max();

/// The sample next to a value, rounded and held within the range where samples are whole numbers; for loops over many.
template<typename Sample>
inline Sample Rounded(float value)
{
    if constexpr (std::is_floating_point_v<Sample>) {
        return value;
    } else {
        const float positive = value > 0.0F ? value : 0.0F;
        const float held = positive < largestSample<Sample> ? positive : largestSample<Sample>;
        return static_cast<Sample>(static_cast<int>(held + 0.5F));
    }
}

} // namespace BatchWorker
