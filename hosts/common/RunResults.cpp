#include "RunResults.h"

#include "ZTBatchMessage.h"

namespace BatchHost {

QString ResultWord(FileResult::Kind kind)
{
    switch (kind) {
    case FileResult::Kind::Written:
        return QStringLiteral("written");
    case FileResult::Kind::Skipped:
        return QStringLiteral("skipped");
    case FileResult::Kind::Failed:
        return QStringLiteral("failed");
    }
    return {};
}

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
