// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkerProcess.h"

#include "job/plan/RunPlan.h"

namespace BatchProtocol {

/// `report`, a worker's report of a failure, as far as it can be trusted: a case without a matching error code becomes
/// a failure of the processing, and the texts become one line
/// of limited length each.
Report CheckedFailure(const Report& report);

/// The warnings of `report`, as far as they can be trusted: some, each on one line of limited length.
BatchJob::Warnings CheckedWarnings(const Report& report);

/// What `report` says of a picture that was written, as far as it can be true.
BatchJob::PictureFacts CheckedFacts(const Report& report);

/// The failure of a task over which its worker has ended. `text` is what is known of the end; `limits` are those of the
/// worker.
Report FailureOfEnd(WorkerEnd reason, const QString& text, const ServerLimits& limits);

/// What the report of a probe or of a failure says to the plan of a run.
BatchJob::ProbeResult ProbeResultOf(const Report& report);
BatchJob::Trouble TroubleOf(const Report& failure);

} // namespace BatchProtocol
