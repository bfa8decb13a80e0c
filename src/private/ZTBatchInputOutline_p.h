// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchInputModel.h"

#include <QSet>
#include <QStringList>
#include <QVector>

/// Selects the nodes of an input model that are written to a job's text, and records which are left out and why.
///
/// Refers to the model's records, so it is valid only until the model changes.
class ZTBatchInputOutline
{
public:
    enum Filter { Everything, ExistingOnce };

    /// With ExistingOnce, a node whose path does not exist or is a duplicate is left out with its subtree. The model is
    /// visited level by level, so that of two nodes with the same path the upper one is kept.
    ZTBatchInputOutline(const ZTBatchInputModel& model, Filter filter);

    /// The paths that were left out, each once, in the order of the visit.
    QStringList MissingFiles() const { return missingFiles.inOrder; }
    QStringList DuplicateFiles() const { return duplicateFiles.inOrder; }

    /// Calls `start(record)` before and `end()` after the children of each node. The nodes of a folder are visited in
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

    QVector<Entry> entries; ///< level by level, so that siblings are adjacent
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
    // An explicit stack: recursion would overflow the thread's stack on deep trees.
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
