// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "PartNumber.h"
#include "RunCode.h"
#include "RunMessages.h"
#include "RunOutput.h"

#include "hosts/cli/options/PartOptions.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/InteractiveRun.h"
#include "hosts/cli/terminal/Startup.h"
#include "hosts/common/JobRun.h"
#include "hosts/common/Language.h"
#include "hosts/common/PartJob.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/options/Words.h"

#include "ZTBatchDocument.h"

#include <QCoreApplication>

using namespace BatchHost;

namespace BatchCli {

namespace {

/// Warns of versions that differ from those of the plan. Returns what to say of each picture that they make.
BatchJob::Warnings CheckMakers(const BatchJob::PartPlan& plan, const BatchJob::Versions& here,
                               const ParsedArguments& arguments)
{
    const QString difference = DifferenceOfMakers(plan, here);
    if (difference.isEmpty()) {
        return {};
    }
    if (arguments.Has(QStringLiteral("--same-versions"))) {
        throw RequestError{difference};
    }
    WriteErrorLine(QStringLiteral("velkora-batch: ") + WithFullStop(Translated(difference)));
    return {WarningOfMakers(here, plan.makers)};
}

} // namespace

ExitCode RunPart(const ParsedArguments& arguments)
{
    OutliveReaders();
    ApplyServerLimits(arguments);
    const QString path = AbsolutePath(arguments.Value(QStringLiteral("--plan")));
    const BatchJob::PartPlan plan = PlanIn(path);
    const int number = PartNumber(arguments, plan.parts.size());
    const FolderNames names(arguments.Values(QStringLiteral("--map")));
    const PartJob part(path, plan, number, names);
    part.CheckFiles();
    const BatchJob::Versions makers = MakersHere(QCoreApplication::applicationVersion());
    const BatchJob::Warnings ofEachResult = CheckMakers(plan, makers, arguments);
    RunOutput output(arguments);
    InterruptWatcher interrupts;
    ZTBatchDocument job;
    RunEnd end;
    {
        JobRun run(SettingsFolder(arguments));
        if (run.WhatPrevents() != JobRun::Obstacle::None) {
            TellObstacle(run);
            return ExitCode::ServerLost;
        }
        JournaledJob journaled = part.Begin(job, makers);
        const auto controller = run.Prepare(
            job, journaled, {plan.policies, arguments.Has(QStringLiteral("--strict")), {}, {}, ofEachResult},
            output.Observers());
        end = RunInteractively(*controller, output.Display(), interrupts);
    }
    TellTroubleOfServer(end);
    if (!end.IsFinished() && !output.IsQuiet()) {
        WriteErrorLine(
            Messages::tr("Part %1 of %2 is not done; run it again to go on.").arg(number).arg(plan.parts.size()));
    }
    const ExitCode code = CodeOf(end, WithPolicies(arguments, plan.said), 0, !output.WriteReportError());
    interrupts.Finish(code);
    return code;
}

} // namespace BatchCli
