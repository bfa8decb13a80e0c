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
        Run run{path, ReadJournal(path)};
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
}

const InterruptedRuns::Run& InterruptedRuns::Choose(const ZTBatchDocument& job, bool isThisJob) const
{
    if (runs.empty()) {
        throw RequestError{Phrase::English("there is no interrupted run in %1").arg(folder)};
    }
    const Run* const same = RunOf(job);
    if (isThisJob && !same) {
        throw RequestError{
            Phrase::English("the run that was interrupted in %1 is of another job: its inputs, options or "
                            "files differ")
                .arg(folder),
            RequestError::Kind::OtherRunInterrupted};
    }
    if (runs.size() > 1 && !same) {
        throw RequestError{
            Phrase::English("%1 runs were interrupted in %2, none of them of this job").arg(runs.size()).arg(folder),
            RequestError::Kind::SeveralRunsInterrupted};
    }
    const Run& chosen = same ? *same : runs.front();
    if (!chosen.state) {
        throw RequestError{Phrase::English("%1 is damaged; remove it to start the run anew").arg(chosen.journal)};
    }
    return chosen;
}

const InterruptedRuns::Run* InterruptedRuns::RunOf(const ZTBatchDocument& job) const
{
    const QString text = job.Serialize(nullptr);
    const auto isEqual = [&text](const Run& run) { return run.state && run.state->document == text; };
    const auto isSame = [&job](const Run& run) {
        ZTBatchDocument interrupted;
        return run.state && interrupted.Deserialize(run.state->document) && IsSame(job, interrupted, *run.state);
    };
    auto found = std::find_if(runs.begin(), runs.end(), isEqual);
    if (found == runs.end()) {
        found = std::find_if(runs.begin(), runs.end(), isSame);
    }
    return found == runs.end() ? nullptr : &*found;
}

} // namespace BatchHost
