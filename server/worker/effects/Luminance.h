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

/// The weights of red, green and blue of Rec. ITU-R BT.709: in luminance of light, in luma of stored values.
constexpr std::array<double, 3> brightnessWeights{0.2126, 0.7152, 0.0722};

inline double WeightedSum(const std::array<double, 3>& colour)
{
    return brightnessWeights[0] * colour[0] + brightnessWeights[1] * colour[1] + brightnessWeights[2] * colour[2];
}

} // namespace BatchWorker
