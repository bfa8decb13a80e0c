#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "RunMessages.h"
#include "RunOutput.h"
#include "RunPolicies.h"

#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/InteractiveRun.h"
#include "hosts/cli/terminal/Startup.h"
#include "hosts/common/JobRun.h"
#include "hosts/common/JournaledJob.h"
#include "hosts/common/RequestError.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

/// Whether `arguments` describe a job, beyond where its results go.
bool IsJobGiven(const ParsedArguments& arguments)
{
    const auto isGiven = [&arguments](const OptionInfo& option) {
        return option.name != QLatin1String("--output") && arguments.Has(option.name);
    };
    const QVector<OptionInfo> ofJob = OptionsOfJobs();
    return !arguments.inputs.isEmpty() || std::any_of(ofJob.begin(), ofJob.end(), isGiven);
}

JournaledJob JournaledJobOf(ZTBatchDocument& job, const ParsedArguments& arguments)
{
    if (arguments.Has(QStringLiteral("--resume"))) {
        const QString folder = job.GetOutputSettings()->GetPath();
        if (folder.isEmpty()) {
            throw RequestError{QStringLiteral("no output folder"), RequestError::Kind::NoOutputFolder};
        }
        const InterruptedRuns runs(folder);
        TellIgnoredJournals(runs);
        return JournaledJob::Interrupted(job, runs, IsJobGiven(arguments));
    }
    JournaledJob journaled = JournaledJob::New(job);
    if (journaled.StartsAnew()) {
        TellOfInterruptedRun();
    }
    return journaled;
}

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

/// The exit code of a run that has ended with `outcome`, when `problems` inputs could not be collected.
ExitCode CodeOf(RunOutcome outcome, int problems, bool isReportMissing)
{
    const ExitCode code = CodeOf(outcome);
    if (isReportMissing) {
        return std::max(code, ExitCode::Incomplete);
    }
    return code == ExitCode::Done && problems > 0 ? ExitCode::Incomplete : code;
}

} // namespace

ExitCode RunJob(const ParsedArguments& arguments)
{
    if (arguments.Has(QStringLiteral("--dry-run"))) {
        return DryRun(arguments);
    }
    OutliveReaders();
    // Wrong options are reported before folders are read, which may take long.
    CheckPolicyOptions(arguments);
    ApplyServerLimits(arguments);
    const QString settingsFolder = SettingsFolder(arguments);
    RunOutput output(arguments);

    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    ZTBatchDocument job;
    const InputLosses losses = BuildJob(job, arguments, savedJob, inputs);

    // From the first lock and folder to the last.
    InterruptWatcher interrupts;
    JournaledJob journaled = JournaledJobOf(job, arguments);
    RunEnd end;
    {
        JobRun run(settingsFolder);
        if (run.WhatPrevents() != JobRun::Obstacle::None) {
            TellObstacle(run);
            return ExitCode::ServerLost;
        }
        const BatchJob::PolicyValues policies = PoliciesOfRun(arguments, journaled, settingsFolder);
        const auto controller = run.Prepare(
            job, journaled, {policies, arguments.Has(QStringLiteral("--strict")), losses.leftOut}, output.Observers());
        TellMissingJournal(journaled);
        end = RunInteractively(*controller, output.Display(), interrupts);
    }
    journaled.End(end);
    TellHowToResume(journaled, end, output.IsQuiet());
    TellTroubleOfServer(end);
    const bool isReportMissing = !output.WriteReportError();
    const ExitCode code = CodeOf(end.Outcome(), losses.problems, isReportMissing);
    interrupts.Finish(code);
    return code;
}

} // namespace BatchCli
