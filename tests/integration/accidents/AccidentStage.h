// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A folder in which the real command makes pictures, and in which something can go wrong meanwhile.
class AccidentStage
{
public:
    AccidentStage();
    ~AccidentStage();

    /// The absolute path of `name` in the folder.
    QString Path(const QString& name) const { return root.filePath(name); }

    /// Writes a file, with the folders above it, and returns its path.
    QString Write(const QString& name, const QByteArray& content) const;

    /// The content of a file; null when there is none.
    QByteArray Content(const QString& name) const;

    /// The names of everything in a folder, hidden ones too, sorted.
    QStringList Names(const QString& folder) const;

    /// Has the command run a server with the worker of tests/helpers/standinworker.
    void UseStandIn();

    /// Starts the command with its events on standard output.
    void Start(const QStringList& arguments);

    /// Waits until standard output has had `text` `count` times.
    bool WaitFor(const QByteArray& text, int count = 1);

    /// Waits for the end of the command, and returns its exit code; -1 for a crash.
    int End();

    /// Both.
    int Run(const QStringList& arguments);

    /// Kills the command, and returns when its server has followed it.
    bool Kill();

    /// The process ids of the workers.
    QList<qint64> Workers() const;

    QByteArray Out() const { return out; }
    QByteArray Err() const { return err; }

private:
    Q_DISABLE_COPY(AccidentStage)

    qint64 Server() const;

    QTemporaryDir root;
    QProcessEnvironment environment;
    QString program;
    std::unique_ptr<QProcess> process;
    QByteArray out;
    QByteArray err;
};
