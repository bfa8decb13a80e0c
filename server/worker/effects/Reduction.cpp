// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Reduction.h"

#include "server/worker/pixels/FilledPicture.h"
#include "server/worker/pixels/VectorCode.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace BatchWorker {

namespace {

BATCH_VECTOR_CODE void AddTo(float* sums, const float* values, int count, float weight)
{
    for (int i = 0; i < count; ++i) {
        sums[i] += weight * values[i];
    }
}

/// How many places of a block that begins at `begin` show the one at `place`, in a row or column of `length`: one at
/// the end is shown by all those beyond it too.
float TimesInBlock(int place, int begin, int factor, int length)
{
    const int last = begin + factor - 1;
    const int from = place == 0 ? begin : std::max(begin, place);
    const int to = place == length - 1 ? last : std::min(last, place);
    return static_cast<float>(to - from + 1);
}

class BlockMeans : public AreaFiller
{
public:
    BlockMeans(const Picture& picture, const BlurValues& values, int factor)
        : width(picture.width())
        , height(picture.height())
        , factor(factor)
        , values(values)
        , sums(static_cast<std::size_t>(width * values.Channels()))
        , line(sums.size())
    {
    }

    bool Fill(VipsRegion* target, VipsRegion* source) override
    {
        const VipsRect& area = target->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            if (!SumUpRows(source, (y - 1) * factor)) {
                return false;
            }
            for (int x = area.left; x < area.left + area.width; ++x) {
                MakeMeans((x - 1) * factor, PixelAt<float>(target, x, y));
            }
        }
        return true;
    }

private:
    // Sums up the rows of a block; beyond the picture they are those at its edge.
    bool SumUpRows(VipsRegion* source, int top)
    {
        std::fill(sums.begin(), sums.end(), 0.0F);
        const int first = std::clamp(top, 0, height - 1);
        const int last = std::clamp(top + factor - 1, 0, height - 1);
        const VipsRect needed{0, first, width, last - first + 1};
        if (vips_region_prepare(source, &needed) != 0) {
            return false;
        }
        for (int y = first; y <= last; ++y) {
            values.Load(VIPS_REGION_ADDR(source, 0, y), width, line.data());
            AddTo(sums.data(), line.data(), static_cast<int>(sums.size()), TimesInBlock(y, top, factor, height));
        }
        return true;
    }

    void MakeMeans(int left, float* means) const
    {
        const int channels = values.Channels();
        const float share = 1.0F / (static_cast<float>(factor) * static_cast<float>(factor));
        const int first = std::clamp(left, 0, width - 1);
        const int last = std::clamp(left + factor - 1, 0, width - 1);
        for (int channel = 0; channel < channels; ++channel) {
            const float* const sum = sums.data() + channel;
            float mean = 0.0F;
            for (int x = first; x <= last; ++x) {
                mean += TimesInBlock(x, left, factor, width) * sum[x * channels];
            }
            means[channel] = mean * share;
        }
    }

    int width;
    int height;
    int factor;
    BlurValues values;
    std::vector<float> sums;
    std::vector<float> line;
};

} // namespace

Picture ReducedByBlocks(const Picture& picture, const BlurValues& values, int factor)
{
    const auto blocks = [factor](int length) { return (length + factor - 1) / factor + 2; };
    const PictureShape shape{blocks(picture.width()), blocks(picture.height()), values.Channels(), VIPS_FORMAT_FLOAT,
                             VIPS_INTERPRETATION_MULTIBAND};
    return FilledPicture(shape, picture, VIPS_DEMAND_STYLE_FATSTRIP,
                         [=] { return std::make_unique<BlockMeans>(picture, values, factor); });
}

} // namespace BatchWorker
