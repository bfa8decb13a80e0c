// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WatchedFolder.h"

#include "RequestError.h"

#include "ZTBatchDocument.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>

namespace BatchHost {

namespace {

/// As programs call what they have not finished.
bool IsTemporary(const QString& path)
{
    constexpr std::array ends{".tmp",        ".temp",     ".part", ".partial", ".filepart",
                              ".crdownload", ".download", ".swp",  "~"};
    const QString name = path.section(QLatin1Char('/'), -1);
    return name.startsWith(QLatin1Char('~')) || std::any_of(ends.begin(), ends.end(), [&name](const char* end) {
               return name.endsWith(QLatin1String(end), Qt::CaseInsensitive);
           });
}

} // namespace

WatchedFolder::Content WatchedFolder::Look() const
{
    Content content;
    content.error = ReadFolder(path).error;
    if (!content.error.isEmpty()) {
        return content;
    }
    ZTBatchDocument none;
    InputCollector collector(none, filter);
    collector.accepts = [&content](const QString& file) {
        if (!IsTemporary(file)) {
            const QFileInfo info(file);
            content.files.append({file, {info.size(), info.lastModified().toMSecsSinceEpoch()}});
        }
        return false;
    };
    collector.onFolder = [&content](const TreeNode<BatchNodeData>& folder) {
        content.folders.append(folder.data.fileName);
    };
    try {
        collector.Add({path});
    } catch (const RequestError& error) { // It has gone meanwhile.
        content.error = error.text;
    }
    content.problems = collector.Problems();
    return content;
}

void WatchedFolder::AddTo(ZTBatchDocument& job, const QVector<SeenFile>& files) const
{
    QSet<QString> wanted;
    for (const SeenFile& file : files) {
        wanted.insert(file.path);
    }
    InputCollector collector(job, filter);
    collector.accepts = [&wanted](const QString& file) { return wanted.contains(file); };
    collector.Add({path});
}

} // namespace BatchHost
