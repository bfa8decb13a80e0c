#pragma once

#include "RunPlan.h"

#include "server/protocol/WorkerProcess.h"

namespace BatchSupervisor {

/// What a worker's report of a failure means. The worker is not trusted: a report that makes no sense is a failure of
/// the processing, and its texts are cut to a line.
Trouble TroubleOfReport(const BatchProtocol::Report& report);

/// What the end of a worker over a picture means. `text` is what is known of the end.
Trouble TroubleOfEnd(BatchProtocol::WorkerEnd reason, const QString& text, const BatchProtocol::ServerLimits& limits);

} // namespace BatchSupervisor
