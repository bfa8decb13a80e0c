// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InterruptedRuns.h"

#include "JournalFile.h"
#include "RequestError.h"

#include "job/journal/OwnFile.h"
#include "job/settings/JobFiles.h"
#include "job/values/FileIdentity.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace BatchJob;

namespace BatchHost {

namespace {

/// The results that an interrupted run may have written.
QSet<FileIdentity> ResultsOf(const JournalState& state)
{
    QSet<FileIdentity> results;
    const auto note = [&results](const QString& output) {
        if (const std::optional<FileIdentity> identity = IdentityOf(output)) {
            results.insert(*identity);
        }
    };
    for (const JournalState::Result& result : state.results) {
        note(result.output);
    }
    for (const JournalState::Beginning& beginning : state.begun) {
        note(beginning.output);
    }
    return results;
}

/// What the user named as inputs, shortened.
QString InputsOf(const ZTBatchInputModel& input)
{
    constexpr int most = 3;
    QStringList paths;
    for (int row = 0; row < std::min(most, input.rowCount()); ++row) {
        paths.append(input.getNodeData(input.index(row, 0))->fileName);
    }
    if (input.rowCount() > most) {
        paths.append(QStringLiteral("..."));
    }
    return paths.join(QStringLiteral(", "));
}

/// Whether `job` is the one of an interrupted run, `interrupted`. The run itself may have changed its inputs: a result
/// replaces an input, or lies beside it and was collected like one.
bool IsSame(const ZTBatchDocument& job, const ZTBatchDocument& interrupted, const JournalState& state)
{
    const QVector<JobFile> before = FilesOfJob(*interrupted.GetInputModel());
    const QSet<FileIdentity> results = ResultsOf(state);
    auto expected = before.begin();
    for (const JobFile& file : FilesOfJob(*job.GetInputModel())) {
        if (expected != before.end() && file.path == expected->path && file.folder == expected->folder) {
            ++expected;
            continue;
        }
        const std::optional<FileIdentity> identity = IdentityOf(file.path);
        if (!identity || !results.contains(*identity)) {
            return false;
        }
    }
    return expected == before.end() && SettingsTextOf(job) == SettingsTextOf(interrupted);
}

bool IsOf(const InterruptedRuns::Run& run, const ZTBatchDocument& job)
{
    ZTBatchDocument interrupted;
    return run.state && interrupted.Deserialize(run.state->document) && IsSame(job, interrupted, *run.state);
}

RequestError OtherJob(const QString& folder)
{
    return {Phrase::English("the run that was interrupted in %1 is of another job: its inputs, options or "
                            "files differ")
                .arg(folder),
            RequestError::Kind::OtherRunInterrupted};
}

} // namespace

InterruptedRuns::InterruptedRuns(const QString& outputFolder)
    : folder(outputFolder)
{
    JournalFile::RemoveUnbegun(folder);
    const auto ignore = [this](const QString& path, const QString& reason) {
        ignored.append(Phrase::English("%1 is ignored: %2").arg(path, reason));
    };
    for (const QString& path : JournalFile::In(folder)) {
        QFile file;
        QString problem;
        if (!OpenOwnFile(file, path, OwnFileUse::Append, problem)) {
            ignore(path, problem);
            continue;
        }
        if (!HasJournalBegun(path)) {
            continue;
        }
        Run run{path, ReadJournal(path), JournalFile::IsRunning(path)};
        ZTBatchDocument job;
        if (run.state && !job.Deserialize(run.state->document)) {
            run.state.reset();
        }
        const QString target = run.state ? job.GetOutputSettings()->GetPath() : folder;
        if (IdentityOf(target) == IdentityOf(folder)) {
            runs.push_back(run);
        } else {
            ignore(path, Phrase::English("its results go to %1").arg(target));
        }
    }
    std::sort(runs.begin(), runs.end(), [](const Run& a, const Run& b) {
        return (a.state ? a.state->beganAt : 0) < (b.state ? b.state->beganAt : 0);
    });
}

int InterruptedRuns::Count() const
{
    return int(std::count_if(runs.begin(), runs.end(), [](const Run& run) { return !run.isRunning; }));
}

const InterruptedRuns::Run& InterruptedRuns::Choose(const ZTBatchDocument& job, const Wanted& wanted) const
{
    if (runs.empty()) {
        throw RequestError{Phrase::English("there is no interrupted run in %1").arg(folder),
                           RequestError::Kind::NothingToResume};
    }
    if (!wanted.name.isEmpty()) {
        const Run& named = ChooseByName(wanted.name);
        if (wanted.isThisJob && !IsOf(named, job)) {
            throw OtherJob(folder);
        }
        return named;
    }
    const Run* chosen = RunOf(job);
    if (wanted.isThisJob && !chosen) {
        throw OtherJob(folder);
    }
    if (!chosen && Count() > 1) {
        throw RequestError{Phrase::English("%1 runs were interrupted in %2").arg(Count()).arg(folder),
                           RequestError::Kind::SeveralRunsInterrupted, Descriptions()};
    }
    if (!chosen) {
        const auto interrupted = std::find_if(runs.begin(), runs.end(), [](const Run& run) { return !run.isRunning; });
        chosen = interrupted == runs.end() ? &runs.front() : &*interrupted; // Taking a running one tells what it is.
    }
    if (!chosen->state) {
        throw RequestError{Phrase::English("%1 is damaged; remove it to start the run anew").arg(chosen->journal)};
    }
    return *chosen;
}

const InterruptedRuns::Run& InterruptedRuns::ChooseByName(const QString& name) const
{
    const auto found = std::find_if(runs.begin(), runs.end(), [&name](const Run& run) { return run.Name() == name; });
    if (found == runs.end()) {
        throw RequestError{Phrase::English("no run in %1 is called \"%2\"").arg(folder, name),
                           RequestError::Kind::NoSuchRun, Descriptions()};
    }
    if (!found->state) {
        throw RequestError{Phrase::English("%1 is damaged; remove it to start the run anew").arg(found->journal)};
    }
    return *found;
}

QStringList InterruptedRuns::Descriptions() const
{
    QStringList descriptions;
    for (const Run& run : runs) {
        if (!run.isRunning) {
            descriptions.append(run.Description());
        }
    }
    return descriptions;
}

QString InterruptedRuns::Run::Name() const
{
    constexpr int digits = 8;
    const QString unique = QFileInfo(journal).completeBaseName().section(QLatin1Char('-'), -1);
    return unique.left(digits);
}

QString InterruptedRuns::Run::Description() const
{
    ZTBatchDocument job;
    if (!state || !job.Deserialize(state->document)) {
        return Phrase::English("%1  %2 is damaged").arg(Name(), journal);
    }
    constexpr qint64 nanoseconds = 1'000'000;
    const QString began =
        QDateTime::fromMSecsSinceEpoch(state->beganAt / nanoseconds).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const int count = FilesOfJob(*job.GetInputModel()).size();
    const QString done = QString::number(state->results.size());
    const QString inputs = InputsOf(*job.GetInputModel());
    return count == 1 ? Phrase::English("%1  %2  %3 of 1 picture  %4").arg(Name(), began, done, inputs)
                      : Phrase::English("%1  %2  %3 of %4 pictures  %5")
                            .arg(Name(), began, done, QString::number(count), inputs);
}

const InterruptedRuns::Run* InterruptedRuns::RunOf(const ZTBatchDocument& job) const
{
    const QString text = job.Serialize(nullptr);
    const auto isEqual = [&text](const Run& run) { return run.state && run.state->document == text; };
    auto found = std::find_if(runs.begin(), runs.end(), isEqual);
    if (found == runs.end()) {
        found = std::find_if(runs.begin(), runs.end(), [&job](const Run& run) { return IsOf(run, job); });
    }
    return found == runs.end() ? nullptr : &*found;
}

} // namespace BatchHost
