// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blending.h"

#include "server/worker/pixels/GeneratedPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

using namespace BatchJob;

namespace BatchWorker {

namespace {

using BatchJob::Blending;

float Screen(float backdrop, float source)
{
    return backdrop + source - backdrop * source;
}

float HardLight(float backdrop, float source)
{
    return source <= 0.5f ? backdrop * 2 * source : Screen(backdrop, 2 * source - 1);
}

float SoftLight(float backdrop, float source)
{
    if (source <= 0.5f) {
        return backdrop - (1 - 2 * source) * backdrop * (1 - backdrop);
    }
    const float lifted = backdrop <= 0.25f ? ((16 * backdrop - 12) * backdrop + 4) * backdrop : std::sqrt(backdrop);
    return backdrop + (2 * source - 1) * (lifted - backdrop);
}

// The mode is a template argument, so that loops over pixels do not branch on it.
template<Blending mode>
float Blended(float backdrop, float source)
{
    switch (mode) {
    case Blending::Normal:
        return source;
    case Blending::Multiply:
        return backdrop * source;
    case Blending::Screen:
        return Screen(backdrop, source);
    case Blending::Overlay:
        return HardLight(source, backdrop);
    case Blending::Darken:
        return std::min(backdrop, source);
    case Blending::Lighten:
        return std::max(backdrop, source);
    case Blending::SoftLight:
        return SoftLight(backdrop, source);
    case Blending::HardLight:
        return HardLight(backdrop, source);
    case Blending::Difference:
        return std::abs(backdrop - source);
    }
    return source;
}

struct LayerLines
{
    int colourBands;
    bool layerHasAlpha;
    float opacity;
};

template<typename T, Blending mode>
void BlendLine(T* result, const T* backdrop, const T* layer, const float* coverage, int width, const LayerLines& lines)
{
    constexpr float full = std::numeric_limits<T>::max();
    const int colourBands = lines.colourBands;
    for (int x = 0; x < width; ++x) {
        float alpha = *coverage * lines.opacity;
        if (lines.layerHasAlpha) {
            alpha *= layer[colourBands] / full;
        }
        const float backdropAlpha = backdrop[colourBands] / full;
        const float resultAlpha = alpha + backdropAlpha * (1 - alpha);
        if (alpha <= 0) {
            std::copy(backdrop, backdrop + colourBands + 1, result);
        } else {
            for (int band = 0; band < colourBands; ++band) {
                const float below = backdrop[band] / full;
                const float above = layer[band] / full;
                const float blended = (1 - backdropAlpha) * above + backdropAlpha * Blended<mode>(below, above);
                const float composed = alpha * blended + (1 - alpha) * backdropAlpha * below;
                result[band] = static_cast<T>(std::clamp(composed / resultAlpha, 0.0f, 1.0f) * full + 0.5f);
            }
            result[colourBands] = static_cast<T>(std::clamp(resultAlpha, 0.0f, 1.0f) * full + 0.5f);
        }
        result += colourBands + 1;
        backdrop += colourBands + 1;
        layer += colourBands + (lines.layerHasAlpha ? 1 : 0);
        ++coverage;
    }
}

constexpr int modeCount = int(Blending::Difference) + 1;

template<typename T>
using LineFunction = void (*)(T*, const T*, const T*, const float*, int, const LayerLines&);

template<typename T, int... modes>
LineFunction<T> LineFunctionOf(Blending mode, std::integer_sequence<int, modes...>)
{
    constexpr std::array functions{&BlendLine<T, Blending(modes)>...};
    return functions[std::size_t(mode)];
}

template<typename T>
FillArea BlendAreas(Blending mode, const LayerLines& lines)
{
    const LineFunction<T> blendLine = LineFunctionOf<T>(mode, std::make_integer_sequence<int, modeCount>());
    return [blendLine, lines](VipsRegion* target, const std::vector<VipsRegion*>& inputs) {
        const VipsRect& area = target->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            blendLine(PixelAt<T>(target, area.left, y), PixelAt<T>(inputs[1], area.left, y),
                      PixelAt<T>(inputs[0], area.left, y), PixelAt<float>(inputs[2], area.left, y), area.width, lines);
        }
    };
}

template<int... modes>
float BlendedValueOf(Blending mode, float backdrop, float source, std::integer_sequence<int, modes...>)
{
    constexpr std::array functions{&Blended<Blending(modes)>...};
    return functions[std::size_t(mode)](backdrop, source);
}

} // namespace

Picture Blend(const Picture& backdrop, const Picture& layer, const Picture& coverage, double opacity, Blending mode)
{
    const LayerLines lines{backdrop.bands() - 1, layer.bands() == backdrop.bands(), static_cast<float>(opacity)};
    const PictureShape shape{backdrop.width(), backdrop.height(), backdrop.bands(), backdrop.format(),
                             layer.interpretation()};
    const bool isDeep = backdrop.format() == VIPS_FORMAT_USHORT;
    return GeneratePicture(shape, {layer, backdrop, coverage},
                           isDeep ? BlendAreas<std::uint16_t>(mode, lines) : BlendAreas<std::uint8_t>(mode, lines));
}

float BlendedValue(Blending mode, float backdrop, float source)
{
    return BlendedValueOf(mode, backdrop, source, std::make_integer_sequence<int, modeCount>());
}

} // namespace BatchWorker
