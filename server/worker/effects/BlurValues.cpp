// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BlurValues.h"

#include "Luma.h"

#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/VectorCode.h"

#include <cstdint>

namespace BatchWorker {

namespace {

template<typename Sample>
BATCH_VECTOR_CODE void Convert(const Sample* samples, int count, float* values)
{
    for (int i = 0; i < count; ++i) {
        values[i] = static_cast<float>(samples[i]);
    }
}

template<typename Sample, int colours>
BATCH_VECTOR_CODE void Weight(const Sample* samples, int count, float largest, float* values)
{
    const float share = 1.0F / largest;
    for (int i = 0; i < count; ++i) {
        const auto alpha = static_cast<float>(samples[colours]);
        for (int band = 0; band < colours; ++band) {
            values[band] = static_cast<float>(samples[band]) * (alpha * share);
        }
        values[colours] = alpha;
        samples += colours + 1;
        values += colours + 1;
    }
}

template<typename Sample>
BATCH_VECTOR_CODE void SumUpLuma(const Sample* samples, int count, float* values)
{
    for (int i = 0; i < count; ++i, samples += 3) {
        values[i] = LumaOf(samples[0], samples[1], samples[2]);
    }
}

template<typename Sample>
BATCH_VECTOR_CODE void WeightLuma(const Sample* samples, int count, float largest, float* values)
{
    const float share = 1.0F / largest;
    for (int i = 0; i < count; ++i, samples += 4, values += 2) {
        const auto alpha = static_cast<float>(samples[3]);
        values[0] = LumaOf(samples[0], samples[1], samples[2]) * (alpha * share);
        values[1] = alpha;
    }
}

template<int colours>
BATCH_VECTOR_CODE void Straighten(float* values, int count, float largest)
{
    for (int i = 0; i < count; ++i, values += colours + 1) {
        const float factor = values[colours] > 0.0F ? largest / values[colours] : 0.0F;
        for (int band = 0; band < colours; ++band) {
            values[band] *= factor;
        }
    }
}

BATCH_VECTOR_CODE void StraightenLuma(float* values, int count, float largest)
{
    for (int i = 0; i < count; ++i) {
        const float factor = values[2 * i + 1] > 0.0F ? largest / values[2 * i + 1] : 0.0F;
        values[i] = values[2 * i] * factor;
    }
}

template<typename Sample>
void LoadSamples(const Sample* samples, int count, int bands, bool isLuma, float largest, float* values)
{
    switch (bands) {
    case 2:
        return Weight<Sample, 1>(samples, count, largest, values);
    case 3:
        return isLuma ? SumUpLuma(samples, count, values) : Convert(samples, 3 * count, values);
    case 4:
        return isLuma ? WeightLuma(samples, count, largest, values)
                      : Weight<Sample, 3>(samples, count, largest, values);
    default:
        return Convert(samples, count, values);
    }
}

} // namespace

BlurValues::BlurValues(const Picture& picture, BlurSubject subject)
    : bands(picture.bands())
    , channels(bands)
    , pixelSize(static_cast<int>(VIPS_IMAGE_SIZEOF_PEL(picture.get_image())))
    , hasAlpha(subject != BlurSubject::Bands && picture.has_alpha())
    , largest(static_cast<float>(LargestValue(picture)))
    , format(picture.format())
    , subject(subject)
{
    if (subject == BlurSubject::Luma) {
        channels = hasAlpha ? 2 : 1;
    }
}

void BlurValues::Load(const VipsPel* pixels, int count, float* values) const
{
    const void* const samples = pixels;
    const bool isLuma = subject == BlurSubject::Luma;
    if (subject == BlurSubject::Bands) {
        Convert(static_cast<const float*>(samples), count * bands, values);
    } else if (format == VIPS_FORMAT_USHORT) {
        LoadSamples(static_cast<const std::uint16_t*>(samples), count, bands, isLuma, largest, values);
    } else {
        LoadSamples(static_cast<const std::uint8_t*>(samples), count, bands, isLuma, largest, values);
    }
}

void BlurValues::Finish(float* values, int count) const
{
    if (!hasAlpha) {
        return;
    }
    if (subject == BlurSubject::Luma) {
        StraightenLuma(values, count, largest);
    } else if (channels == 2) {
        Straighten<1>(values, count, largest);
    } else {
        Straighten<3>(values, count, largest);
    }
}

} // namespace BatchWorker
