#include "RunResults.h"

#include "ZTBatchMessage.h"

namespace BatchHost {

RunOutcome RunEnd::Outcome() const
{
    switch (jobErrorCode) {
    case ZTBatchMessage::NoError:
        break;
    case ZTBatchMessage::NoAdjustmentManager:
        return RunOutcome::NoWorkers;
    default:
        return RunOutcome::Refused;
    }
    if (isServerLost) {
        return RunOutcome::ServerLost;
    }
    if (isCancelled) {
        return RunOutcome::Cancelled;
    }
    return written == files ? RunOutcome::Complete : RunOutcome::Incomplete;
}

} // namespace BatchHost
