#include "CommandFunctions.h"

#include "hosts/cli/options/RunOptions.h"
#include "hosts/common/RequestError.h"

using namespace BatchHost;

namespace BatchCli {

ExitCode DryRun(const ParsedArguments& arguments)
{
    for (const char* option : {"--resume", "--report"}) {
        if (arguments.Has(QLatin1String(option))) {
            throw RequestError{
                QStringLiteral("--dry-run and %1 cannot be combined; remove one of them").arg(QLatin1String(option))};
        }
    }
    ApplyServerLimits(arguments);
    return PlanJob(arguments);
}

} // namespace BatchCli
