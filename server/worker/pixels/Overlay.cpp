// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Overlay.h"

#include "PixelFilter.h"

#include <cstring>
#include <memory>

namespace BatchWorker {

namespace {

template<typename Sample>
void PutOverPixel(const std::uint8_t* top, double opacity, Sample* pixel, int bands)
{
    constexpr double largest = sizeof(Sample) == 1 ? 255.0 : 65535.0;
    const int colourBands = bands < 3 ? 1 : 3;
    const double above = top[3] / 255.0 * opacity;
    const double below = (bands > colourBands ? pixel[colourBands] / largest : 1.0) * (1.0 - above);
    const double whole = above + below;
    if (above <= 0.0) {
        return;
    }
    for (int band = 0; band < colourBands; ++band) {
        const double value = (above * top[band] / 255.0 + below * pixel[band] / largest) / whole;
        pixel[band] = SampleOf<Sample>(value, largest);
    }
    if (bands > colourBands) {
        pixel[colourBands] = SampleOf<Sample>(whole, largest);
    }
}

template<typename Sample>
void PutOverArea(const Overlay& overlay, const OverlayPlace& place, VipsRegion* input, VipsRegion* output)
{
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    for (int y = area.top; y < area.top + area.height; ++y) {
        auto* out = PixelAt<Sample>(output, area.left, y);
        std::memcpy(out, VIPS_REGION_ADDR(input, area.left, y), VIPS_REGION_SIZEOF_LINE(output));
        const int row = place.down.Inside(y);
        if (row < 0) {
            continue;
        }
        for (int x = area.left; x < area.left + area.width; ++x, out += bands) {
            const int column = place.across.Inside(x);
            if (column >= 0) {
                const size_t pixel =
                    static_cast<size_t>(row) * static_cast<size_t>(overlay.width) + static_cast<size_t>(column);
                PutOverPixel(&overlay.pixels[4 * pixel], place.opacity, out, bands);
            }
        }
    }
}

} // namespace

int OverlaySpan::Inside(int at) const
{
    int offset = at - start;
    if (period > 0) {
        offset %= period;
        offset = offset < 0 ? offset + period : offset;
    }
    return offset < length ? offset : -1;
}

Picture Overlaid(const Picture& picture, const Overlay& overlay, const OverlayPlace& place)
{
    // Functions of areas are copied; the pixels are not.
    const auto shared = std::make_shared<const Overlay>(overlay);
    const bool isDeep = HasSixteenBits(picture);
    const auto putOver = [shared, place, isDeep](VipsRegion* target, const std::vector<VipsRegion*>& inputs) {
        if (isDeep) {
            PutOverArea<std::uint16_t>(*shared, place, inputs[0], target);
        } else {
            PutOverArea<std::uint8_t>(*shared, place, inputs[0], target);
        }
    };
    return GeneratePicture(ShapeOf(picture), {picture}, putOver);
}

} // namespace BatchWorker
