// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Living processes that were started with all of `variables`, such as "NAME=value", in their environment.
/// `program` is the name of the executable; empty for any.
QList<qint64> ProcessesWith(const QStringList& variables, const QString& program = QString());

/// 0 if there is no such process.
qint64 ParentOf(qint64 pid);

/// The name of its executable; empty if there is no such process.
QString ProgramOf(qint64 pid);

void Signal(const QList<qint64>& pids, int number);
