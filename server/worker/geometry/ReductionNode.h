// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ReductionPlan.h"

#include "server/worker/pixels/Picture.h"

#include <QSize>

#include <memory>

namespace BatchWorker {

/// A picture of `size` whose areas `generate` makes from a region of `picture`; its client is the plan, which lives as
/// long as the picture. Throws vips::VError.
Picture ReducedPicture(const Picture& picture, const QSize& size, std::shared_ptr<const ReductionPlan> plan,
                       VipsGenerateFn generate);

/// The plan of that reduction. The pictures of a job often have the same size, so the latest plans are kept.
std::shared_ptr<const ReductionPlan> KnownReductionPlan(int oldCount, int newCount,
                                                        ReductionPlan::Arithmetic arithmetic);

} // namespace BatchWorker
