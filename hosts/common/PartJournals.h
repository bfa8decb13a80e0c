// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/journal/RunJournal.h"
#include "job/parts/PartPlan.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace BatchHost {

/// The journals of the parts of a plan: files beside it, one for each time that a part was run. They stay until the
/// plan is removed, as they are all that is known of the results.
class PartJournals
{
public:
    /// `plan` is in the file `path`.
    PartJournals(const QString& path, const BatchJob::PartPlan& plan);

    /// A path for one more journal of the part `part`, from 1. Nobody else gets it.
    QString NewPath(int part) const;

    /// What the runs of a part have done so far.
    struct Known
    {
        /// Of several for a file, the last one that was written, else the last one. Those that others have made have a
        /// warning.
        QHash<int, BatchJob::JournalState::Result> results;
        QVector<BatchJob::Versions> others; ///< what has made some of them, other than the plan; each once
    };
    Known Of(int part) const;

    /// Removes all of them. False if one stays.
    bool Remove() const;

private:
    QString folder;
    QString nameStart;
    BatchJob::Versions makersOfPlan;
    QHash<int, QStringList> paths; ///< by their parts
};

/// Whether the result in the file `output`, which a journal says was written, is still there as far as its size tells.
bool IsStillThere(const BatchJob::JournalState::Result& result, const QString& output);

/// Says that a picture was made with `makers`, but the plan with `ofPlan`.
BatchJob::Warning WarningOfMakers(const BatchJob::Versions& makers, const BatchJob::Versions& ofPlan);

} // namespace BatchHost
