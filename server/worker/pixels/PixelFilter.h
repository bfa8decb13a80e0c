// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GeneratedPicture.h"
#include "PixelForms.h"
#include "ValueTables.h"

#include <array>
#include <cstdint>
#include <vector>

/// Makes pictures from functions of pixels. Everything here builds part of a pipeline and returns at once; the
/// functions run later, on several threads at a time, and must not throw.
namespace BatchWorker {

/// Maps each value of each colour channel, 0 to 1, by a table. Alpha stays. Neighbouring calls are one pass, see
/// WithOperation().
Picture MapValues(const Picture& picture, const ValueFunction& function);

/// The same with a function for red, green and blue. A grey picture must not be given.
Picture MapValues(const Picture& picture, const std::array<ValueFunction, 3>& functions);

/// Values of 0 to `largest`, rounded and held within that range.
template<typename Sample>
Sample SampleOf(double value, double largest)
{
    const double scaled = value * largest + 0.5;
    return static_cast<Sample>(scaled < 0.0 ? 0.0 : (scaled > largest ? largest : scaled));
}

/// Colour of a pixel: one or three values of 0 to 1, of which the function changes what it likes.
template<typename Sample, typename Function>
void MapColoursOfLines(VipsRegion* output, VipsRegion* input, const Function& function)
{
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    const int colourBands = bands < 3 ? 1 : 3;
    constexpr double largest = sizeof(Sample) == 1 ? 255.0 : 65535.0;
    for (int y = area.top; y < area.top + area.height; ++y) {
        const auto* in = PixelAt<const Sample>(input, area.left, y);
        auto* out = PixelAt<Sample>(output, area.left, y);
        for (int x = 0; x < area.width; ++x, in += bands, out += bands) {
            std::array<double, 3> colour{};
            for (int band = 0; band < colourBands; ++band) {
                colour[static_cast<size_t>(band)] = in[band] / largest;
            }
            function(colour);
            for (int band = 0; band < colourBands; ++band) {
                out[band] = SampleOf<Sample>(colour[static_cast<size_t>(band)], largest);
            }
            if (bands > colourBands) {
                out[colourBands] = in[colourBands];
            }
        }
    }
}

/// Maps the colour of each pixel by `function(std::array<double, 3>& colour)`, where `colour` holds 0 to 1 (a grey
/// picture: in its first value). What is outside 0 to 1 becomes 0 or 1. Alpha stays.
template<typename Function>
Picture MapColours(const Picture& picture, Function function)
{
    const bool isDeep = HasSixteenBits(picture);
    const auto map = [function, isDeep](VipsRegion* target, const std::vector<VipsRegion*>& inputs) {
        if (isDeep) {
            MapColoursOfLines<std::uint16_t>(target, inputs[0], function);
        } else {
            MapColoursOfLines<std::uint8_t>(target, inputs[0], function);
        }
    };
    return GeneratePicture(ShapeOf(picture), {picture}, map);
}

} // namespace BatchWorker
