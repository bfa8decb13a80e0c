// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/PictureFacts.h"
#include "job/values/PolicyValues.h"
#include "job/values/ResultKind.h"
#include "job/values/Warning.h"

#include <QDateTime>
#include <QMap>
#include <QString>

namespace BatchHost {

/// What became of one input.
struct FileResult
{
    using Kind = BatchJob::ResultKind;

    QString input;
    QString output;
    Kind kind = Kind::Written;
    int errorCode = 0; ///< a ZTBatchMessage::Error; 0 when it was written
    QString reason;    ///< one sentence; empty when it was written
    BatchJob::Warnings warnings = {};
    BatchJob::PictureFacts facts = {}; ///< of a picture that was written
    QDateTime finished = {};           ///< invalid if it is not known
    qint64 inputBytes = -1;            ///< when the run began; negative for an input that did not exist
};

/// `result` as a strict run counts it: a picture with warnings has failed, although its file is there. The error code
/// stays 0.
FileResult StrictResult(const FileResult& result);

enum class RunOutcome {
    Complete,   ///< every picture has its result
    Incomplete, ///< some were skipped or failed, or a policy stopped the run
    Refused,    ///< the server refused the job
    NoWorkers,  ///< the server could not start a worker
    ServerLost, ///< the server could not be started, or was lost for good
    Cancelled
};

/// How a run ended.
struct RunEnd
{
    int files = 0;
    int written = 0;
    int unchanged = 0;
    int skipped = 0;
    int failed = 0;
    QMap<BatchJob::WarningKind, int> warnings; ///< how many there are of each kind

    /// The skipped and failed files by the policies that decide about them; None for those that were written, but with
    /// warnings.
    QMap<BatchJob::PolicyKind, int> unwritten;

    QMap<BatchJob::PolicyKind, int> unwrittenBefore; ///< those of them that an earlier part of the run has left
    int renamed = 0; ///< results under other names than planned, in this part of the run
    double seconds = 0;
    bool isCancelled = false;
    bool isServerLost = false;
    QString outputFolder;
    int jobErrorCode = 0; ///< a ZTBatchMessage::Error that ended the whole run; 0 when none did
    QString jobError;     ///< and its reason

    int Processed() const { return written + unchanged + skipped + failed; }
    int NotProcessed() const { return files - Processed(); }

    int WarningCount() const;

    RunOutcome Outcome() const;

    /// Whether nothing is left that resuming the run could do.
    bool IsFinished() const { return NotProcessed() == 0 || Outcome() == RunOutcome::Refused; }
};

} // namespace BatchHost
