#pragma once

#include "InterruptedRuns.h"
#include "JournalFile.h"
#include "RunResults.h"

#include "job/values/PolicyValues.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

class ZTBatchDocument;

namespace BatchHost {

/// A job that is to run, with the journal in its output folder. Nobody else can run the job there as long as this
/// object lives.
class JournaledJob
{
public:
    /// A run of `job` from its beginning. Throws RequestError when the job cannot be used, or is already running.
    static JournaledJob New(const ZTBatchDocument& job);

    /// One of `runs`, which were interrupted in the output folder of `job`. It becomes `job`; with `isThisJob` it has
    /// to be the same one already. Throws RequestError when there is no such run.
    static JournaledJob Interrupted(ZTBatchDocument& job, const InterruptedRuns& runs, bool isThisJob);

    /// The text of the job.
    const QString& Document() const { return document; }

    /// The policies of the interrupted run; nothing for a new one.
    const std::optional<BatchJob::PolicyValues>& Policies() const { return policies; }

    /// Whether the run can be resumed after its end.
    bool CanBeResumed() const { return file->Exists(); }

    /// Whether this is a new run of a job that was interrupted before. BeginJournal() forgets the earlier run.
    bool StartsAnew() const { return !replaced.empty(); }

    /// Begins the journal of a new run. Returns the path of the journal; an empty one when it cannot be written, see
    /// Problem().
    QString BeginJournal(const BatchJob::PolicyValues& newPolicies);

    /// Why the run has no journal, for users.
    QString Problem() const { return problem; }

    /// The run has ended: removes the journal unless something is left to resume.
    void End(const RunEnd& end);

private:
    JournaledJob() = default;

    std::unique_ptr<JournalFile> file;
    std::vector<std::unique_ptr<JournalFile>> replaced; ///< journals of earlier runs of the same job
    QString document;
    QString problem;
    std::optional<BatchJob::PolicyValues> policies;
};

} // namespace BatchHost
