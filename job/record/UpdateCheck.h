// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ResultRecord.h"

#include <QSet>
#include <QString>

#include <functional>

namespace BatchJob {

/// Tells what an update has to make. Asks the file system about each result and each input; use it on one thread at a
/// time.
class UpdateCheck
{
public:
    using Cancelled = std::function<bool()>;

    UpdateCheck() = default;

    /// For results that go below `folder`, whose record is `record`. Without `comparesContents`, files with equal sizes
    /// and times are equal.
    UpdateCheck(const QString& folder, const ResultRecord& record, bool comparesContents);

    /// The paths of all recorded results that stand as they were written. Incomplete when it was cancelled.
    QSet<QString> FindStanding(const Cancelled& isCancelled);

    /// What is recorded of the result at `output`, if making it again from `input` by `recipe` would give the same;
    /// else null. To be called after FindStanding().
    const RecordedResult* Unchanged(const QString& output, const QString& input, const QString& recipe) const;

    /// Whether the result at `output` still stands as it was written, so that a new one may take its place.
    bool IsOwn(const QString& output) const;

private:
    const RecordedResult* Find(const QString& output) const;
    bool Stands(const QString& output, const FileStamp& now, const RecordedResult& recorded) const;

    QString folderStart; ///< with a slash at the end
    ResultRecord record;
    bool comparesContents = false;
    QHash<QString, FileStamp> standing; ///< as FindStanding() has seen them
};

} // namespace BatchJob
