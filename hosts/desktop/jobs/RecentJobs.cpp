// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RecentJobs.h"

#include <QSettings>

namespace BatchDesktop {

namespace {

const QString key = QStringLiteral("recentJobs");

} // namespace

RecentJobs::RecentJobs(const QString& file)
    : file(file)
{
}

QStringList RecentJobs::All() const
{
    return QSettings(file, QSettings::IniFormat).value(key).toStringList();
}

void RecentJobs::Add(const QString& path)
{
    constexpr int most = 10;
    QStringList paths = All();
    paths.removeAll(path);
    paths.prepend(path);
    Set(paths.mid(0, most));
}

void RecentJobs::Remove(const QString& path)
{
    QStringList paths = All();
    paths.removeAll(path);
    Set(paths);
}

void RecentJobs::Clear()
{
    Set({});
}

void RecentJobs::Set(const QStringList& paths)
{
    QSettings(file, QSettings::IniFormat).setValue(key, paths);
}

} // namespace BatchDesktop
