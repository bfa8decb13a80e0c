#include "JournaledJob.h"

#include "JobRequirements.h"
#include "RequestError.h"

#include "job/journal/RunJournal.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

using namespace BatchJob;

namespace BatchHost {

JournaledJob JournaledJob::New(const ZTBatchDocument& job)
{
    RequireRunnableJob(job);
    JournaledJob journaled;
    journaled.document = job.Serialize(nullptr);
    journaled.file = JournalFile::ForJob(job.GetOutputSettings()->GetPath(), journaled.document);
    return journaled;
}

JournaledJob JournaledJob::Interrupted(ZTBatchDocument& job, bool isThisJob)
{
    const QString folder = job.GetOutputSettings()->GetPath();
    if (folder.isEmpty()) {
        throw RequestError{QStringLiteral("no output folder"), RequestError::Kind::NoOutputFolder};
    }
    JournaledJob journaled;
    journaled.file = JournalFile::Interrupted(folder, job.Serialize(nullptr), isThisJob);
    const std::optional<JournalState> state = ReadJournal(journaled.file->Path());
    if (!state || !job.Deserialize(state->document)) {
        throw RequestError{
            QStringLiteral("%1 is damaged; remove it to start the run anew").arg(journaled.file->Path())};
    }
    journaled.document = state->document;
    journaled.policies = state->policies;
    return journaled;
}

QString JournaledJob::BeginJournal(const PolicyValues& newPolicies)
{
    const bool isWritten = file->IsHeld() && (policies || RunJournal().Create(file->Path(), document, newPolicies));
    return isWritten ? file->Path() : QString();
}

void JournaledJob::End(const RunEnd& end)
{
    if (end.IsFinished()) {
        file->Remove();
    }
}

} // namespace BatchHost
