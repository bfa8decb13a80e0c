// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"

#include "hosts/cli/options/RunOptions.h"
#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

using namespace BatchHost;

namespace BatchCli {

ExitCode DryRun(const ParsedArguments& arguments)
{
    for (const char* option : {"--resume", "--report"}) {
        if (arguments.Has(QLatin1String(option))) {
            throw RequestError{BatchJob::Phrase::English("--dry-run and %1 cannot be combined; remove one of them")
                                   .arg(QLatin1String(option))};
        }
    }
    ApplyServerLimits(arguments);
    return PlanJob(arguments);
}

} // namespace BatchCli
