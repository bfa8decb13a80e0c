// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RowReduction.h"

#include "ByteRows.h"
#include "ReductionNode.h"

#include "server/worker/pixels/SampleRange.h"
#include "server/worker/pixels/VectorCode.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace BatchWorker {

namespace {

/// Makes a row of `count` values from plan.taps old ones, which follow `stride` values apart.
template<typename Sample>
BATCH_VECTOR_CODE void ReduceRow(const float* weights, int taps, const Sample* source, std::ptrdiff_t stride, int count,
                                 Sample* target)
{
    constexpr int atOnce = 256;
    std::array<float, atOnce> sums;
    for (int begin = 0; begin < count; begin += atOnce) {
        const int size = std::min(atOnce, count - begin);
        sums.fill(0.0F);
        for (int tap = 0; tap < taps; ++tap) {
            const float weight = weights[tap];
            const Sample* const old = source + tap * stride + begin;
            for (int i = 0; i < size; ++i) {
                sums[std::size_t(i)] += weight * float(old[i]);
            }
        }
        for (int i = 0; i < size; ++i) {
            target[begin + i] = Rounded<Sample>(sums[std::size_t(i)]);
        }
    }
}

template<typename Sample>
void Reduce(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output)
{
    const VipsRect& area = output->valid;
    const int count = area.width * output->im->Bands;
    const std::ptrdiff_t stride = VIPS_REGION_LSKIP(input) / std::ptrdiff_t(sizeof(Sample));
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
        const int first = plan.firsts[std::size_t(y)];
        ReduceRow(plan.Weights(y), plan.taps,
                  reinterpret_cast<const Sample*>(VIPS_REGION_ADDR(input, area.left, first)), stride, count,
                  reinterpret_cast<Sample*>(VIPS_REGION_ADDR(output, area.left, y)));
    }
}

void ReduceBytes(const ReductionPlan& plan, VipsRegion* input, VipsRegion* output)
{
    const VipsRect& area = output->valid;
    const ByteRows rows(plan, area.width * output->im->Bands);
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
        const int first = plan.firsts[std::size_t(y)];
        rows.Reduce(y, VIPS_REGION_ADDR(input, area.left, first), std::ptrdiff_t(VIPS_REGION_LSKIP(input)),
                    VIPS_REGION_ADDR(output, area.left, y));
    }
}

struct Rows
{
    static VipsRect Needed(const ReductionPlan& plan, const VipsRect& area)
    {
        const int first = plan.firsts[std::size_t(area.top)];
        return {area.left, first, area.width, plan.End(VIPS_RECT_BOTTOM(&area) - 1) - first};
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

Picture WithFewerRows(const Picture& picture, int height)
{
    return ReducedPicture(picture, QSize(picture.width(), height),
                          KnownReductionPlan(picture.height(), height, ReductionPlan::Arithmetic::OfLibrary),
                          GenerateReduced<Rows>);
}

} // namespace BatchWorker
