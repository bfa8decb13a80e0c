#pragma once

#include "WorkerProcess.h"

namespace BatchProtocol {

/// `report`, a worker's report of a failure, as far as it can be trusted: a case without a matching error code becomes
/// a failure of the processing, and the reason becomes one line of limited length.
Report CheckedFailure(const Report& report);

/// The failure of a task over which its worker has ended. `text` is what is known of the end; `limits` are those of the
/// worker.
Report FailureOfEnd(WorkerEnd reason, const QString& text, const ServerLimits& limits);

} // namespace BatchProtocol
