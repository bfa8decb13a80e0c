// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ReductionPlan.h"

#include "server/worker/pixels/Picture.h"

#include <QSize>

#include <cstdint>
#include <memory>

namespace BatchWorker {

/// A picture of `size` whose areas `generate` makes from a region of `picture`; its client is the plan, which lives as
/// long as the picture. Throws vips::VError.
Picture ReducedPicture(const Picture& picture, const QSize& size, std::shared_ptr<const ReductionPlan> plan,
                       VipsGenerateFn generate);

/// Such a function. `Lines`, rows or columns, says which area of the input is Needed(), and makes lines OfBytes() or
/// Of() other samples.
template<typename Lines>
int GenerateReduced(VipsRegion* output, void* sequence, void*, void* client, gboolean*)
{
    const auto& plan = *static_cast<const ReductionPlan*>(client);
    auto* const input = static_cast<VipsRegion*>(sequence);
    const VipsRect needed = Lines::Needed(plan, output->valid);
    if (vips_region_prepare(input, &needed) != 0) {
        return -1;
    }
    switch (output->im->BandFmt) {
    case VIPS_FORMAT_UCHAR:
        Lines::OfBytes(plan, input, output);
        break;
    case VIPS_FORMAT_USHORT:
        Lines::template Of<std::uint16_t>(plan, input, output);
        break;
    default:
        Lines::template Of<float>(plan, input, output);
        break;
    }
    return 0;
}

/// The plan of that reduction. The pictures of a job often have the same size, so the latest plans are kept.
std::shared_ptr<const ReductionPlan> KnownReductionPlan(int oldCount, int newCount,
                                                        ReductionPlan::Arithmetic arithmetic);

} // namespace BatchWorker
