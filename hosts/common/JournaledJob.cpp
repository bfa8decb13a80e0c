// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JournaledJob.h"

#include "JobRequirements.h"
#include "RecordKeeper.h"
#include "RequestError.h"

#include "job/journal/RunJournal.h"
#include "job/record/ResultRecord.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

using namespace BatchJob;

namespace BatchHost {

JournaledJob JournaledJob::New(const ZTBatchDocument& job)
{
    return New(job, {});
}

JournaledJob JournaledJob::New(const ZTBatchDocument& job, const JobBundle& bundle)
{
    RequireRunnableJob(job);
    JournaledJob journaled;
    journaled.document = bundle.IsEmpty() ? job.Serialize(nullptr) : bundle.Text();
    journaled.folder = job.GetOutputSettings()->GetPath();
    journaled.Enter(bundle);
    RecordKeeper(journaled.folder).AdoptInterrupted();
    journaled.file = JournalFile::New(journaled.folder, journaled.document);
    journaled.earlier->journals = journaled.file->OthersOfItsJob();
    return journaled;
}

JournaledJob JournaledJob::Interrupted(ZTBatchDocument& job, const InterruptedRuns& runs,
                                       const InterruptedRuns::Wanted& wanted)
{
    return Interrupted(job, {}, runs, wanted);
}

JournaledJob JournaledJob::Interrupted(ZTBatchDocument& job, const JobBundle& given, const InterruptedRuns& runs,
                                       const InterruptedRuns::Wanted& wanted)
{
    const InterruptedRuns::Run& run = runs.Choose(job, given, wanted);
    JournaledJob journaled;
    journaled.file = JournalFile::Take(run.journal);
    journaled.document = run.state->document;
    journaled.policies = run.state->policies;
    journaled.isInPlace = run.state->isInPlace;
    if (!journaled.file->Exists()) { // The run was still going on when it was chosen, and is finished now.
        throw RequestError{
            Phrase::English("the run in %1 has just been finished").arg(job.GetOutputSettings()->GetPath()),
            RequestError::Kind::NothingToResume};
    }
    QString problem;
    const JobBundle bundle =
        JobBundle::IsIn(journaled.document) ? JobBundle::Read(journaled.document, problem) : JobBundle();
    job.Deserialize(bundle.IsEmpty() ? journaled.document : bundle.parts.first().document);
    journaled.folder = job.GetOutputSettings()->GetPath();
    journaled.Enter(bundle);
    return journaled;
}

JournaledJob JournaledJob::OfPart(const QString& text, const QString& folder, const QVector<RunVariant>& variants,
                                  const QString& path, const PolicyValues& policies)
{
    JournaledJob journaled;
    journaled.document = text;
    journaled.folder = folder;
    journaled.variants = variants;
    journaled.file = JournalFile::Take(path);
    journaled.policies = policies;
    journaled.isPart = true;
    return journaled;
}

void JournaledJob::Enter(const JobBundle& bundle)
{
    for (const JobBundle::Part& part : bundle.parts) {
        variants.append({part.name, part.outputFolder});
    }
    folder = bundle.IsEmpty() ? folder : bundle.folder;
}

void JournaledJob::EarlierRuns::Forget()
{
    for (const std::unique_ptr<JournalFile>& journal : journals) {
        journal->Remove();
    }
    journals.clear();
}

QString JournaledJob::BeginJournal(const PolicyValues& newPolicies, bool mayReplaceOriginals,
                                   const std::optional<Update>& update)
{
    if (policies) {
        return file->Path();
    }
    problem = file->Problem();
    RunJournal journal;
    if (problem.isEmpty() && !journal.Create(file->Path(), document, newPolicies, mayReplaceOriginals, update)) {
        problem = QStringLiteral("%1: %2").arg(file->Path(), journal.Problem());
    }
    return problem.isEmpty() ? file->Path() : QString();
}

int JournaledJob::RetryFailed()
{
    const std::optional<JournalState> state = ReadJournal(file->Path());
    RunJournal journal;
    if (!state || !journal.Open(file->Path())) {
        return 0;
    }
    QVector<int> failed;
    for (auto it = state->results.constBegin(); it != state->results.constEnd(); ++it) {
        if (it->kind == ResultKind::Failed) {
            failed.append(it.key());
        }
    }
    if (!failed.isEmpty()) {
        policies = state->policies;
        journal.Retry(failed);
    }
    return failed.size();
}

bool JournaledJob::Resume()
{
    const std::optional<JournalState> state = ReadJournal(file->Path());
    if (state) {
        policies = state->policies;
    }
    return state.has_value();
}

void JournaledJob::End(const RunEnd& end)
{
    if (isPart) {
        return;
    }
    const bool isRefused = end.Outcome() == RunOutcome::Refused;
    if (isRefused && !policies) {
        file->RemoveWithFolders();
        return;
    }
    if (!isRefused && Record(end) && end.IsFinished()) {
        file->Remove();
    }
}

/// False if the journal is still needed, because it knows results that the record does not.
bool JournaledJob::Record(const RunEnd& end)
{
    const bool isAllUnchanged = end.unchanged > 0 && end.unchanged == end.files;
    if (isAllUnchanged && RecordedCount(end.outputFolder) == end.unchanged) {
        return true; // All of them are in the record, which has no others.
    }
    const std::optional<JournalState> state = ReadJournal(file->Path());
    if (!state || !state->update) {
        return true;
    }
    RecordKeeper keeper(end.outputFolder);
    const bool isRecorded = end.IsFinished() ? keeper.AdoptFinished(*state) : keeper.Adopt(*state);
    endOfUpdate = {keeper.Orphans(), keeper.Damage(), keeper.Problem()};
    return isRecorded;
}

} // namespace BatchHost
