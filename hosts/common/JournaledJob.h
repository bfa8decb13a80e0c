// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InterruptedRuns.h"
#include "JournalFile.h"
#include "RunObserver.h"

#include "job/settings/JobBundle.h"
#include "job/values/PolicyValues.h"

#include <QString>
#include <QStringList>

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

    /// The same of several jobs. `job` is the first one, which has the inputs.
    static JournaledJob New(const ZTBatchDocument& job, const BatchJob::JobBundle& bundle);

    /// One of `runs`, which were interrupted in the output folder of `job`: the one that `wanted` describes. It becomes
    /// `job`, or its first job does if it has several. Throws RequestError when there is no such run.
    static JournaledJob Interrupted(ZTBatchDocument& job, const InterruptedRuns& runs,
                                    const InterruptedRuns::Wanted& wanted);

    /// The same of several jobs, `given`; `job` is the first of them.
    static JournaledJob Interrupted(ZTBatchDocument& job, const BatchJob::JobBundle& given, const InterruptedRuns& runs,
                                    const InterruptedRuns::Wanted& wanted);

    /// A part of a greater job, with the text `text`, whose journal `path` has begun and stays when the part is done.
    /// All results go to `folder`, those of `variants` into their folders. Throws RequestError if another process has
    /// taken the journal.
    static JournaledJob OfPart(const QString& text, const QString& folder, const QVector<RunVariant>& variants,
                               const QString& path, const BatchJob::PolicyValues& policies);

    /// The text of the job, or of the bundle.
    const QString& Document() const { return document; }

    /// Where all results go, and the journal is.
    const QString& OutputFolder() const { return folder; }

    /// The jobs of the bundle; empty for one job.
    const QVector<RunVariant>& Variants() const { return variants; }

    /// Where the journal is, or will be.
    QString JournalPath() const { return file->Path(); }

    /// The policies of the interrupted run; nothing for a new one.
    const std::optional<BatchJob::PolicyValues>& Policies() const { return policies; }

    /// Whether the interrupted run was allowed to replace originals.
    bool IsInPlace() const { return isInPlace; }

    /// Whether the run can be resumed after its end.
    bool CanBeResumed() const { return file->Exists(); }

    /// Whether this is a new run of a job that was interrupted before. The earlier run is forgotten when this one
    /// begins with a picture.
    bool StartsAnew() const { return !earlier->journals.empty(); }

    /// Begins the journal of a new run. Returns the path of the journal; an empty one when it cannot be written, see
    /// Problem().
    QString BeginJournal(const BatchJob::PolicyValues& newPolicies, bool mayReplaceOriginals,
                         const std::optional<BatchJob::Update>& update);

    /// Has to watch the run.
    RunObserver* Observer() { return earlier.get(); }

    /// Why the run has no journal, for users.
    QString Problem() const { return problem; }

    /// The run has ended, but its failed pictures are to be tried again, with the names and numbers that they have in
    /// this run: it can be prepared once more. Returns how many pictures that are; 0 when none has failed, or the
    /// journal cannot be read and written.
    int RetryFailed();

    /// The run has ended before all pictures were done: it can be prepared once more. False when the journal cannot be
    /// read.
    bool Resume();

    /// The run has ended: removes the journal unless something is left to resume. What an update has written is
    /// recorded first.
    void End(const RunEnd& end);

    /// What is known after an update. The texts are for users.
    struct UpdateEnd
    {
        QStringList orphans; ///< results of earlier updates that this one, if it is finished, does not have any more
        QString damage;      ///< why the record of earlier results did not count; empty if it did
        QString problem;     ///< why the results could not be recorded; empty if they are
    };

    /// After End().
    const UpdateEnd& EndOfUpdate() const { return endOfUpdate; }

private:
    /// The journals of earlier runs of the same job.
    struct EarlierRuns : public RunObserver
    {
        void OnInWork(const QStringList&, const QString&) override { Forget(); }
        void OnResult(const FileResult&, int, int) override { Forget(); }
        void Forget();

        std::vector<std::unique_ptr<JournalFile>> journals;
    };

    JournaledJob() = default;

    bool Record(const RunEnd& end);
    void Enter(const BatchJob::JobBundle& bundle);

    std::unique_ptr<JournalFile> file;
    std::unique_ptr<EarlierRuns> earlier = std::make_unique<EarlierRuns>();
    QString document;
    QString folder;
    QVector<RunVariant> variants;
    QString problem;
    std::optional<BatchJob::PolicyValues> policies;
    bool isInPlace = false;
    bool isPart = false;
    UpdateEnd endOfUpdate;
};

} // namespace BatchHost
