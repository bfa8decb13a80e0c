// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchWorker {

/// The luma of a colour with the weights of Rec. ITU-R BT.709, in the range of its samples; for loops over many.
template<typename Sample>
inline float LumaOf(Sample red, Sample green, Sample blue)
{
    return 0.2126F * static_cast<float>(red) + 0.7152F * static_cast<float>(green) + 0.0722F * static_cast<float>(blue);
}

} // namespace BatchWorker
