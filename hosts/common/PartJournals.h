// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/journal/RunJournal.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace BatchHost {

/// The journals of the parts of a plan: files beside it, one for each time that a part was run. They stay until the
/// plan is removed, as they are all that is known of the results.
class PartJournals
{
public:
    /// `id` is that of the plan `plan`.
    PartJournals(const QString& plan, const QString& id);

    /// A path for one more journal of the part `part`, from 1. Nobody else gets it.
    QString NewPath(int part) const;

    /// What the runs of a part have done so far.
    struct Known
    {
        QHash<int, BatchJob::JournalState::Result> results; ///< of several for a file, the best
        QStringList makers;                                 ///< what has made them, each once
    };
    Known Of(int part) const;

    /// Removes all of them. False if one stays.
    bool Remove() const;

private:
    QString folder;
    QString nameStart;
    QHash<int, QStringList> paths; ///< by their parts
};

} // namespace BatchHost
