// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WatchRun.h"

#include "RunMessages.h"
#include "RunOutput.h"
#include "RunPolicies.h"

#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/EventWriter.h"
#include "hosts/cli/terminal/InteractiveRun.h"
#include "hosts/common/JobRun.h"
#include "hosts/common/Language.h"
#include "hosts/common/options/PolicyOptions.h"
#include "server/protocol/ServerLimits.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

/// Warnings, when the status line is gone.
class WarningLines : public RunObserver
{
public:
    void OnResult(const FileResult& result, int, int) override
    {
        for (const Warning& warning : result.warnings) {
            lines.append(Messages::tr("warning %1: %2").arg(result.input, Translated(warning.text)));
        }
    }
    void OnEnd(const RunEnd&) override
    {
        for (const QString& line : qAsConst(lines)) {
            WriteErrorLine(line);
        }
    }

private:
    QStringList lines;
};

/// In place of asking.
int UnaskedPolicy(PolicyKind kind)
{
    switch (kind) {
    case PolicyKind::Naming:
        return PolicyValue(kind, QStringLiteral("rename"));
    case PolicyKind::Output: // A full disk must not cost all pictures that come.
        return PolicyValue(kind, QStringLiteral("stop"));
    default:
        return safePolicy;
    }
}

/// Whether a policy has ended the run over a picture, which may have been the last one.
bool IsStopped(const RunEnd& end, const PolicyValues& policies)
{
    const QList<PolicyKind> kinds = end.unwritten.keys();
    return std::any_of(kinds.begin(), kinds.end(), [&](PolicyKind kind) {
        return kind != PolicyKind::None && end.unwritten.value(kind) > end.unwrittenBefore.value(kind) &&
               PolicyWord(kind, policies[std::size_t(kind)]) == QLatin1String("stop");
    });
}

void TellStop()
{
    WriteErrorLine(QStringLiteral("velkora-batch: ") +
                   Messages::tr("watching ends, as a policy says; the next start tries these pictures again."));
}

} // namespace

std::optional<ExitCode> WatchRun::Resume()
{
    ZTBatchDocument job;
    job.Deserialize(settings);
    const InterruptedRuns runs(job.GetOutputSettings()->GetPath());
    const QString journal = state.Open()->journal;
    for (const InterruptedRuns::Run& run : runs.All()) {
        if (QFileInfo(run.journal).fileName() == journal) {
            JournaledJob journaled = JournaledJob::Interrupted(job, runs, {false, run.Name()});
            isResumed = true;
            const std::optional<ExitCode> code = Run(job, journaled);
            isResumed = false;
            return code;
        }
    }
    TellIgnoredJournals(runs);
    state.Drop();
    return std::nullopt;
}

std::optional<ExitCode> WatchRun::Make(const WatchedFolder& folder, const QVector<SeenFile>& files, QStringList& gone)
{
    ZTBatchDocument job;
    job.Deserialize(settings);
    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    state.Continue(output);
    folder.AddTo(job, files);
    const QStringList paths = InputsOf(job).files;
    const QSet<QString> found(paths.begin(), paths.end());
    WatchState::Batch batch;
    for (const SeenFile& file : files) {
        if (found.contains(file.path)) {
            batch.files.append(file);
        } else {
            gone.append(file.path);
        }
    }
    if (batch.files.isEmpty()) {
        return std::nullopt;
    }
    JournaledJob journaled = JournaledJob::New(job);
    batch.journal = journaled.JournalPath();
    batch.next = WatchState::Behind(output, paths.size());
    state.Begin(batch);
    return Run(job, journaled);
}

std::optional<ExitCode> WatchRun::Run(ZTBatchDocument& job, JournaledJob& journaled)
{
    RunDisplay display(DetailOf(arguments));
    EventWriter events;
    WarningLines warnings;
    QVector<RunObserver*> observers{&display};
    if (arguments.Has(QStringLiteral("--json"))) {
        observers.append(&events);
    }
    if (!arguments.Has(QStringLiteral("--quiet"))) {
        observers.append(&warnings);
    }
    RunEnd end;
    PolicyValues policies{};
    {
        // The server ends with each run: it needs no memory while nothing comes.
        JobRun run(SettingsFolder(arguments));
        if (run.WhatPrevents() != JobRun::Obstacle::None) {
            TellObstacle(run);
            return ExitCode::ServerLost;
        }
        policies = Policies(journaled);
        const auto controller =
            run.Prepare(job, journaled, {policies, arguments.Has(QStringLiteral("--strict")), {}}, observers);
        if (!journaled.Problem().isEmpty()) {
            TellMissingJournal(journaled);
            return ExitCode::Incomplete;
        }
        if (!isResumed) {
            state.NoteBegun();
        }
        end = RunInteractively(*controller, display, interrupts);
    }
    return EndOf(end, policies, journaled);
}

PolicyValues WatchRun::Policies(const JournaledJob& journaled) const
{
    RunPolicies policies = PoliciesOfRun(arguments, journaled, SettingsFolder(arguments));
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        int& value = policies.values[std::size_t(i)];
        if (policies.unasked.contains(kind) || value == AskingPolicy(kind)) {
            value = UnaskedPolicy(kind);
        }
    }
    BatchProtocol::sharedNamesLimit.Set(0); // One pair of equal names must not keep all pictures from being made.
    return policies.values;
}

std::optional<ExitCode> WatchRun::EndOf(const RunEnd& end, const PolicyValues& policies, JournaledJob& journaled)
{
    written += end.written;
    skipped += end.skipped;
    failed += end.failed;
    TellTroubleOfServer(end);
    switch (end.Outcome()) {
    case RunOutcome::Cancelled:
        return ExitCode::Cancelled;
    case RunOutcome::NoWorkers:
    case RunOutcome::ServerLost:
        return ExitCode::ServerLost;
    case RunOutcome::Refused:
        if (!isResumed) {
            state.Drop();
        }
        journaled.End(end);
        return ExitCode::Usage;
    case RunOutcome::Complete:
    case RunOutcome::Incomplete:
        break;
    }
    if (end.NotProcessed() > 0 || IsStopped(end, policies)) {
        TellStop();
        return ExitCode::Incomplete;
    }
    state.NoteDone();
    journaled.End(end);
    return std::nullopt;
}

QString WatchRun::Totals() const
{
    return Messages::tr("Written: %1, skipped: %2, failed: %3.").arg(written).arg(skipped).arg(failed);
}

} // namespace BatchCli
