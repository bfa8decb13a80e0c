// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Planes.h"

#include <algorithm>
#include <array>
#include <limits>

namespace BatchWorker {

namespace {

constexpr int coloursOfRgb = 3;

/// Sums of weighted samples, in whole numbers: every processor gets the same.
constexpr int weightBits = 24;
using Weights = std::array<std::int64_t, coloursOfRgb>;

constexpr std::int64_t Weight(double weight)
{
    return std::int64_t(weight * double(1 << weightBits) + (weight < 0 ? -0.5 : 0.5));
}

// The weights of sYCC. Each line is exact where all samples are equal.
constexpr Weights ofBrightness{Weight(0.299), Weight(1.0) - Weight(0.299) - Weight(0.114), Weight(0.114)};
constexpr Weights ofBlue{-Weight(0.5) - Weight(-0.331264), Weight(-0.331264), Weight(0.5)};
constexpr Weights ofRed{Weight(0.5), Weight(-0.418688), -Weight(0.5) - Weight(-0.418688)};

template<typename Sample>
std::int64_t Weighed(const Sample* pixel, const Weights& weights)
{
    return pixel[0] * weights[0] + pixel[1] * weights[1] + pixel[2] * weights[2];
}

// `sum` is that of 1 << `countBits` pixels.
template<typename Sample>
Sample Mean(std::int64_t sum, int countBits, std::int64_t middle)
{
    const int bits = weightBits + countBits;
    const std::int64_t rounded = ((sum + (std::int64_t(1) << (bits - 1))) >> bits) + middle;
    return Sample(std::clamp<std::int64_t>(rounded, 0, std::numeric_limits<Sample>::max()));
}

template<typename Sample>
const Sample* Line(const Jpeg2000Area& area, int y)
{
    return reinterpret_cast<const Sample*>(area.samples + std::size_t(y) * area.lineSize);
}

template<typename Sample>
void Separate(const Jpeg2000Area& area, int bands, Sample* to)
{
    for (int band = 0; band < bands; ++band) {
        for (int y = 0; y < area.height; ++y) {
            const Sample* from = Line<Sample>(area, y) + band;
            for (int x = 0; x < area.width; ++x, from += bands) {
                *to++ = *from;
            }
        }
    }
}

template<typename Sample>
Sample* AddBrightness(const Jpeg2000Area& area, Sample* to)
{
    for (int y = 0; y < area.height; ++y) {
        const Sample* from = Line<Sample>(area, y);
        for (int x = 0; x < area.width; ++x, from += coloursOfRgb) {
            *to++ = Mean<Sample>(Weighed(from, ofBrightness), 0, 0);
        }
    }
    return to;
}

// The mean of four pixels. In the last column of an odd width, and in the last line of an odd height, pixels count
// twice.
template<typename Sample>
Sample* AddDifference(const Jpeg2000Area& area, const Weights& weights, Sample* to)
{
    constexpr int bitsOfFour = 2;
    constexpr std::int64_t middle = std::int64_t(std::numeric_limits<Sample>::max() / 2) + 1;
    for (int y = 0; y < area.height; y += 2) {
        const Sample* const upper = Line<Sample>(area, y);
        const Sample* const lower = Line<Sample>(area, std::min(y + 1, area.height - 1));
        for (int x = 0; x < area.width; x += 2) {
            const int left = x * coloursOfRgb;
            const int right = std::min(x + 1, area.width - 1) * coloursOfRgb;
            const std::int64_t sum = Weighed(upper + left, weights) + Weighed(upper + right, weights) +
                                     Weighed(lower + left, weights) + Weighed(lower + right, weights);
            *to++ = Mean<Sample>(sum, bitsOfFour, middle);
        }
    }
    return to;
}

template<typename Sample>
void Fill(const Jpeg2000Area& area, const Jpeg2000Layout& layout, std::vector<std::uint8_t>& planes)
{
    const auto samplesOf = [](int width, int height) { return std::size_t(width) * std::size_t(height); };
    const std::size_t whole = samplesOf(area.width, area.height);
    const std::size_t half = samplesOf((area.width + 1) / 2, (area.height + 1) / 2);
    planes.resize((layout.isSubsampled ? whole + 2 * half : whole * std::size_t(layout.bands)) * sizeof(Sample));
    auto* const to = reinterpret_cast<Sample*>(planes.data());
    if (layout.isSubsampled) {
        AddDifference(area, ofRed, AddDifference(area, ofBlue, AddBrightness(area, to)));
    } else {
        Separate(area, layout.bands, to);
    }
}

} // namespace

void FillPlanes(const Jpeg2000Area& area, const Jpeg2000Layout& layout, std::vector<std::uint8_t>& planes)
{
    layout.isDeep ? Fill<std::uint16_t>(area, layout, planes) : Fill<std::uint8_t>(area, layout, planes);
}

} // namespace BatchWorker
