// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ValueCounts.h"

#include "GeneratedPicture.h"
#include "PixelForms.h"

#include <algorithm>
#include <memory>

namespace BatchWorker {

namespace {

/// Counts of every channel. Neighbours, which often are equal, are counted apart: adding to a number that has just been
/// written waits for the write.
template<typename Sample, int bands>
class Counter
{
public:
    void Add(const Sample* pixels, int count)
    {
        int done = 0;
        for (; done + int(neighbours) <= count; done += int(neighbours)) {
            for (std::size_t neighbour = 0; neighbour < neighbours; ++neighbour, pixels += bands) {
                AddPixel(pixels, counts.data() + neighbour * channels * values);
            }
        }
        for (; done < count; ++done, pixels += bands) {
            AddPixel(pixels, counts.data());
        }
    }

    void AddTo(std::vector<ValueCounts>& sums)
    {
        sums.resize(channels, ValueCounts(values));
        for (std::size_t i = 0; i < counts.size(); ++i) {
            sums[i / values % channels][i % values] += counts[i];
        }
        std::fill(counts.begin(), counts.end(), 0);
    }

private:
    static constexpr std::size_t channels = bands < 3 ? 1 : 3;
    static constexpr std::size_t values = std::size_t(1) << 8 * sizeof(Sample);

    static constexpr std::size_t neighbours = sizeof(Sample) == 1 ? 4 : 2;

    static void AddPixel(const Sample* pixel, std::uint32_t* to)
    {
        if (channels == bands || pixel[channels] > 0) {
            for (std::size_t channel = 0; channel < channels; ++channel) {
                ++to[channel * values + pixel[channel]];
            }
        }
    }

    std::vector<std::uint32_t> counts = std::vector<std::uint32_t>(neighbours * channels * values);
};

template<typename Sample, int bands>
std::vector<ValueCounts> Count(const Picture& picture)
{
    const std::unique_ptr<VipsRegion, decltype(&g_object_unref)> region(vips_region_new(picture.get_image()),
                                                                        g_object_unref);
    if (!region) {
        throw vips::VError();
    }
    constexpr int rowsAtOnce = 64;
    // A picture has fewer pixels than a counter of 32 bits holds.
    Counter<Sample, bands> counter;
    for (int top = 0; top < picture.height(); top += rowsAtOnce) {
        const VipsRect area{0, top, picture.width(), std::min(rowsAtOnce, picture.height() - top)};
        if (vips_region_prepare(region.get(), &area) != 0) {
            throw vips::VError();
        }
        for (int y = top; y < top + area.height; ++y) {
            counter.Add(PixelAt<const Sample>(region.get(), 0, y), area.width);
        }
    }
    std::vector<ValueCounts> sums;
    counter.AddTo(sums);
    return sums;
}

template<typename Sample>
std::vector<ValueCounts> CountBands(const Picture& picture)
{
    switch (picture.bands()) {
    case 1:
        return Count<Sample, 1>(picture);
    case 2:
        return Count<Sample, 2>(picture);
    case 3:
        return Count<Sample, 3>(picture);
    default:
        return Count<Sample, 4>(picture);
    }
}

} // namespace

std::vector<ValueCounts> CountedValues(const Picture& picture)
{
    return HasSixteenBits(picture) ? CountBands<std::uint16_t>(picture) : CountBands<std::uint8_t>(picture);
}

} // namespace BatchWorker
