// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CubeColours.h"

#include "server/worker/pixels/VectorCode.h"

#include <algorithm>
#include <array>
#include <cstring>

using namespace BatchJob;

namespace BatchWorker {

namespace {

constexpr int cellsAtOnce = 256;

using Floats = std::array<float, cellsAtOnce>;
using Places = std::array<int, cellsAtOnce>;

/// Where the entries along a channel lie.
struct Axis
{
    Axis(const CubeTable& table, std::size_t channel, double largest)
        : first(double(table.domainMinimum[channel]) * largest)
        , entriesPerStep((table.size - 1) /
                         ((double(table.domainMaximum[channel]) - double(table.domainMinimum[channel])) * largest))
        , lastEntry(table.size - 1)
    {
        for (std::size_t before = 0; before < channel; ++before) {
            stride *= table.size;
        }
    }

    double first;          ///< sample of the first entry
    double entriesPerStep; ///< of samples
    int lastEntry;
    int stride = 3; ///< of the numbers from an entry to the next
};

/// Adds to `places` where the entries are behind which samples lie; `shares` are the ways from there to the next
/// entries.
template<typename Sample>
BATCH_VECTOR_CODE void FindCells(const Sample* __restrict samples, int count, const Axis& axis, int* __restrict places,
                                 float* __restrict shares)
{
    const auto [first, entriesPerStep, lastEntry, stride] = axis;
    const double last = lastEntry;
    for (int i = 0; i < count; ++i) {
        double place = (static_cast<double>(static_cast<int>(samples[i])) - first) * entriesPerStep;
        place = place < 0.0 ? 0.0 : place;
        place = place > last ? last : place;
        int entry = static_cast<int>(place);
        entry = entry < lastEntry ? entry : lastEntry - 1;
        places[i] += entry * stride;
        shares[i] = static_cast<float>(place - entry);
    }
}

/// The cells of a cube in which colours lie.
struct Cells
{
    template<typename Sample>
    Cells(const std::array<Axis, 3>& axes, const PlanarPixels<Sample>& pixels, int begin)
        : count(std::min(cellsAtOnce, pixels.count - begin))
    {
        std::fill_n(places.begin(), count, 0);
        for (std::size_t channel = 0; channel < axes.size(); ++channel) {
            FindCells(pixels.planes[channel] + begin, count, axes[channel], places.data(), shares[channel].data());
        }
    }

    int count;
    Places places; ///< of the dark corners
    std::array<Floats, 3> shares;
};

/// An entry of a table, and a number that means nothing.
using Entry [[gnu::vector_size(16)]] = float;
using Entries = std::array<Entry, cellsAtOnce>;

Entry EntryAt(const float* values)
{
    Entry entry;
    std::memcpy(&entry, values, sizeof(entry));
    return entry;
}

Entry Between(Entry from, Entry to, float share)
{
    return from + share * (to - from);
}

struct TrilinearWay
{
    static void Find(const float* values, const std::array<Axis, 3>& axes, const Cells& cells, Entries& found)
    {
        const int far = axes[1].stride;
        const int high = axes[2].stride;
        for (int i = 0; i < cells.count; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const float* const corner = values + cells.places[at];
            const auto alongRed = [red = cells.shares[0][at], step = axes[0].stride](const float* from) {
                return Between(EntryAt(from), EntryAt(from + step), red);
            };
            const float green = cells.shares[1][at];
            const Entry dark = Between(alongRed(corner), alongRed(corner + far), green);
            const Entry light = Between(alongRed(corner + high), alongRed(corner + high + far), green);
            found[at] = Between(dark, light, cells.shares[2][at]);
        }
    }
};

/// Four corners of each cell, and their weights.
struct Corners
{
    Places second;
    Places third;
    std::array<Floats, 4> weights;
};

// Compilers take no other pointers than parameters for different memory, and make no vector code of others.
BATCH_VECTOR_CODE void FindCorners(const float* __restrict red, const float* __restrict green,
                                   const float* __restrict blue, int count, const std::array<int, 3>& strides,
                                   int* __restrict second, int* __restrict third, float* __restrict ofDark,
                                   float* __restrict ofSecond, float* __restrict ofThird, float* __restrict ofLight)
{
    const auto [redStride, greenStride, blueStride] = strides;
    const int all = redStride + greenStride + blueStride;
    for (int i = 0; i < count; ++i) {
        const float r = red[i];
        const float g = green[i];
        const float b = blue[i];
        const float less = r < g ? r : g;
        const float more = r > g ? r : g;
        const float least = less < b ? less : b;
        const float most = more > b ? more : b;
        const float lessOfMore = more < b ? more : b;
        const float middle = lessOfMore > less ? lessOfMore : less;
        // Of equal shares the greatest is that of the first channel, the least that of the last.
        const int strideOfMore = r < g ? greenStride : redStride;
        const int strideOfLess = r < g ? redStride : greenStride;
        second[i] = more < b ? blueStride : strideOfMore;
        third[i] = all - (b <= less ? blueStride : strideOfLess);
        ofDark[i] = 1.0F - most;
        ofSecond[i] = most - middle;
        ofThird[i] = middle - least;
        ofLight[i] = least;
    }
}

struct TetrahedralWay
{
    static void Find(const float* values, const std::array<Axis, 3>& axes, const Cells& cells, Entries& found)
    {
        Corners corners;
        FindCorners(cells.shares[0].data(), cells.shares[1].data(), cells.shares[2].data(), cells.count,
                    {axes[0].stride, axes[1].stride, axes[2].stride}, corners.second.data(), corners.third.data(),
                    corners.weights[0].data(), corners.weights[1].data(), corners.weights[2].data(),
                    corners.weights[3].data());
        const int all = axes[0].stride + axes[1].stride + axes[2].stride;
        for (int i = 0; i < cells.count; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const float* const corner = values + cells.places[at];
            found[at] = corners.weights[0][at] * EntryAt(corner) +
                        corners.weights[1][at] * EntryAt(corner + corners.second[at]) +
                        corners.weights[2][at] * EntryAt(corner + corners.third[at]) +
                        corners.weights[3][at] * EntryAt(corner + all);
        }
    }
};

template<typename Sample>
BATCH_VECTOR_CODE void MoveTowards(const float* found, float strength, Sample* __restrict red, Sample* __restrict green,
                                   Sample* __restrict blue, int count)
{
    constexpr auto largest = static_cast<float>(largestNumber<Sample>);
    for (int i = 0; i < count; ++i) {
        const auto r = NumberOf(red[i]);
        const auto g = NumberOf(green[i]);
        const auto b = NumberOf(blue[i]);
        red[i] = SampleNear<Sample>(r + strength * (found[0] * largest - r));
        green[i] = SampleNear<Sample>(g + strength * (found[1] * largest - g));
        blue[i] = SampleNear<Sample>(b + strength * (found[2] * largest - b));
        found += 4;
    }
}

template<typename Way, typename Sample>
void Map(const CubeTable& table, float strength, const PlanarPixels<Sample>& pixels)
{
    constexpr double largest = sizeof(Sample) == 1 ? 255.0 : 65535.0;
    const std::array<Axis, 3> axes{Axis(table, 0, largest), Axis(table, 1, largest), Axis(table, 2, largest)};
    for (int begin = 0; begin < pixels.count; begin += cellsAtOnce) {
        const Cells cells(axes, pixels, begin);
        Entries found;
        Way::Find(table.values.data(), axes, cells, found);
        std::array<float, 4 * cellsAtOnce> numbers;
        std::memcpy(numbers.data(), found.data(), sizeof(numbers));
        MoveTowards(numbers.data(), strength, pixels.planes[0] + begin, pixels.planes[1] + begin,
                    pixels.planes[2] + begin, cells.count);
    }
}

template<typename Way>
PlanarOperation MapBy(const SharedCube& table, double strength)
{
    return OperationBy(
        [table, strength = static_cast<float>(strength)](const auto& pixels) { Map<Way>(*table, strength, pixels); });
}

} // namespace

double CurveAt(const CubeTable& table, std::size_t channel, double value)
{
    const double minimum = double(table.domainMinimum[channel]);
    const double maximum = double(table.domainMaximum[channel]);
    const double place = std::clamp((value - minimum) / (maximum - minimum), 0.0, 1.0) * (table.size - 1);
    const auto entry = std::min(static_cast<std::size_t>(place), static_cast<std::size_t>(table.size) - 2);
    const double from = double(table.values[3 * entry + channel]);
    const double to = double(table.values[3 * (entry + 1) + channel]);
    return from + (place - double(entry)) * (to - from);
}

PlanarOperation Trilinear(const SharedCube& table, double strength)
{
    return MapBy<TrilinearWay>(table, strength);
}

PlanarOperation Tetrahedral(const SharedCube& table, double strength)
{
    return MapBy<TetrahedralWay>(table, strength);
}

} // namespace BatchWorker
