// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ValueTables.h"

#include <cstddef>

namespace BatchWorker {

namespace {

std::shared_ptr<const std::vector<std::uint16_t>> TableOf(const ValueFunction& function, int largest)
{
    std::vector<std::uint16_t> table;
    table.reserve(static_cast<std::size_t>(largest) + 1);
    for (int value = 0; value <= largest; ++value) {
        const double mapped = function(value / double(largest)) * largest + 0.5;
        table.push_back(static_cast<std::uint16_t>(mapped < 0.0 ? 0.0 : (mapped > largest ? largest : mapped)));
    }
    return std::make_shared<const std::vector<std::uint16_t>>(std::move(table));
}

template<typename Sample>
void MapAll(const Sample* samples, Sample* result, std::ptrdiff_t count, const std::uint16_t* table)
{
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        result[i] = static_cast<Sample>(table[samples[i]]);
    }
}

template<typename Sample>
void MapGreyAlpha(const Sample* pixels, Sample* result, int count, const std::uint16_t* table)
{
    for (std::ptrdiff_t i = 0; i < 2 * std::ptrdiff_t(count); i += 2) {
        result[i] = static_cast<Sample>(table[pixels[i]]);
        result[i + 1] = pixels[i + 1];
    }
}

template<typename Sample, int bands>
void MapRgb(const Sample* pixels, Sample* result, int count, const std::array<const std::uint16_t*, 3>& tables)
{
    const auto [red, green, blue] = tables;
    for (int i = 0; i < count; ++i) {
        result[0] = static_cast<Sample>(red[pixels[0]]);
        result[1] = static_cast<Sample>(green[pixels[1]]);
        result[2] = static_cast<Sample>(blue[pixels[2]]);
        if constexpr (bands == 4) {
            result[3] = pixels[3];
        }
        pixels += bands;
        result += bands;
    }
}

} // namespace

ValueTables::ValueTables(const ValueFunction& function, int largest)
{
    tables.fill(TableOf(function, largest));
}

ValueTables::ValueTables(const std::array<ValueFunction, 3>& functions, int largest)
    : tables{TableOf(functions[0], largest), TableOf(functions[1], largest), TableOf(functions[2], largest)}
{
}

ValueTables ValueTables::Then(const ValueTables& later) const
{
    const auto composed = [](const Table& first, const Table& second) {
        Table table;
        table.reserve(first.size());
        for (const std::uint16_t value : first) {
            table.push_back(second[value]);
        }
        return std::make_shared<const Table>(std::move(table));
    };
    ValueTables both;
    if (AreOne() && later.AreOne()) {
        both.tables.fill(composed(*tables[0], *later.tables[0]));
        return both;
    }
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        both.tables[channel] = composed(*tables[channel], *later.tables[channel]);
    }
    return both;
}

template<typename Sample>
void ValueTables::Apply(const PlanarPixels<Sample>& pixels) const
{
    for (int channel = 0; channel < pixels.channels; ++channel) {
        Sample* const plane = pixels.planes[static_cast<std::size_t>(channel)];
        MapAll(plane, plane, pixels.count, Of(channel));
    }
}

template<typename Sample>
void ValueTables::Map(const Sample* pixels, Sample* result, int bands, int count) const
{
    if (bands == 1 || (bands == 3 && AreOne())) {
        MapAll(pixels, result, std::ptrdiff_t(bands) * count, Of(0));
    } else if (bands == 2) {
        MapGreyAlpha(pixels, result, count, Of(0));
    } else if (bands == 3) {
        MapRgb<Sample, 3>(pixels, result, count, {Of(0), Of(1), Of(2)});
    } else {
        MapRgb<Sample, 4>(pixels, result, count, {Of(0), Of(1), Of(2)});
    }
}

template void ValueTables::Apply(const PlanarPixels<std::uint8_t>&) const;
template void ValueTables::Apply(const PlanarPixels<std::uint16_t>&) const;
template void ValueTables::Map(const std::uint8_t*, std::uint8_t*, int, int) const;
template void ValueTables::Map(const std::uint16_t*, std::uint16_t*, int, int) const;

} // namespace BatchWorker
