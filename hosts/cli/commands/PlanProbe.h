// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/terminal/StatusLine.h"
#include "job/plan/RunPlan.h"

#include <QHash>
#include <QSize>

class ZTBatchDocument;

namespace BatchCli {

/// What workers have found in the inputs of a job, beyond what its plan needs.
struct PlanProbe
{
    QHash<int, QSize> sizes;                  ///< upright, of the files that could be read
    QHash<int, BatchJob::Trouble> unreadable; ///< files that the plan does not ask about, but that cannot be read
    QString problem;                          ///< why there are no sizes, if nobody could look
};

/// Has workers look at the files that `plan` asks about, and for sizes at all others too. Shows progress. Throws
/// RequestError when the plan needs workers and none can be started.
PlanProbe ProbeInputs(BatchJob::RunPlan& plan, const ZTBatchDocument& job, bool withSizes, bool isVerbose,
                      StatusLine& line);

} // namespace BatchCli
