// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace BatchWorker {

/// Values that a wide vector register takes at a time; narrow ones take them in two halves. They may lie anywhere.
using Lanes = float __attribute__((vector_size(32), aligned(4), may_alias));
/// Whole numbers in the same places, such as the bits of values. Like all without a sign, they overflow as processors
/// do.
using WholeLanes = std::uint32_t __attribute__((vector_size(32), aligned(4), may_alias));

constexpr int laneCount = sizeof(Lanes) / sizeof(float);

inline const Lanes& LanesAt(const float* values)
{
    return *reinterpret_cast<const Lanes*>(values);
}

inline Lanes& LanesAt(float* values)
{
    return *reinterpret_cast<Lanes*>(values);
}

} // namespace BatchWorker
