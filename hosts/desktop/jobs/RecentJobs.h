// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace BatchDesktop {

/// The files of the jobs that were used last, the newest first.
class RecentJobs
{
public:
    /// They are kept in `file`.
    explicit RecentJobs(const QString& file);

    QStringList All() const;
    void Add(const QString& path);
    void Remove(const QString& path);
    void Clear();

private:
    void Set(const QStringList& paths);

    QString file;
};

} // namespace BatchDesktop
