// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliRun.h"

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// velkora-batch in a folder of its own, beside the server that a test wants, and a working folder. Needs no picture
/// worker.
class CliStage
{
public:
    enum class Server {
        Missing,
        Scripted,      ///< see tests/helpers/scriptedserver
        WithoutWorker, ///< the real one alone
        StandIn        ///< the real one, with the worker of tests/helpers/standinworker
    };

    explicit CliStage(Server server);

    QString Program() const;

    /// Adds the stand-in worker to a stage without a worker.
    void PlaceWorker() const;

    /// The rules of the scripted server, for servers that start from now on.
    void Play(const QStringList& rules) const;

    /// The rules for servers that start after one has done the action "next".
    void PlayNext(const QStringList& rules) const;

    /// The absolute path of `name` in the working folder.
    QString Path(const QString& name) const { return work.filePath(name); }

    /// Writes a file, with the folders above it, and returns its path.
    QString Write(const QString& name, const QByteArray& content) const;

    /// The content of a file; null when there is none.
    QByteArray Content(const QString& name) const;

    /// The names of all files in a folder, hidden ones too, sorted.
    QStringList Names(const QString& folder) const;

    /// `arguments`, split at blanks, with a settings folder of its own for commands that read settings.
    QStringList Arguments(const QString& arguments) const;

    /// Runs the program to its end.
    CliRun Run(const QString& arguments) const
    {
        return CliRun::OfProgram(Program(), Arguments(arguments), work.path(), environment);
    }

    QString Folder() const { return work.path(); }
    const QProcessEnvironment& Environment() const { return environment; }

private:
    Q_DISABLE_COPY(CliStage)

    QString Executable(const QString& name) const;
    void Place(const QString& built, const QString& name) const;

    QTemporaryDir programs;
    QTemporaryDir work;
    QProcessEnvironment environment;
};
