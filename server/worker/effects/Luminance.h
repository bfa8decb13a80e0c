// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cmath>

/// Light and stored values of sRGB, and how bright colours are.
namespace BatchWorker {

/// The light, 0 to 1, that the stored value 0 to 1 stands for, by the transfer function of IEC 61966-2-1.
inline double LightOf(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// The opposite of LightOf().
inline double ValueOf(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

/// The weighted sum of red, green and blue with the weights of Rec. ITU-R BT.709: luminance of light, luma of stored
/// values.
inline double WeightedSum(const std::array<double, 3>& colour)
{
    return 0.2126 * colour[0] + 0.7152 * colour[1] + 0.0722 * colour[2];
}

} // namespace BatchWorker
