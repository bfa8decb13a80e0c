// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "UpdateCheck.h"

#include <QDir>

namespace BatchJob {

UpdateCheck::UpdateCheck(const QString& folder, const ResultRecord& record, bool comparesContents)
    : folderStart(QDir::cleanPath(folder))
    , record(record)
    , comparesContents(comparesContents)
{
    if (!folderStart.endsWith(QLatin1Char('/'))) {
        folderStart += QLatin1Char('/');
    }
}

QSet<QString> UpdateCheck::FindStanding(const Cancelled& isCancelled)
{
    QSet<QString> paths;
    paths.reserve(record.size());
    standing.reserve(record.size());
    for (auto it = record.constBegin(); it != record.constEnd() && !(isCancelled && isCancelled()); ++it) {
        const QString output = folderStart + it.key();
        const std::optional<FileStamp> now = StampOfResult(output);
        if (now && Stands(output, *now, *it)) {
            standing.insert(output, *now);
            paths.insert(output);
        }
    }
    return paths;
}

const RecordedResult* UpdateCheck::Unchanged(const QString& output, const QString& input, const QString& recipe) const
{
    const RecordedResult* const recorded = standing.contains(output) ? Find(output) : nullptr;
    if (!recorded || recorded->input != input || recorded->recipe != recipe) {
        return nullptr;
    }
    const std::optional<FileStamp> now = StampOf(input);
    if (!now) {
        return nullptr;
    }
    if (comparesContents) {
        const bool isSame = !recorded->inputChecksum.isEmpty() && recorded->inputChecksum == ChecksumOf(input);
        return isSame ? recorded : nullptr;
    }
    return *now == recorded->inputStamp ? recorded : nullptr;
}

bool UpdateCheck::IsOwn(const QString& output) const
{
    const auto seen = standing.constFind(output);
    return seen != standing.constEnd() && StampOfResult(output) == *seen;
}

const RecordedResult* UpdateCheck::Find(const QString& output) const
{
    const auto found = record.constFind(output.mid(folderStart.size()));
    return found == record.constEnd() ? nullptr : &*found;
}

/// Whether `output`, which looks like `now`, is as it was written.
bool UpdateCheck::Stands(const QString& output, const FileStamp& now, const RecordedResult& recorded) const
{
    if (comparesContents && !recorded.checksum.isEmpty()) {
        return now.bytes == recorded.stamp.bytes && ChecksumOf(output) == recorded.checksum;
    }
    return now.LooksLike(recorded.stamp);
}

} // namespace BatchJob
