// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Rows.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace BatchWorker {

namespace {

using Area = Jpeg2000Codestream::Area;
using Component = Jpeg2000Codestream::Component;

int SmallestSpacing(const Jpeg2000Codestream& codestream, const Jpeg2000Channels& channels, int Component::*spacing)
{
    int smallest = codestream.Components()[channels.channels.first().component].*spacing;
    for (const Jpeg2000Channels::Channel& channel : channels.channels) {
        smallest = std::min(smallest, codestream.Components()[channel.component].*spacing);
    }
    return smallest;
}

// The tile row that holds the line `y` of a component.
int TileRowOf(const Jpeg2000Codestream& codestream, int component, qint64 y)
{
    const Component& coded = codestream.Components()[component];
    int first = 0;
    int last = codestream.TileRows() - 1;
    while (first < last) {
        const int middle = (first + last) / 2;
        const bool isAbove = SamplesIn(codestream.Tile(0, middle), coded.dx, coded.dy).bottom <= y;
        first = isAbove ? middle + 1 : first;
        last = isAbove ? last : middle;
    }
    return first;
}

double Largest(int bits)
{
    return double((qint64(1) << bits) - 1);
}

// Luma and chroma to red, green, blue. Source: IEC 61966-2-1, amendment 1 (sYCC), which takes the numbers of ITU-R
// BT.601. `middle` is the chroma of grey.
void ToRgb(double middle, double& first, double& second, double& third)
{
    const double luma = first;
    const double blue = second - middle;
    const double red = third - middle;
    first = luma + 1.402 * red;
    second = luma - 0.344136 * blue - 0.714136 * red;
    third = luma + 1.772 * blue;
}

} // namespace

Jpeg2000Rows::Jpeg2000Rows(const Jpeg2000Codestream& codestream, const Jpeg2000Channels& channels, Bands bands)
    : codestream(codestream)
    , channels(channels)
    , bands(std::move(bands))
    , stepX(SmallestSpacing(codestream, channels, &Component::dx))
    , stepY(SmallestSpacing(codestream, channels, &Component::dy))
{
    const Area pixels = SamplesIn(codestream.Image(), stepX, stepY);
    size = QSize(int(pixels.Width()), int(pixels.Height()));
    for (const Jpeg2000Channels::Channel& channel : channels.channels) {
        const Component& component = codestream.Components()[channel.component];
        const bool isWhole = !channel.palette.isEmpty();
        Source source;
        source.area = SamplesIn(codestream.Image(), component.dx, component.dy);
        source.isFull = component.dx == stepX && component.dy == stepY;
        if (!source.isFull) {
            source.columns = PlacesAlong(size.width(), pixels.left, stepX, component.dx, component.shiftX.value_or(-1),
                                         source.area.left, source.area.right, isWhole);
            source.lines = PlacesAlong(size.height(), pixels.top, stepY, component.dy, component.shiftY.value_or(-1),
                                       source.area.top, source.area.bottom, isWhole);
        }
        sources.push_back(std::move(source));
        values.emplace_back(std::size_t(size.width()));
    }
}

// For `count` pixels from the number `begin` on, `step` apart: the samples, `spacing` apart and from `first` to `end`,
// to the left and right of each. A negative `shift` means the middle of a sample's cell. With `isWhole` the sample of
// the cell counts alone.
std::vector<Jpeg2000Rows::Place> Jpeg2000Rows::PlacesAlong(int count, qint64 begin, int step, int spacing, double shift,
                                                           qint64 first, qint64 end, bool isWhole) const
{
    const double shiftOfPixel = step * 0.5;
    const double shiftOfSample = shift < 0 || spacing == step ? spacing * 0.5 : shift * spacing + shiftOfPixel;
    std::vector<Place> places;
    places.reserve(std::size_t(count));
    for (qint64 pixel = begin; pixel < begin + count; ++pixel) {
        const double place = (double(pixel * step) + shiftOfPixel - shiftOfSample) / spacing;
        const double below = std::floor(place);
        const qint64 cell = std::clamp(pixel * step / spacing, first, end - 1);
        const qint64 sample = isWhole ? cell : qint64(below);
        places.push_back({std::clamp(sample, first, end - 1), std::clamp(isWhole ? cell : sample + 1, first, end - 1),
                          place - below});
    }
    return places;
}

std::vector<double> Jpeg2000Rows::SamplesOfLine(int component, qint64 y)
{
    const Component& coded = codestream.Components()[component];
    const Area area = SamplesIn(codestream.Image(), coded.dx, coded.dy);
    std::vector<double> line(std::size_t(area.Width()));
    for (const Jpeg2000Tile& tile : bands(TileRowOf(codestream, component, y)).tiles) {
        if (tile.HasLine(component, y)) {
            tile.CopyLine(component, y, area.left, line.data());
        }
    }
    return line;
}

void Jpeg2000Rows::FillChannel(int index, int y)
{
    const Jpeg2000Channels::Channel& channel = channels.channels[index];
    const Source& source = sources[std::size_t(index)];
    std::vector<double>& line = values[std::size_t(index)];
    if (source.isFull) {
        line = SamplesOfLine(channel.component, source.area.top + y);
    } else {
        const Place& place = source.lines[std::size_t(y)];
        const std::vector<double> above = SamplesOfLine(channel.component, place.first);
        const std::vector<double> below =
            place.second == place.first || place.weight == 0 ? above : SamplesOfLine(channel.component, place.second);
        const auto sampleAt = [&](qint64 column) {
            const auto at = std::size_t(column - source.area.left);
            return above[at] + (below[at] - above[at]) * place.weight;
        };
        std::transform(source.columns.begin(), source.columns.end(), line.begin(), [&sampleAt](const Place& column) {
            const double left = sampleAt(column.first);
            return left + (sampleAt(column.second) - left) * column.weight;
        });
    }
    const double largest = Largest(channel.bits);
    for (double& value : line) {
        if (!channel.palette.isEmpty()) {
            value = channel.palette[std::min(int(value), channel.palette.size() - 1)];
        }
        value /= largest;
    }
}

template<typename Value>
void Jpeg2000Rows::Write(int y, double largest, Value* line)
{
    for (int channel = 0; channel < channels.channels.size(); ++channel) {
        FillChannel(channel, y);
    }
    const auto count = std::size_t(channels.channels.size());
    const auto colours = std::size_t(channels.ColourCount());
    const bool isYcc = channels.colours == Jpeg2000Channels::Colours::Ycc;
    const int chromaBits = isYcc ? channels.channels[1].bits : 1;
    const double middle = double(qint64(1) << (chromaBits - 1)) / Largest(chromaBits);
    std::vector<double> pixel(count);
    for (std::size_t x = 0; x < std::size_t(size.width()); ++x) {
        for (std::size_t channel = 0; channel < count; ++channel) {
            pixel[channel] = values[channel][x];
        }
        if (isYcc) {
            ToRgb(middle, pixel[0], pixel[1], pixel[2]);
        }
        if (channels.isMultiplied && pixel[colours] > 0) {
            for (std::size_t channel = 0; channel < colours; ++channel) {
                pixel[channel] /= pixel[colours];
            }
        }
        for (std::size_t channel = 0; channel < count; ++channel) {
            *line++ = Value(std::clamp(pixel[channel], 0.0, 1.0) * largest + 0.5);
        }
    }
}

template void Jpeg2000Rows::Write(int, double, std::uint8_t*);
template void Jpeg2000Rows::Write(int, double, std::uint16_t*);

} // namespace BatchWorker
