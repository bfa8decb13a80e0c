#include "TroubleOfWorker.h"

#include "server/protocol/TaskFailure.h"

using namespace BatchProtocol;

namespace BatchSupervisor {

Trouble TroubleOfReport(const Report& report)
{
    const Report failure = CheckedFailure(report);
    return {failure.failure, failure.errorCode, failure.reason, failure.nearestFormat, true};
}

Trouble TroubleOfEnd(WorkerEnd reason, const QString& text, const ServerLimits& limits)
{
    return TroubleOfReport(FailureOfEnd(reason, text, limits));
}

} // namespace BatchSupervisor
