// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Controls the scripted server beside the test's executable, see ScriptedServer: writes its script and reads its
/// records. Created first in a test; the destructor kills the servers that are still alive.
class ServerStage
{
public:
    ServerStage();
    ~ServerStage();

    /// Sets the rules for every server that starts from now on.
    void SetRules(const QStringList& rules);

    /// The server's executable.
    static QString ServerPath();

    /// The pipe that a server opens when the manager starts it.
    static QString PipeName();

    /// Removes the executable and puts it back.
    void HideServer();
    void ShowServer();

    /// The events of all servers so far, in order.
    QStringList Events() const;
    int Count(const QString& event) const;

    /// The bytes received on the n-th connection.
    QByteArray Received(int connection = 1) const;

    /// The identifier in the first message of the first connection, which creates a session; empty before that message.
    QString SessionId() const;

    /// The process ids of the servers that are alive.
    QList<qint64> LivingServers() const;

private:
    Q_DISABLE_COPY(ServerStage)

    void RemoveRecords();
};
