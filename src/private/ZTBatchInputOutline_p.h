#pragma once

#include "ZTBatchInputModel.h"

#include <QSet>
#include <QStringList>
#include <QVector>

/// Which nodes of an input model are written to a job's text, in which order, and which are left out and why.
///
/// Refers to the model's records: it lasts until the model changes.
class ZTBatchInputOutline
{
public:
    enum Filter { Everything, ExistingOnce };

    /// With ExistingOnce, a node whose path does not exist, or was met before, is left out with everything below it.
    /// The model is walked level by level, so that of two nodes with the same path the higher one stays.
    ZTBatchInputOutline(const ZTBatchInputModel& model, Filter filter);

    /// The paths left out, each once, in the order in which they were met.
    QStringList MissingFiles() const { return missingFiles.inOrder; }
    QStringList DuplicateFiles() const { return duplicateFiles.inOrder; }

    /// Calls `start(record)` when a node begins and `end()` when all below it is done. The nodes of a folder come in
    /// the order of their rows.
    template<typename Start, typename End>
    void ForEach(Start start, End end) const;

private:
    Q_DISABLE_COPY(ZTBatchInputOutline)

    struct Entry
    {
        const BatchNodeData* record = nullptr; ///< null for the root
        int firstChild = 0;
        int childrenEnd = 0;
    };

    struct PathList
    {
        QStringList inOrder;
        QSet<QString> known;

        void Add(const QString& path);
    };

    bool IsWritten(const QString& path);

    QVector<Entry> entries; ///< level by level, so that children stand together
    QSet<QString> writtenPaths;
    PathList missingFiles;
    PathList duplicateFiles;
};

template<typename Start, typename End>
void ZTBatchInputOutline::ForEach(Start start, End end) const
{
    struct Range
    {
        int next;
        int end;
    };
    // A stack of its own instead of a recursion: trees can be deeper than the thread's stack bears.
    QVector<Range> open{{entries.first().firstChild, entries.first().childrenEnd}};
    while (true) {
        Range& range = open.last();
        if (range.next != range.end) {
            const Entry& entry = entries.at(range.next++);
            start(*entry.record);
            open.append({entry.firstChild, entry.childrenEnd});
            continue;
        }
        open.removeLast();
        if (open.isEmpty()) {
            return;
        }
        end();
    }
}
