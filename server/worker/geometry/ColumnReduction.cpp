// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColumnReduction.h"

#include "ByteColumns.h"
#include "ReductionNode.h"

#include "server/worker/pixels/SampleRange.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace BatchWorker {

namespace {

constexpr int bandsAtOnce = 4;

/// Reduces a line of pixels, `count` bands of each.
template<typename Sample, int count>
class LineReduction
{
public:
    explicit LineReduction(int columns)
        : pixels(std::size_t(columns))
    {
    }

    /// `from` is the first of the old columns, the next ones follow at a distance of `step` samples.
    void Take(const Sample* from, int step)
    {
        for (Pixel& pixel : pixels) {
            pixel = Pixel{};
            for (int band = 0; band < count; ++band) {
                pixel[band] = float(from[band]);
            }
            from += step;
        }
    }

    /// Writes the new column `column` of the plan to `to`; `first` is the place of its first old one in the line.
    void Give(const ReductionPlan& plan, int column, int first, Sample* to) const
    {
        const float* const weights = plan.Weights(column);
        const Pixel* const old = &pixels[std::size_t(first)];
        Pixel sum{};
        for (int tap = 0; tap < plan.taps; ++tap) {
            sum += weights[tap] * old[tap];
        }
        for (int band = 0; band < count; ++band) {
            to[band] = Rounded<Sample>(sum[band]);
        }
    }

private:
    /// What the processor takes at a time.
    using Pixel = float __attribute__((vector_size(bandsAtOnce * sizeof(float))));

    std::vector<Pixel> pixels;
};

/// Reduces some bands, from `band` on, of the area that `output` asks for.
template<typename Sample, int count>
void ReduceBands(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output, int band)
{
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    const int firstOld = plan.firsts[std::size_t(area.left)];
    const int endOld = plan.End(VIPS_RECT_RIGHT(&area) - 1);
    LineReduction<Sample, count> line(endOld - firstOld);
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
        line.Take(reinterpret_cast<const Sample*>(VIPS_REGION_ADDR(input, firstOld, y)) + band, bands);
        auto* to = reinterpret_cast<Sample*>(VIPS_REGION_ADDR(output, area.left, y)) + band;
        for (int x = area.left; x < VIPS_RECT_RIGHT(&area); ++x) {
            line.Give(plan, x, plan.firsts[std::size_t(x)] - firstOld, to);
            to += bands;
        }
    }
}

template<typename Sample>
void Reduce(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output)
{
    const int bands = output->im->Bands;
    for (int band = 0; band < bands; band += bandsAtOnce) {
        switch (std::min(bands - band, bandsAtOnce)) {
        case 1:
            ReduceBands<Sample, 1>(plan, input, output, band);
            break;
        case 2:
            ReduceBands<Sample, 2>(plan, input, output, band);
            break;
        case 3:
            ReduceBands<Sample, 3>(plan, input, output, band);
            break;
        default:
            ReduceBands<Sample, bandsAtOnce>(plan, input, output, band);
            break;
        }
    }
}

void ReduceBytes(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output)
{
    const VipsRect& area = output->valid;
    const int firstOld = plan.firsts[std::size_t(area.left)];
    const int bottom = VIPS_RECT_BOTTOM(&area) - 1;
    ByteColumns columns(plan, area.left, VIPS_RECT_RIGHT(&area), output->im->Bands);
    for (int y = area.top; y <= bottom; y += 2) {
        const int next = std::min(y + 1, bottom);
        columns.Reduce({VIPS_REGION_ADDR(input, firstOld, y), VIPS_REGION_ADDR(input, firstOld, next)},
                       {VIPS_REGION_ADDR(output, area.left, y), VIPS_REGION_ADDR(output, area.left, next)});
    }
}

struct Columns
{
    static VipsRect Needed(const ReductionPlan& plan, const VipsRect& area)
    {
        const int first = plan.firsts[std::size_t(area.left)];
        return {first, area.top, plan.End(VIPS_RECT_RIGHT(&area) - 1) - first, area.height};
    }

    static void OfBytes(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output)
    {
        ReduceBytes(plan, input, output);
    }

    template<typename Sample>
    static void Of(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output)
    {
        Reduce<Sample>(plan, input, output);
    }
};

} // namespace

Picture WithFewerColumns(const Picture& picture, int width)
{
    return ReducedPicture(picture, QSize(width, picture.height()),
                          KnownReductionPlan(picture.width(), width, ReductionPlan::Arithmetic::Exact),
                          GenerateReduced<Columns>);
}

} // namespace BatchWorker
