// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "RunCode.h"
#include "RunMessages.h"
#include "RunOutput.h"
#include "RunPolicies.h"

#include "hosts/cli/options/PartOptions.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/InteractiveRun.h"
#include "hosts/cli/terminal/Startup.h"
#include "hosts/common/JobRun.h"
#include "hosts/common/JournaledJob.h"
#include "hosts/common/RecordKeeper.h"
#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

const QString runOption = QStringLiteral("--run");

/// Whether `arguments` describe a job, beyond where its results go.
bool IsJobGiven(const ParsedArguments& arguments)
{
    const auto isGiven = [&arguments](const OptionInfo& option) {
        return option.name != QLatin1String("--output") && arguments.Has(option.name);
    };
    const QVector<OptionInfo> ofJob = OptionsOfJobs();
    return !arguments.inputs.isEmpty() || std::any_of(ofJob.begin(), ofJob.end(), isGiven);
}

JournaledJob JournaledJobOf(ZTBatchDocument& job, const GivenJobs& given, const ParsedArguments& arguments)
{
    if (arguments.Has(QStringLiteral("--resume"))) {
        const QString folder = given.OutputFolder(job);
        if (folder.isEmpty()) {
            throw RequestError{BatchJob::Phrase::English("no output folder"), RequestError::Kind::NoOutputFolder};
        }
        const InterruptedRuns runs(folder);
        TellIgnoredJournals(runs);
        return JournaledJob::Interrupted(job, given.bundle, runs, {IsJobGiven(arguments), arguments.Value(runOption)});
    }
    JournaledJob journaled = JournaledJob::New(job, given.bundle);
    if (journaled.StartsAnew()) {
        TellOfInterruptedRun();
    }
    const QString folder = given.OutputFolder(job);
    const int others = InterruptedRuns(folder).Count();
    if (others > 0 && !arguments.Has(QStringLiteral("--quiet"))) {
        TellOfOtherRuns(folder, others);
    }
    return journaled;
}

void CheckRunName(const ParsedArguments& arguments)
{
    if (!arguments.Has(runOption)) {
        return;
    }
    if (!arguments.Has(QStringLiteral("--resume"))) {
        throw RequestError{BatchJob::Phrase::English("%1 needs --resume").arg(runOption)};
    }
    if (arguments.Value(runOption).isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("the name is empty")}.In(runOption);
    }
}

/// Reports a run without pictures.
RunEnd EmptyRun(const QString& outputFolder, const InputLosses& losses, RunOutput& output)
{
    RunInputs inputs;
    inputs.leftOut = losses.leftOut;
    RunEnd end;
    end.outputFolder = outputFolder;
    for (RunObserver* const observer : output.Observers()) {
        observer->OnStart(inputs, end.outputFolder);
        observer->OnEnd(end);
    }
    return end;
}

/// Names the results of earlier updates that this one does not have any more, and removes them if they are to be. An
/// input that could not be read is not gone.
void HandleOrphans(const JournaledJob& journaled, const QString& outputFolder, const ParsedArguments& arguments,
                   int problems)
{
    TellTroubleOfRecord(journaled);
    const QStringList& orphans = journaled.EndOfUpdate().orphans;
    if (orphans.isEmpty()) {
        return;
    }
    if (!arguments.Has(QStringLiteral("--delete-orphans"))) {
        TellOrphans(orphans);
    } else if (problems > 0) {
        TellKeptOrphans(orphans);
    } else {
        TellRemovedOrphans(orphans.size(), RecordKeeper(outputFolder).Remove(orphans));
    }
}

} // namespace

ExitCode RunJob(const ParsedArguments& arguments)
{
    CheckPartOptions(arguments);
    if (arguments.Has(QStringLiteral("--plan"))) {
        return RunPart(arguments);
    }
    const std::optional<BatchJob::Update> update = UpdateOf(arguments);
    if (arguments.Has(QStringLiteral("--dry-run"))) {
        return DryRun(arguments);
    }
    OutliveReaders();
    // Wrong options are reported before folders are read, which may take long.
    CheckPolicyOptions(arguments);
    CheckRunName(arguments);
    ApplyServerLimits(arguments);
    const QString settingsFolder = SettingsFolder(arguments);
    RunOutput output(arguments);

    QStringList inputs = arguments.inputs;
    ZTBatchDocument job;
    GivenJobs given = BuildJobs(job, arguments, inputs);
    given.WriteInputs(job);
    const InputLosses& losses = given.losses;
    if (!arguments.Has(QStringLiteral("--resume")) && !HasPictures(job, arguments, inputs)) {
        const RunEnd end = EmptyRun(given.OutputFolder(job), losses, output);
        return CodeOf(end, arguments, losses.problems, !output.WriteReportError());
    }

    // From the first lock and folder to the last.
    InterruptWatcher interrupts;
    JournaledJob journaled = JournaledJobOf(job, given, arguments);
    RunEnd end;
    RunPolicies policies;
    {
        JobRun run(settingsFolder);
        if (run.WhatPrevents() != JobRun::Obstacle::None) {
            TellObstacle(run);
            return ExitCode::ServerLost;
        }
        policies = PoliciesOfRun(arguments, journaled, settingsFolder);
        const auto controller = run.Prepare(
            job, journaled, {policies.values, arguments.Has(QStringLiteral("--strict")), losses.leftOut, update},
            output.Observers());
        TellMissingJournal(journaled);
        end = RunInteractively(*controller, output.Display(), interrupts);
    }
    journaled.End(end);
    HandleOrphans(journaled, end.outputFolder, arguments, losses.problems);
    if (!output.IsQuiet()) {
        TellUnasked(policies, end);
        TellKeptSources(policies, end);
    }
    TellHowToResume(journaled, end, output.IsQuiet());
    TellTroubleOfServer(end);
    const bool isReportMissing = !output.WriteReportError();
    const ExitCode code = CodeOf(end, arguments, losses.problems, isReportMissing);
    interrupts.Finish(code);
    return code;
}

} // namespace BatchCli
