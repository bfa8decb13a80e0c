#pragma once

#include "job/journal/RunJournal.h"

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
    };

    explicit InterruptedRuns(const QString& outputFolder);

    /// One sentence for each journal that does not count, with the reason.
    const QStringList& Ignored() const { return ignored; }

    /// The run to resume: the one of `job`; without that the only one, unless `isThisJob`. Throws RequestError.
    const Run& Choose(const ZTBatchDocument& job, bool isThisJob) const;

private:
    const Run* RunOf(const ZTBatchDocument& job) const;

    QString folder;
    std::vector<Run> runs;
    QStringList ignored;
};

} // namespace BatchHost
