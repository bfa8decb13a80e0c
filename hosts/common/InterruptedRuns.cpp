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
#include <map>

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

/// The bundle in the text of a journal; empty if that is one job, or damaged.
JobBundle BundleIn(const QString& text)
{
    QString problem;
    return JobBundle::IsIn(text) ? JobBundle::Read(text, problem) : JobBundle();
}

/// Reads the job in the text of a journal into `job`, or the first of several. False if it is damaged.
bool ReadFirstJob(ZTBatchDocument& job, const QString& text, const JobBundle& bundle)
{
    return job.Deserialize(bundle.IsEmpty() ? text : bundle.parts.first().document);
}

QString SettingsIn(const QString& document)
{
    ZTBatchDocument job;
    return job.Deserialize(document) ? TakeSettingsText(job) : QString();
}

bool HaveSameSettings(const JobBundle& left, const JobBundle& right)
{
    return std::equal(left.parts.begin(), left.parts.end(), right.parts.begin(), right.parts.end(),
                      [](const JobBundle::Part& one, const JobBundle::Part& other) {
                          return one.name == other.name && SettingsIn(one.document) == SettingsIn(other.document);
                      });
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

bool IsOf(const InterruptedRuns::Run& run, const ZTBatchDocument& job, const JobBundle& bundle)
{
    if (!run.state) {
        return false;
    }
    ZTBatchDocument interrupted;
    const JobBundle before = BundleIn(run.state->document);
    return ReadFirstJob(interrupted, run.state->document, before) && IsSame(job, interrupted, *run.state) &&
           HaveSameSettings(bundle, before);
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
    std::multimap<qint64, Run> byBeginning;
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
        const JobBundle bundle = run.state ? BundleIn(run.state->document) : JobBundle();
        if (run.state && !ReadFirstJob(job, run.state->document, bundle)) {
            run.state.reset();
        }
        const QString ofJob = bundle.IsEmpty() ? job.GetOutputSettings()->GetPath() : bundle.folder;
        const QString target = run.state ? ofJob : folder;
        if (IdentityOf(target) == IdentityOf(folder)) {
            byBeginning.emplace(run.state ? run.state->beganAt : 0, run);
        } else {
            ignore(path, Phrase::English("its results go to %1").arg(target));
        }
    }
    for (const auto& [began, run] : byBeginning) {
        runs.push_back(run);
    }
}

int InterruptedRuns::Count() const
{
    return int(std::count_if(runs.begin(), runs.end(), [](const Run& run) { return !run.isRunning; }));
}

const InterruptedRuns::Run& InterruptedRuns::Choose(const ZTBatchDocument& job, const Wanted& wanted) const
{
    return Choose(job, {}, wanted);
}

const InterruptedRuns::Run& InterruptedRuns::Choose(const ZTBatchDocument& job, const JobBundle& bundle,
                                                    const Wanted& wanted) const
{
    if (runs.empty()) {
        throw RequestError{Phrase::English("there is no interrupted run in %1").arg(folder),
                           RequestError::Kind::NothingToResume};
    }
    if (!wanted.name.isEmpty()) {
        const Run& named = ChooseByName(wanted.name);
        if (wanted.isThisJob && !IsOf(named, job, bundle)) {
            throw OtherJob(folder);
        }
        return named;
    }
    const Run* chosen = RunOf(job, bundle);
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
    const JobBundle bundle = state ? BundleIn(state->document) : JobBundle();
    if (!state || !ReadFirstJob(job, state->document, bundle)) {
        return Phrase::English("%1  %2 is damaged").arg(Name(), journal);
    }
    constexpr qint64 nanoseconds = 1'000'000;
    const QString began =
        QDateTime::fromMSecsSinceEpoch(state->beganAt / nanoseconds).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const int count = FilesOfJob(*job.GetInputModel()).size() * std::max(1, bundle.parts.size());
    const QString done = QString::number(state->results.size());
    const QString inputs = InputsOf(*job.GetInputModel());
    return count == 1 ? Phrase::English("%1  %2  %3 of 1 picture  %4").arg(Name(), began, done, inputs)
                      : Phrase::English("%1  %2  %3 of %4 pictures  %5")
                            .arg(Name(), began, done, QString::number(count), inputs);
}

const InterruptedRuns::Run* InterruptedRuns::RunOf(const ZTBatchDocument& job, const JobBundle& bundle) const
{
    const QString text = bundle.IsEmpty() ? job.Serialize(nullptr) : bundle.Text();
    const auto isEqual = [&text](const Run& run) { return run.state && run.state->document == text; };
    auto found = std::find_if(runs.begin(), runs.end(), isEqual);
    if (found == runs.end()) {
        found =
            std::find_if(runs.begin(), runs.end(), [&job, &bundle](const Run& run) { return IsOf(run, job, bundle); });
    }
    return found == runs.end() ? nullptr : &*found;
}

} // namespace BatchHost
