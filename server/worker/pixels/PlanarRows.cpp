// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlanarRows.h"

#include "VectorCode.h"

#include <cstddef>

namespace BatchWorker {

namespace {

template<typename Sample>
BATCH_VECTOR_CODE void SplitGrey(const Sample* __restrict pixels, Sample* __restrict grey, int count)
{
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        grey[i] = pixels[2 * i];
    }
}

template<typename Sample>
BATCH_VECTOR_CODE void JoinGrey(const Sample* __restrict grey, const Sample* __restrict pixels,
                                Sample* __restrict result, int count)
{
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        result[2 * i] = grey[i];
        result[2 * i + 1] = pixels[2 * i + 1];
    }
}

template<typename Sample, int bands>
BATCH_VECTOR_CODE void SplitRgb(const Sample* __restrict pixels, Sample* __restrict red, Sample* __restrict green,
                                Sample* __restrict blue, int count)
{
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        red[i] = pixels[bands * i];
        green[i] = pixels[bands * i + 1];
        blue[i] = pixels[bands * i + 2];
    }
}

template<typename Sample>
BATCH_VECTOR_CODE void JoinRgb(const Sample* __restrict red, const Sample* __restrict green,
                               const Sample* __restrict blue, Sample* __restrict result, int count)
{
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        result[3 * i] = red[i];
        result[3 * i + 1] = green[i];
        result[3 * i + 2] = blue[i];
    }
}

template<typename Sample>
BATCH_VECTOR_CODE void JoinRgbAlpha(const Sample* __restrict red, const Sample* __restrict green,
                                    const Sample* __restrict blue, const Sample* __restrict pixels,
                                    Sample* __restrict result, int count)
{
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        result[4 * i] = red[i];
        result[4 * i + 1] = green[i];
        result[4 * i + 2] = blue[i];
        result[4 * i + 3] = pixels[4 * i + 3];
    }
}

} // namespace

template<typename Sample>
void SplitColours(const Sample* pixels, int bands, const PlanarPixels<Sample>& colours)
{
    const auto& [red, green, blue] = colours.planes;
    if (bands == 2) {
        SplitGrey(pixels, red, colours.count);
    } else if (bands == 3) {
        SplitRgb<Sample, 3>(pixels, red, green, blue, colours.count);
    } else {
        SplitRgb<Sample, 4>(pixels, red, green, blue, colours.count);
    }
}

template<typename Sample>
void JoinColours(const PlanarPixels<Sample>& colours, const Sample* pixels, int bands, Sample* result)
{
    const auto& [red, green, blue] = colours.planes;
    if (bands == 2) {
        JoinGrey(red, pixels, result, colours.count);
    } else if (bands == 3) {
        JoinRgb(red, green, blue, result, colours.count);
    } else {
        JoinRgbAlpha(red, green, blue, pixels, result, colours.count);
    }
}

template void SplitColours(const std::uint8_t*, int, const PlanarPixels<std::uint8_t>&);
template void SplitColours(const std::uint16_t*, int, const PlanarPixels<std::uint16_t>&);
template void JoinColours(const PlanarPixels<std::uint8_t>&, const std::uint8_t*, int, std::uint8_t*);
template void JoinColours(const PlanarPixels<std::uint16_t>&, const std::uint16_t*, int, std::uint16_t*);

} // namespace BatchWorker
