// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <limits>
#include <type_traits>

namespace BatchWorker {

/// The sample of a weighted sum: rounded and held within the range where samples are whole numbers.
template<typename Sample>
inline Sample SampleOf(float value)
{
    if constexpr (std::is_floating_point_v<Sample>) {
        return value;
    } else {
        constexpr float largest = std::numeric_limits<Sample>::max();
        return Sample(int(std::min(std::max(value, 0.0F), largest) + 0.5F));
    }
}

} // namespace BatchWorker
