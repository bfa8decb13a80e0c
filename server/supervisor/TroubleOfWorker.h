#pragma once

#include "RunPlan.h"
#include "WorkerProcess.h"

/// What a worker's report of a failure means. The worker is not trusted: a report that makes no sense is a failure of
/// the processing, and its texts are cut to a line.
Trouble TroubleOfReport(const BatchServer::Report& report);

/// What the end of a worker over a picture means. `text` is what is known of the end.
Trouble TroubleOfEnd(WorkerEnd reason, const QString& text, const BatchServer::ServerLimits& limits);
