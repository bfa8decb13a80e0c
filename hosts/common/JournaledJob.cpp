#include "JournaledJob.h"

#include "JobRequirements.h"
#include "RequestError.h"

#include "job/journal/RunJournal.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

using namespace BatchJob;

namespace BatchHost {

JournaledJob JournaledJob::New(const ZTBatchDocument& job)
{
    RequireRunnableJob(job);
    JournaledJob journaled;
    journaled.document = job.Serialize(nullptr);
    journaled.file = JournalFile::New(job.GetOutputSettings()->GetPath(), journaled.document);
    journaled.replaced = journaled.file->OthersOfItsJob();
    return journaled;
}

JournaledJob JournaledJob::Interrupted(ZTBatchDocument& job, const InterruptedRuns& runs, bool isThisJob)
{
    const InterruptedRuns::Run& run = runs.Choose(job, isThisJob);
    JournaledJob journaled;
    journaled.file = JournalFile::Take(run.journal);
    journaled.document = run.state->document;
    journaled.policies = run.state->policies;
    if (!journaled.file->Exists()) { // The run was still going on when it was chosen, and is finished now.
        throw RequestError{
            Phrase::English("the run in %1 has just been finished").arg(job.GetOutputSettings()->GetPath())};
    }
    job.Deserialize(journaled.document);
    return journaled;
}

QString JournaledJob::BeginJournal(const PolicyValues& newPolicies)
{
    if (policies) {
        return file->Path();
    }
    problem = file->Problem();
    RunJournal journal;
    if (problem.isEmpty() && !journal.Create(file->Path(), document, newPolicies)) {
        problem = QStringLiteral("%1: %2").arg(file->Path(), journal.Problem());
    }
    if (!problem.isEmpty()) {
        return {};
    }
    for (const std::unique_ptr<JournalFile>& earlier : replaced) {
        earlier->Remove();
    }
    replaced.clear();
    return file->Path();
}

void JournaledJob::End(const RunEnd& end)
{
    if (end.IsFinished()) {
        file->Remove();
    }
}

} // namespace BatchHost
