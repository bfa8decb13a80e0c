// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/journal/RunJournal.h"
#include "job/record/ResultRecord.h"

#include <QString>
#include <QStringList>

namespace BatchHost {

/// Keeps the record of results in an output folder: enters what the journals of updates say. Several processes may keep
/// one record in turn.
class RecordKeeper
{
public:
    explicit RecordKeeper(const QString& outputFolder);

    /// Enters what interrupted updates have written here, and removes their journals. An update that still runs is left
    /// alone.
    void AdoptInterrupted();

    /// Enters what an update has written, of which `state` is the journal. False if it cannot be recorded, see
    /// Problem(): then the journal is needed further on.
    bool Adopt(const BatchJob::JournalState& state);

    /// The same of an update that has finished. Finds its Orphans().
    bool AdoptFinished(const BatchJob::JournalState& state);

    /// Results of earlier runs that the update does not have any more: their inputs are gone, or their inputs have
    /// results of other names now. Only what stands as it was written; paths in their order.
    const QStringList& Orphans() const { return orphans; }

    /// Removes results and forgets them, and folders below the output folder that are empty then. A result that was
    /// changed meanwhile stays. Returns those that could not be removed.
    QStringList Remove(const QStringList& results);

    /// Why the record, as it was found, does not count, for users; empty if it counts, or if there was none.
    QString Damage() const { return damage; }

    /// Why the record cannot be written, for users; empty if it can be.
    QString Problem() const { return problem; }

private:
    bool Adopt(const BatchJob::JournalState& state, bool isFinished);
    QStringList FindOrphans(const BatchJob::JournalState& state, const BatchJob::ResultRecord& record) const;
    bool Enter(const BatchJob::JournalState& state, BatchJob::ResultRecord& record) const;
    bool IsInside(const QString& result) const;
    QString PathBelow(const QString& result) const;

    const QString folder;
    QStringList orphans;
    QString damage;
    QString problem;
};

} // namespace BatchHost
