#pragma once

#include "Picture.h"
#include "PixelForms.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

/// Makes pictures from functions of pixels. Everything here builds part of a pipeline and returns at once; the
/// functions run later, on several threads at a time, and must not throw.
namespace BatchWorker {

/// Fills the area of `output` from `inputs`, of which each holds the same area, wider by the margin on every side.
using AreaFunction = std::function<void(VipsRegion* const* inputs, VipsRegion* output)>;

/// A picture with the metadata and the size of the first of `inputs`, less `margin` on every side, and with its bands
/// and its format.
Picture FilterAreas(const std::vector<Picture>& inputs, int margin, AreaFunction function);

/// The channels without alpha: 1 or 3.
int ColourBands(const Picture& picture);

/// The largest value of a channel: 255 or 65535.
double LargestValue(const Picture& picture);

using ValueFunction = std::function<double(double)>;

/// Maps each value of each colour channel, 0 to 1, by a table; what is outside 0 to 1 becomes 0 or 1. Alpha stays.
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
void MapColoursOfLines(VipsRegion* const* inputs, VipsRegion* output, Function& function)
{
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    const int colourBands = bands < 3 ? 1 : 3;
    constexpr double largest = sizeof(Sample) == 1 ? 255.0 : 65535.0;
    const int otherBands = inputs[1] ? inputs[1]->im->Bands : 0;
    for (int y = area.top; y < area.top + area.height; ++y) {
        const auto* in = reinterpret_cast<const Sample*>(VIPS_REGION_ADDR(inputs[0], area.left, y));
        const auto* other =
            inputs[1] ? reinterpret_cast<const float*>(VIPS_REGION_ADDR(inputs[1], area.left, y)) : nullptr;
        auto* out = reinterpret_cast<Sample*>(VIPS_REGION_ADDR(output, area.left, y));
        for (int x = area.left; x < area.left + area.width; ++x) {
            std::array<double, 3> colour{};
            for (int band = 0; band < colourBands; ++band) {
                colour[static_cast<size_t>(band)] = in[band] / largest;
            }
            function(colour, other, x, y);
            for (int band = 0; band < colourBands; ++band) {
                out[band] = SampleOf<Sample>(colour[static_cast<size_t>(band)], largest);
            }
            if (bands > colourBands) {
                out[colourBands] = in[colourBands];
            }
            in += bands;
            out += bands;
            other += otherBands;
        }
    }
}

/// Maps the colour of each pixel by `function(std::array<double, 3>& colour, const float* other, int x, int y)`, where
/// `colour` holds 0 to 1 (a grey picture: in its first value) and `other` points to the pixel of the floating-point
/// picture `other` of the same size. What is outside 0 to 1 becomes 0 or 1. Alpha stays.
template<typename Function>
Picture MapColours(const Picture& picture, const Picture* other, Function function)
{
    std::vector<Picture> inputs{picture};
    if (other) {
        inputs.push_back(*other);
    }
    if (HasSixteenBits(picture)) {
        return FilterAreas(inputs, 0, [function](VipsRegion* const* regions, VipsRegion* output) {
            MapColoursOfLines<std::uint16_t>(regions, output, function);
        });
    }
    return FilterAreas(inputs, 0, [function](VipsRegion* const* regions, VipsRegion* output) {
        MapColoursOfLines<std::uint8_t>(regions, output, function);
    });
}

/// The same by `function(std::array<double, 3>& colour)`.
template<typename Function>
Picture MapColours(const Picture& picture, Function function)
{
    return MapColours(picture, nullptr,
                      [function](std::array<double, 3>& colour, const float*, int, int) { function(colour); });
}

} // namespace BatchWorker
