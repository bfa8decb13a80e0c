// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunCode.h"

#include "hosts/cli/options/PolicyArguments.h"

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

ExitCode CodeOf(RunOutcome outcome)
{
    switch (outcome) {
    case RunOutcome::Complete:
        return ExitCode::Done;
    case RunOutcome::Incomplete:
        return ExitCode::Incomplete;
    case RunOutcome::Refused:
        return ExitCode::Usage;
    case RunOutcome::NoWorkers:
    case RunOutcome::ServerLost:
        return ExitCode::ServerLost;
    case RunOutcome::Cancelled:
        return ExitCode::Cancelled;
    }
    return ExitCode::ServerLost;
}

/// Whether every picture was written, or left out as an option says.
bool IsAsWanted(const RunEnd& end, const ParsedArguments& arguments)
{
    const QList<BatchJob::PolicyKind> kinds = end.unwritten.keys();
    return end.NotProcessed() == 0 && std::all_of(kinds.begin(), kinds.end(), [&arguments](BatchJob::PolicyKind kind) {
               return kind != BatchJob::PolicyKind::None && AreLeftOut(arguments, kind);
           });
}

} // namespace

ExitCode CodeOf(const RunEnd& end, const ParsedArguments& arguments, int problems, bool isReportMissing)
{
    const bool isDone = end.Outcome() == RunOutcome::Incomplete && IsAsWanted(end, arguments);
    const ExitCode code = isDone ? ExitCode::Done : CodeOf(end.Outcome());
    if (isReportMissing) {
        return std::max(code, ExitCode::Incomplete);
    }
    return code == ExitCode::Done && problems > 0 ? ExitCode::Incomplete : code;
}

} // namespace BatchCli
