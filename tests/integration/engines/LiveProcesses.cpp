// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LiveProcesses.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <csignal>
#include <sys/types.h>

namespace {

QByteArray Content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString FolderOf(qint64 pid)
{
    return QStringLiteral("/proc/%1/").arg(pid);
}

} // namespace

QList<qint64> ProcessesWith(const QStringList& variables, const QString& program)
{
    QList<qint64> found;
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        bool isNumber = false;
        const qint64 pid = name.toLongLong(&isNumber);
        if (!isNumber || (!program.isEmpty() && ProgramOf(pid) != program)) {
            continue;
        }
        const QList<QByteArray> entries = Content(FolderOf(pid) + QLatin1String("environ")).split('\0');
        const bool hasAll = std::all_of(variables.begin(), variables.end(), [&entries](const QString& variable) {
            return entries.contains(variable.toUtf8());
        });
        if (hasAll) {
            found.append(pid);
        }
    }
    return found;
}

qint64 ParentOf(qint64 pid)
{
    const QByteArray status = Content(FolderOf(pid) + QLatin1String("stat"));
    // The program's name is in brackets, and may hold some itself.
    return status.mid(status.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
}

QString ProgramOf(qint64 pid)
{
    return QFileInfo(QFile::symLinkTarget(FolderOf(pid) + QLatin1String("exe"))).fileName();
}

void Signal(const QList<qint64>& pids, int number)
{
    for (const qint64 pid : pids) {
        ::kill(static_cast<pid_t>(pid), number);
    }
}
