// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/journal/RunJournal.h"
#include "job/plan/RunPlan.h"
#include "job/record/Recipe.h"
#include "job/record/UpdateCheck.h"
#include "job/settings/JobCheck.h"
#include "server/protocol/WorkerMessages.h"

#include <QLockFile>
#include <QSet>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

namespace BatchSupervisor {

/// What happens in a run before its first picture is touched, and what comes out of it. ReadJob() and MakeNames() ask
/// the file system a lot and belong on a background thread. Use it on one thread at a time.
struct RunPreparation
{
    using Cancelled = BatchJob::OutputPlan::Cancelled;

    /// Reads the job and the journal at `journalPath`, which may be empty, and makes the plan, without names yet.
    void ReadJob(QString document, const QString& journalPath, const Cancelled& isCancelled);

    /// Locks the journal, opens it and reads it. A journal of another job than `document` is ignored. One that cannot
    /// be used is refused: without it, results could be made twice.
    void OpenJournal(const QString& path, const QString& document);

    /// Enters the results of an earlier part of the run in the plan. A result that the journal only announced counts as
    /// written if its file has changed since: results are whole or absent.
    void EnterEarlierResults();

    /// Makes the names and removes what an earlier run has left unfinished in the folders of the results. Finds results
    /// that are missing in an incomplete journal. Refuses a job with shared names if `refusesSharedNames` and the
    /// policies would skip such files.
    void MakeNames(const BatchJob::Policies& policies, const Cancelled& isCancelled);

    /// Where the journal lacks lines, a file under the name of a result that is newer than the run counts as that
    /// result. To be called with names.
    void FindUnjournaledResults();

    /// Prepares an update of the results that the record in `folder` knows: finds those that are as they were written.
    void ReadRecord(const QString& folder, const Cancelled& isCancelled);

    /// Finds the results that need not be made again. To be called with names.
    void FindUnchanged(const Cancelled& isCancelled);
    const BatchJob::RecordedResult* UnchangedResult(int index) const;

    BatchJob::Refusal refusal; ///< when there is one, there is no plan
    QStringList settings;      ///< the job, or each of a bundle, without inputs
    BatchProtocol::WorkerRights rightsToProbe;
    BatchProtocol::WorkerRights rightsToMake;
    BatchJob::RunPlan plan;
    std::unique_ptr<QLockFile> journalLock; ///< keeps other servers away from the journal
    BatchJob::RunJournal journal;           ///< open if there is an earlier part of the run
    std::optional<BatchJob::JournalState> earlier;
    QVector<int> unreported;  ///< files whose results were finished, but not journaled
    QStringList placeholders; ///< empty files in the places of results that were begun
    QVector<int> unjournaled; ///< the same of files that were not even begun by the journal; known with the names
    QVector<BatchJob::Recipe> recipes;           ///< of an update, one for each job
    std::optional<BatchJob::UpdateCheck> update; ///< nothing if all results are to be made
    QSet<QString> ownResults;                    ///< paths of results of earlier runs that an update may replace
    QString recordProblem;                       ///< why the record of results does not count, for users
    QVector<QPair<int, BatchJob::JournalState::Result>> unchanged; ///< files whose results need not be made again
    QString outputRoot;                                            ///< of PictureTasks; known before the names
    bool replacesOriginals = false;
    bool refusesSharedNames = false;
    int removedFiles = 0; ///< unfinished files of earlier runs
    int unclearFiles = 0; ///< those that may be in work, as the file system has no locks
};

/// The files of a run that are still to be probed, or whose probe is not over.
class ProbeQueue
{
public:
    ProbeQueue() = default;
    explicit ProbeQueue(const QVector<int>& files)
        : files(files)
        , open(files.size())
    {
    }

    int Count() const { return files.size(); }
    int NotBegun() const { return files.size() - next; }

    /// Only when NotBegun() is not 0.
    int Begin() { return files[next++]; }

    /// Counts one probe that is over. True for the last one.
    bool Finish() { return --open == 0; }

private:
    QVector<int> files;
    int next = 0;
    int open = 0;
};

} // namespace BatchSupervisor
