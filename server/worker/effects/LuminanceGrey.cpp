// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LuminanceGrey.h"

#include "Luminance.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace BatchWorker {

namespace {

// Powers are slow, and there are few different values.
std::vector<double> LightTable(int entries)
{
    std::vector<double> table;
    table.reserve(static_cast<std::size_t>(entries));
    for (int entry = 0; entry < entries; ++entry) {
        table.push_back(LightOf(entry / double(entries - 1)));
    }
    return table;
}

/// Grey values of 8 bits of luminances, exactly: a luminance between two values is compared with where the next begins.
class GreyBytes
{
public:
    GreyBytes()
    {
        for (std::size_t grey = 1; grey < begins.size(); ++grey) {
            begins[grey] = BeginOf(int(grey));
        }
        begins.back() = std::numeric_limits<double>::infinity();
        for (std::size_t cell = 0; cell < floors.size(); ++cell) {
            const auto next = std::upper_bound(begins.begin(), begins.end(), (double(cell) - 1e-6) / cells);
            floors[cell] = static_cast<std::uint8_t>(std::max<std::ptrdiff_t>(next - begins.begin() - 1, 0));
        }
    }

    std::uint8_t Of(double luminance) const
    {
        const unsigned floor = floors[static_cast<std::size_t>(static_cast<int>(luminance * cells))];
        return static_cast<std::uint8_t>(floor + (luminance >= begins[floor + 1] ? 1U : 0U));
    }

private:
    // Fine enough that at most one grey value begins in a cell: they are nearest where it is dark, 1 / (255 x 12.92).
    static constexpr int cells = 4095;

    static bool IsAtLeast(int grey, double luminance) { return ValueOf(luminance) * 255.0 + 0.5 >= grey; }

    /// The least luminance that is rounded to `grey`.
    static double BeginOf(int grey)
    {
        double below = LightOf((grey - 1.0) / 255.0);
        double above = LightOf((grey - 0.25) / 255.0);
        for (double middle = (below + above) / 2.0; middle > below && middle < above; middle = (below + above) / 2.0) {
            (IsAtLeast(grey, middle) ? above : below) = middle;
        }
        return above;
    }

    std::array<double, 257> begins{};
    std::array<std::uint8_t, cells + 2> floors{}; // white may be a rounding error above 1
};

void MakeGreyBytes(const PlanarPixels<std::uint8_t>& pixels)
{
    static const std::vector<double> light = LightTable(256);
    static const GreyBytes greys;
    const auto [red, green, blue] = pixels.planes;
    for (int i = 0; i < pixels.count; ++i) {
        const std::uint8_t grey = greys.Of(WeightedSum({light[red[i]], light[green[i]], light[blue[i]]}));
        red[i] = grey;
        green[i] = grey;
        blue[i] = grey;
    }
}

/// Grey values of 16 bits of luminances: on straight lines between few entries a value is a tenth of a step off at
/// most, so that at most the next one is right instead.
class GreyWords
{
public:
    GreyWords()
        : begins(65'537)
    {
        for (std::size_t entry = 0; entry < values.size(); ++entry) {
            values[entry] = static_cast<float>(ValueOf(double(entry) / cells) * 65535.0 + 0.5);
        }
        for (std::size_t grey = 1; grey < begins.size() - 1; ++grey) {
            begins[grey] = LightOf((double(grey) - 0.5) / 65535.0);
        }
        begins.back() = std::numeric_limits<double>::infinity();
    }

    std::uint16_t Of(double luminance) const
    {
        const double place = luminance * cells;
        const int cell = static_cast<int>(place);
        const float from = values[static_cast<std::size_t>(cell)];
        const float to = values[static_cast<std::size_t>(cell) + 1];
        const float value = from + static_cast<float>(place - cell) * (to - from);
        const int guess = std::min(static_cast<int>(value), 65'535);
        const double* const begin = &begins[static_cast<std::size_t>(guess)];
        return static_cast<std::uint16_t>(guess + (luminance >= begin[1] ? 1 : 0) - (luminance < begin[0] ? 1 : 0));
    }

private:
    static constexpr int cells = 16'384;

    std::array<float, cells + 2> values{};
    std::vector<double> begins; ///< the least luminance of each value
};

void MakeGreyWords(const PlanarPixels<std::uint16_t>& pixels)
{
    static const std::vector<double> light = LightTable(65'536);
    static const GreyWords greys;
    const auto [red, green, blue] = pixels.planes;
    for (int i = 0; i < pixels.count; ++i) {
        const double luminance = WeightedSum({light[red[i]], light[green[i]], light[blue[i]]});
        const std::uint16_t grey = greys.Of(luminance);
        red[i] = grey;
        green[i] = grey;
        blue[i] = grey;
    }
}

} // namespace

PointOperation GreyByLuminance(int bits)
{
    return bits == 8 ? PlanarOperation{MakeGreyBytes, {}} : PlanarOperation{{}, MakeGreyWords};
}

} // namespace BatchWorker
