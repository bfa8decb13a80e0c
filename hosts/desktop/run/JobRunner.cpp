// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobRunner.h"

#include "hosts/common/JobBundles.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/RunReport.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QTimer>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

bool IsWorse(FileResult::Kind kind, FileResult::Kind other)
{
    using Kind = FileResult::Kind;
    const auto rank = [](Kind of) { return HasResult(of) ? 0 : of == Kind::Skipped ? 1 : 2; };
    return rank(kind) > rank(other);
}

} // namespace

double JobRunner::Progress::Fraction() const
{
    if (bytes > 0) {
        return double(bytesDone) / double(bytes);
    }
    return files > 0 ? double(Done()) / files : 0;
}

double JobRunner::Progress::SecondsLeft() const
{
    constexpr double leastSeconds = 1;
    if (seconds < leastSeconds || bytesDone <= 0) {
        return -1;
    }
    return seconds * double(bytes - bytesDone) / double(bytesDone);
}

JobRunner::JobRunner(const QString& settingsFolder, QObject* parent)
    : QObject(parent)
    , environment(settingsFolder)
{
}

JobRunner::~JobRunner()
{
    if (controller) {
        controller->disconnect(this);
        controller->EndAtOnce();
    }
    Dismiss();
}

QString JobRunner::Obstacle() const
{
    switch (environment.WhatPrevents()) {
    case JobRun::Obstacle::None:
        break;
    case JobRun::Obstacle::NoTemporaryFolder:
        return environment.TemporaryFolderError();
    case JobRun::Obstacle::PipeInUse:
        return Messages::tr("Another program is running a batch on this computer: close it, and start this one anew.");
    }
    return {};
}

void JobRunner::Start(const ZTBatchDocument& job, const BatchJob::PolicyValues& policiesOfRun,
                      const std::optional<BatchJob::Update>& update)
{
    Start(job, BatchJob::JobBundle(), policiesOfRun, update);
}

void JobRunner::Start(const ZTBatchDocument& job, const BatchJob::JobBundle& bundle,
                      const BatchJob::PolicyValues& policiesOfRun, const std::optional<BatchJob::Update>& update)
{
    RequireRunnableJob(job);
    Dismiss(); // It may be a run of the same job.
    journaled.emplace(JournaledJob::New(job, bundle));
    Run(job, policiesOfRun, update);
}

void JobRunner::TakeUp(const QString& folder, const QString& name)
{
    ZTBatchDocument job;
    job.GetOutputSettings()->SetPath(folder);
    Dismiss(); // It may be this very run.
    journaled.emplace(JournaledJob::Interrupted(job, InterruptedRuns(folder), {false, name}));
    Run(job, *journaled->Policies());
}

bool JobRunner::RetryFailed()
{
    if (state != State::Idle || !journaled || !runningJob || journaled->RetryFailed() == 0) {
        return false;
    }
    RunAgain();
    return true;
}

bool JobRunner::CanResume() const
{
    return state == State::Idle && journaled && runningJob && lastEnd && !lastEnd->IsFinished() &&
           journaled->CanBeResumed();
}

bool JobRunner::Resume()
{
    if (!CanResume() || !journaled->Resume()) {
        return false;
    }
    RunAgain();
    return true;
}

void JobRunner::RunAgain()
{
    const std::unique_ptr<ZTBatchDocument> job = std::move(runningJob);
    Run(*job, policies);
}

void JobRunner::Run(const ZTBatchDocument& job, const BatchJob::PolicyValues& policiesOfRun,
                    const std::optional<BatchJob::Update>& update)
{
    policies = policiesOfRun;
    runningJob = std::make_unique<ZTBatchDocument>();
    ReadFirstJob(*runningJob, journaled->Document());
    lastEnd.reset();
    allResults.clear();
    results.clear();
    known.clear();
    progress = {};
    secondsBefore = 0;
    clock.start();
    controller = environment.Prepare(job, *journaled, {policies, false, {}, update}, {this});
    connect(controller.get(), &RunController::Question, this,
            [this](BatchJob::PolicyKind kind, const QString& input, const QString& output, const QString& reason) {
                question = Question{kind, input, output, reason};
                Q_EMIT QuestionChanged();
            });
    connect(controller.get(), &RunController::Paused, this, [this] {
        secondsBefore = progress.seconds = secondsBefore + double(clock.elapsed()) / 1000;
        clock.invalidate();
        SetState(State::Paused);
    });
    connect(controller.get(), &RunController::Resumed, this, [this] {
        clock.start();
        SetState(State::Running);
    });
    connect(controller.get(), &RunController::Ended, this, [this](const RunEnd& end) {
        QTimer::singleShot(0, this, [this, end] { OnEnded(end); }); // The controller is still in its last function.
    });
    SetState(State::Running);
    controller->Start();
}

void JobRunner::OnEnded(const RunEnd& end)
{
    controller.reset();
    question.reset();
    lastEnd = end;
    progress.inWork.clear();
    if (end.IsFinished() && end.failed == 0) {
        Dismiss();
    }
    SetState(State::Idle);
    Q_EMIT QuestionChanged();
    Q_EMIT Ended();
}

void JobRunner::Dismiss()
{
    if (journaled && lastEnd) {
        journaled->End(*lastEnd);
    }
    journaled.reset();
    runningJob.reset();
}

void JobRunner::Pause()
{
    if (state == State::Running) {
        SetState(State::Pausing);
        controller->Pause();
    }
}

void JobRunner::GoOn()
{
    if (state == State::Pausing || state == State::Paused) {
        if (!clock.isValid()) {
            clock.start();
        }
        SetState(State::Running);
        controller->Resume();
    }
}

void JobRunner::Cancel()
{
    if (state != State::Idle && state != State::Cancelling) {
        question.reset();
        Q_EMIT QuestionChanged();
        SetState(State::Cancelling);
        controller->Cancel();
    }
}

void JobRunner::Answer(int value, bool isForTheRest)
{
    if (question) {
        question.reset();
        Q_EMIT QuestionChanged();
        controller->Answer(value, isForTheRest);
    }
}

void JobRunner::SaveReport(const QString& path) const
{
    if (!lastEnd) {
        return;
    }
    RunReport report(path);
    report.OnStart(inputs, outputFolder);
    for (const FileResult& result : allResults) {
        report.OnResult(result, 0, 0);
    }
    report.OnEnd(*lastEnd);
    if (!report.Error().isEmpty()) {
        throw RequestError{report.Error()};
    }
}

void JobRunner::OnStart(const RunInputs& startedInputs, const QString& folder)
{
    inputs = startedInputs;
    outputFolder = folder;
    progress.files = inputs.files.size();
    progress.bytes = inputs.allBytes;
    Q_EMIT Started();
    Q_EMIT Progressed();
}

void JobRunner::OnEarlierResult(const FileResult& result)
{
    Count(result);
    progress.bytesDone = 0; // The time of the earlier part is not known, so its bytes tell nothing about the rest.
    progress.bytes -= std::max<qint64>(0, result.inputBytes);
}

void JobRunner::OnInWork(const QStringList& names, const QString& begun)
{
    progress.inWork = names;
    Q_EMIT Begun(begun);
}

void JobRunner::OnResult(const FileResult& result, int, int)
{
    progress.inWork.removeOne(result.input);
    Count(result);
    Q_EMIT Progressed();
}

void JobRunner::OnServerLost(const QStringList&, bool goesOn)
{
    question.reset();
    Q_EMIT QuestionChanged();
    Q_EMIT ServerLost(goesOn);
}

void JobRunner::Count(const FileResult& result)
{
    using Kind = FileResult::Kind;
    allResults.append(result);
    FileResult& shown = results[result.input];
    if (shown.input.isEmpty() || IsWorse(result.kind, shown.kind)) {
        shown = result;
    }
    ++(HasResult(result.kind) ? progress.written : result.kind == Kind::Skipped ? progress.skipped : progress.failed);
    progress.bytesDone += std::max<qint64>(0, result.inputBytes);
    if (clock.isValid()) {
        progress.seconds = secondsBefore + double(clock.elapsed()) / 1000;
    }
    const int variants = inputs.variants.size();
    if (variants < 2 || ++known[result.input] == variants) {
        Q_EMIT ResultKnown(result.input);
    }
}

void JobRunner::SetState(State newState)
{
    if (state != newState) {
        state = newState;
        Q_EMIT StateChanged();
    }
}

} // namespace BatchDesktop
