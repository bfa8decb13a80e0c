// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CodedColours.h"

#include <algorithm>
#include <array>

namespace BatchWorker {

namespace {

constexpr Chromaticity d65{0.3127, 0.3290};
constexpr Chromaticity illuminantC{0.310, 0.316};
constexpr Chromaticity dciWhite{0.314, 0.351};

// Light of the camera's curves of television, solved for the light.
constexpr ToneCurve television{1.0 / 0.45, 1.0 / 1.099, 0.099 / 1.099, 1.0 / 4.5, 0.081};

bool IsInside(const Chromaticity& point, const Chromaticity& a, const Chromaticity& b, const Chromaticity& c)
{
    const auto side = [&point](const Chromaticity& from, const Chromaticity& to) {
        return (to.x - from.x) * (point.y - from.y) - (to.y - from.y) * (point.x - from.x);
    };
    return (side(a, b) > 0 && side(b, c) > 0 && side(c, a) > 0) || (side(a, b) < 0 && side(b, c) < 0 && side(c, a) < 0);
}

} // namespace

bool MakeSense(const Primaries& primaries)
{
    const std::array<Chromaticity, 4> points{primaries.red, primaries.green, primaries.blue, primaries.white};
    const bool areInDiagram = std::all_of(points.begin(), points.end(), [](const Chromaticity& point) {
        constexpr double rounding = 0.0001;
        return point.y > 0.0 && point.x + point.y <= 1.0 + rounding;
    });
    return areInDiagram && IsInside(primaries.white, primaries.red, primaries.green, primaries.blue);
}

ToneCurve SrgbCurve()
{
    return {2.4, 1.0 / 1.055, 0.055 / 1.055, 1.0 / 12.92, 0.04045}; // IEC 61966-2-1
}

ToneCurve GammaCurve(double exponent)
{
    return {exponent, 1.0, 0.0, 0.0, 0.0};
}

Primaries SrgbPrimaries()
{
    return {{0.640, 0.330}, {0.300, 0.600}, {0.150, 0.060}, d65};
}

// Source: ITU-T H.273, table 2.
std::optional<Primaries> PrimariesOf(int primaries)
{
    switch (primaries) {
    case 1: // BT.709
    case CodedColours::unspecified:
        return SrgbPrimaries();
    case 4: // BT.470 system M
        return Primaries{{0.67, 0.33}, {0.21, 0.71}, {0.14, 0.08}, illuminantC};
    case 5: // BT.601, 625 lines
        return Primaries{{0.64, 0.33}, {0.29, 0.60}, {0.15, 0.06}, d65};
    case 6: // BT.601, 525 lines
    case 7: // SMPTE 240M
        return Primaries{{0.630, 0.340}, {0.310, 0.595}, {0.155, 0.070}, d65};
    case 8: // film
        return Primaries{{0.681, 0.319}, {0.243, 0.692}, {0.145, 0.049}, illuminantC};
    case 9: // BT.2020 and BT.2100
        return Primaries{{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}, d65};
    case 11: // SMPTE RP 431-2, P3 of cinemas
        return Primaries{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, dciWhite};
    case 12: // SMPTE EG 432-1, Display P3
        return Primaries{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}, d65};
    case 22: // EBU Tech 3213-E
        return Primaries{{0.630, 0.340}, {0.295, 0.605}, {0.155, 0.077}, d65};
    default:
        return std::nullopt;
    }
}

// Source: ITU-T H.273, table 3.
std::optional<ToneCurve> ToneCurveOf(int transfer)
{
    switch (transfer) {
    case 1:  // BT.709
    case 6:  // BT.601
    case 11: // IEC 61966-2-4, which is the same from 0 to 1
    case 12: // BT.1361, likewise
    case 14: // BT.2020, 10 bits
    case 15: // BT.2020, 12 bits
        return television;
    case CodedColours::unspecified:
    case 13: // IEC 61966-2-1: sRGB
        return SrgbCurve();
    case 4: // BT.470 system M
        return GammaCurve(2.2);
    case 5: // BT.470 system B, G
        return GammaCurve(2.8);
    case 7: // SMPTE 240M
        return ToneCurve{1.0 / 0.45, 1.0 / 1.1115, 0.1115 / 1.1115, 1.0 / 4.0, 0.0913};
    case 8: // linear
        return GammaCurve(1.0);
    case 17: // SMPTE ST 428-1, less its headroom above white
        return GammaCurve(2.6);
    default:
        return std::nullopt;
    }
}

std::optional<HdrColours> HdrColoursOf(const CodedColours& coded)
{
    constexpr int bt2100 = 9;
    if (coded.transfer != CodedColours::perceptualQuantizer && coded.transfer != CodedColours::hybridLogGamma) {
        return std::nullopt;
    }
    const bool isSaid = coded.primaries != CodedColours::unspecified;
    const std::optional<Primaries> primaries = PrimariesOf(isSaid ? coded.primaries : bt2100);
    return HdrColours{primaries ? *primaries : *PrimariesOf(bt2100), coded.transfer == CodedColours::hybridLogGamma};
}

} // namespace BatchWorker
