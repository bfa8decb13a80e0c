// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// A run of velkora-batch as a process, to its end, with its output.
struct CliRun
{
    int exitCode = -1; ///< -1: it crashed or did not end in time
    QByteArray out;
    QByteArray err;

    QString Out() const { return QString::fromUtf8(out); }
    QString Err() const { return QString::fromUtf8(err); }

    static CliRun OfProgram(const QString& program, const QStringList& arguments, const QString& folder,
                            const QProcessEnvironment& environment);

    static CliRun Of(const QStringList& arguments, const QString& folder = QString(),
                     const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
};
