// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

/// Colours that a file describes by numbers instead of an ICC profile: "nclx" of HEIF and AVIF, "cICP" of PNG, and what
/// JPEG XL codes instead of one.
namespace BatchWorker {

/// A point in the CIE 1931 chromaticity diagram.
struct Chromaticity
{
    double x = 0.0;
    double y = 0.0;
};

/// What red, green, blue and white of a space are.
struct Primaries
{
    Chromaticity red;
    Chromaticity green;
    Chromaticity blue;
    Chromaticity white;
};

/// Whether all of these are points of the diagram, and white lies between red, green and blue.
bool MakeSense(const Primaries& primaries);

/// The curve from a value to its light, both 0 to 1: (a * value + b) ^ exponent from `start` on, c * value below.
struct ToneCurve
{
    double exponent = 1.0;
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double start = 0.0;
};

/// The curve of sRGB, and light = value ^ exponent.
ToneCurve SrgbCurve();
ToneCurve GammaCurve(double exponent);

/// The primaries of sRGB, which are those of ITU-R BT.709.
Primaries SrgbPrimaries();

/// The numbers of ITU-T H.273 for colour primaries and transfer characteristics.
struct CodedColours
{
    static constexpr int unspecified = 2;
    static constexpr int perceptualQuantizer = 16; ///< PQ
    static constexpr int hybridLogGamma = 18;      ///< HLG

    int primaries = unspecified;
    int transfer = unspecified;
};

/// Colours of values that say how bright a screen shines that can show more than white.
struct HdrColours
{
    Primaries primaries;
    bool isHlg = false; ///< else PQ
};

/// What `primaries` and `transfer` of CodedColours stand for; nothing for numbers that are reserved or that describe
/// what pictures do not use. Unspecified means sRGB.
std::optional<Primaries> PrimariesOf(int primaries);
std::optional<ToneCurve> ToneCurveOf(int transfer);

/// The colours of PQ or HLG that `coded` stands for; nothing for other transfers. Primaries that are not told, or not
/// known, are those of Rec. ITU-R BT.2100.
std::optional<HdrColours> HdrColoursOf(const CodedColours& coded);

} // namespace BatchWorker
