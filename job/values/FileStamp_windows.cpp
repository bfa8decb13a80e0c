// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileStamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace BatchJob {

namespace {

std::optional<FileStamp> StampOf(const QFileInfo& file)
{
    if (!file.isFile()) {
        return std::nullopt;
    }
    constexpr qint64 nanoseconds = 1'000'000;
    return FileStamp{file.size(), file.lastModified().toMSecsSinceEpoch() * nanoseconds, 0};
}

} // namespace

std::optional<FileStamp> StampOf(const QString& path)
{
    return StampOf(QFileInfo(path));
}

std::optional<FileStamp> StampOfResult(const QString& path)
{
    const QFileInfo file(path);
    return file.isSymLink() ? std::nullopt : StampOf(file);
}

} // namespace BatchJob
