// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/journal/RunJournal.h"
#include "job/settings/JobBundle.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class ZTBatchDocument;

namespace BatchHost {

/// The runs that were interrupted in an output folder, by the journals there. A journal counts only if nobody but this
/// user can have written it, and if its job writes into this very folder.
class InterruptedRuns
{
public:
    struct Run
    {
        QString journal;                                  ///< path
        std::optional<BatchJob::JournalState> state = {}; ///< nothing if the journal is damaged
        bool isRunning = false;                           ///< in another process: the run is not interrupted

        /// Tells the run from others in its folder: 8 hexadecimal digits.
        QString Name() const;

        /// One line for users: the name, when the run began, how far it got, and its inputs.
        QString Description() const;
    };

    /// Which run is to be resumed.
    struct Wanted
    {
        bool isThisJob = false; ///< the one of the given job, and no other
        QString name = {};      ///< Run::Name(); empty for any
    };

    explicit InterruptedRuns(const QString& outputFolder);

    /// One sentence for each journal that does not count, with the reason.
    const QStringList& Ignored() const { return ignored; }

    /// The oldest first; running ones too.
    const std::vector<Run>& All() const { return runs; }

    /// How many runs are interrupted and not running.
    int Count() const;

    /// The run to resume: the one with the wanted name; without a name the one of `job`, else the only one, unless it
    /// has to be this job. Throws RequestError.
    const Run& Choose(const ZTBatchDocument& job, const Wanted& wanted) const;

    /// The same for several jobs; `job` is the first of them.
    const Run& Choose(const ZTBatchDocument& job, const BatchJob::JobBundle& bundle, const Wanted& wanted) const;

private:
    const Run& ChooseByName(const QString& name) const;
    const Run* RunOf(const ZTBatchDocument& job, const BatchJob::JobBundle& bundle) const;
    QStringList Descriptions() const;

    QString folder;
    std::vector<Run> runs; ///< the oldest first
    QStringList ignored;
};

} // namespace BatchHost
