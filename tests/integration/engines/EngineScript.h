// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

/// A script of this folder that runs services until its standard input ends: when this object goes, or the process
/// dies.
class EngineScript
{
public:
    /// Starts the script and waits until it is ready.
    EngineScript(const QString& name, const QStringList& arguments, const QProcessEnvironment& environment);
    ~EngineScript();

    bool IsReady() const { return isReady; }

    /// A sentence that says what is not installed here; empty if nothing is missing.
    QString Missing() const { return missing; }

    QByteArray Err() { return process.readAllStandardError(); }

    void Tell(const QByteArray& line);

private:
    Q_DISABLE_COPY(EngineScript)

    QProcess process;
    bool isReady = false;
    QString missing;
};
