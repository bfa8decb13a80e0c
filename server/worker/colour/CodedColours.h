#pragma once

#include <optional>

/// Colours that a file describes by numbers instead of an ICC profile: "nclx" of HEIF and AVIF, "cICP" of PNG.
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

    /// Whether the values say how bright a screen shines that can show more than white: PQ and HLG.
    bool IsHdr() const { return transfer == perceptualQuantizer || transfer == hybridLogGamma; }
};

/// What `primaries` and `transfer` of CodedColours stand for; nothing for numbers that are reserved or that describe
/// what pictures do not use. Unspecified means sRGB.
std::optional<Primaries> PrimariesOf(int primaries);
std::optional<ToneCurve> ToneCurveOf(int transfer);

} // namespace BatchWorker
