// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "HostLink.h"

#include "job/journal/RunJournal.h"
#include "job/plan/RunPlan.h"
#include "job/values/JobValues.h"

#include <QLockFile>
#include <QPair>
#include <QVector>

#include <memory>

namespace BatchProtocol {
struct Report;
}

namespace BatchSupervisor {

/// What has become of the files of one run: counts it, keeps it in the journal and tells the host.
class RunRecord
{
public:
    RunRecord(const HostLink& host, const QString& journalPath);

    /// Results go to the journal `earlier` from now on, which is locked by `lock`.
    void Continue(BatchJob::RunJournal&& earlier, std::unique_ptr<QLockFile> lock);

    BatchJob::RunJournal& Journal() { return journal; }

    /// Counts a result of an earlier part of the run, which the journal knows.
    void CountEarlier(const BatchJob::JournalState::Result& result);

    /// The result `output` was found on disk: the journal and the host get to know it. It is not counted.
    void AddFound(int file, const QString& input, const QString& output);

    void CountFound() { ++written; }

    /// These results need not be made again. The host reads them in the journal.
    void AddUnchanged(const QVector<QPair<int, BatchJob::JournalState::Result>>& results);

    /// Results that are written from now on are to be recognised later; see FileStamp.
    void StampResults() { stampsResults = true; }

    /// A worker has written the result of `file`, as `report` says.
    void AddWritten(const BatchJob::RunPlan& plan, int file, const BatchProtocol::Report& report);

    /// No result of `file` is written.
    void AddLeftOut(const BatchJob::OutputPlan& names, int file, const BatchJob::Trouble& trouble,
                    BatchJob::Action action);

    void TellTrouble(const BatchJob::OutputPlan& names, int file, const BatchJob::Trouble& trouble,
                     BatchJob::Action action) const;

    int FilesDone() const { return written + unchanged + skipped + failed; }
    void TellProgress() const;

    /// Logs the counts of a run of `files` files that is over, in the way that `how` says.
    void LogTotals(const QString& how, int files) const;

private:
    void TellJournalFailure(const QString& problem) const;
    void TellDeviation(const BatchJob::OutputPlan& names, int file, BatchJob::Action action, ZTBatchMessage::Error code,
                       const QString& result) const;
    BatchJob::FileStamp StampFor(const QString& output) const;
    void LogFacts(const QString& input, const BatchJob::PictureFacts& facts) const;

    const HostLink host;
    const QString journalPath;
    std::unique_ptr<QLockFile> journalLock;
    BatchJob::RunJournal journal;
    int written = 0;
    int unchanged = 0;
    int skipped = 0;
    int failed = 0;
    bool stampsResults = false;
};

} // namespace BatchSupervisor
