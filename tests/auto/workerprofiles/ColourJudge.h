// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PngParts.h"

#include <QByteArray>
#include <QVector>

#include <lcms2.h>

#include <array>
#include <functional>

/// Profiles that tests make, and colours as lcms sees them.
namespace ColourJudge {

using PngParts::Colour;

/// Chromaticities of white, red, green and blue.
using Points = std::array<double, 8>;

constexpr Points srgb{0.3127, 0.3290, 0.64, 0.33, 0.30, 0.60, 0.15, 0.06};
constexpr Points displayP3{0.3127, 0.3290, 0.680, 0.320, 0.265, 0.690, 0.150, 0.060};
constexpr Points rec2020{0.3127, 0.3290, 0.708, 0.292, 0.170, 0.797, 0.131, 0.046};
constexpr Points bt601{0.3127, 0.3290, 0.64, 0.33, 0.29, 0.60, 0.15, 0.06};
constexpr Points adobe{0.3127, 0.3290, 0.64, 0.33, 0.21, 0.71, 0.15, 0.06};
constexpr Points proPhoto{0.3457, 0.3585, 0.7347, 0.2653, 0.1596, 0.8404, 0.0366, 0.0001};

/// A profile of RGB whose light is `light` of the value, both 0 to 1.
QByteArray RgbProfile(const Points& points, const std::function<double(double)>& light);

/// The same for grey.
QByteArray GreyProfile(const std::function<double(double)>& light);

/// Light of the value: sRGB, television (ITU-R BT.709, solved for the light), and powers.
double SrgbLight(double value);
double TelevisionLight(double value);
std::function<double(double)> Power(double exponent);

/// A profile of RGB that has nothing but a table for perceptual use. Its values are those of Display P3 with exponent
/// 2.2, or, with `isScrambled`, green and the differences of the others from it, where equal values are no grey.
QByteArray TableProfile(bool isScrambled);

/// What the scrambled values of TableProfile() are for the colour `rgb` of that space.
Colour Scrambled(const Colour& rgb);

/// The colour of `values` by `profile`, which may be one of grey; an empty one is sRGB. Perceptual if it has no other
/// table.
cmsCIELab Lab(const QByteArray& profile, const Colour& values);

/// The largest difference (CIE 1976) between `expected` by `profile` and `found` by `foundProfile`, patch by patch.
double LargestDeltaE(const QByteArray& profile, const QVector<Colour>& expected, const QByteArray& foundProfile,
                     const QVector<Colour>& found);

/// "RGB " or "GRAY"; empty for bytes that are no profile.
QByteArray SpaceOf(const QByteArray& profile);

/// The colours, 0 to 1, in the middle of `count` patches in a row in the file at `path`.
QVector<Colour> PatchesOf(const QString& path, int count);

} // namespace ColourJudge
