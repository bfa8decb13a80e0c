#pragma once

#include "JournalFile.h"
#include "RunResults.h"

#include "job/values/PolicyValues.h"

#include <QString>

#include <memory>
#include <optional>

class ZTBatchDocument;

namespace BatchHost {

/// A job that is to run, with the journal in its output folder. Nobody else can run the job there as long as this
/// object lives.
class JournaledJob
{
public:
    /// A run of `job` from its beginning. Throws RequestError when the job cannot be used, or is already running.
    static JournaledJob New(const ZTBatchDocument& job);

    /// The run that was interrupted in the output folder of `job`, which becomes the job of that run. With `isThisJob`
    /// it has to be the same one already. Throws RequestError when there is no such run.
    static JournaledJob Interrupted(ZTBatchDocument& job, bool isThisJob);

    /// The text of the job.
    const QString& Document() const { return document; }

    /// The policies of the interrupted run; nothing for a new one.
    const std::optional<BatchJob::PolicyValues>& Policies() const { return policies; }

    /// Whether a run of this job can be resumed.
    bool CanBeResumed() const { return file->Exists(); }

    /// Begins the journal of a new run. Returns the path of the journal; an empty one when it cannot be written.
    QString BeginJournal(const BatchJob::PolicyValues& newPolicies);

    /// The run has ended: removes the journal unless something is left to resume.
    void End(const RunEnd& end);

private:
    JournaledJob() = default;

    std::unique_ptr<JournalFile> file;
    QString document;
    std::optional<BatchJob::PolicyValues> policies;
};

} // namespace BatchHost
