// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunResults.h"

#include "job/values/Phrase.h"

#include "ZTBatchMessage.h"

#include <numeric>

namespace BatchHost {

FileResult StrictResult(const FileResult& result)
{
    FileResult strict = result;
    if (HasResult(result.kind) && !result.warnings.isEmpty()) {
        strict.kind = FileResult::Kind::Failed;
        strict.reason = BatchJob::Phrase::English("written with a warning: %1")
                            .arg(BatchJob::TextsOf(result.warnings).join(QStringLiteral("; ")));
    }
    return strict;
}

int RunEnd::WarningCount() const
{
    return std::accumulate(warnings.begin(), warnings.end(), 0);
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
    return written + unchanged == files ? RunOutcome::Complete : RunOutcome::Incomplete;
}

} // namespace BatchHost
