// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ServerScript.h"

#include <QByteArray>
#include <QHash>
#include <QLocalServer>
#include <QObject>
#include <QStringList>

class QLocalSocket;

/// A batch server that does only what its script says; without a rule for message 21 it ends at that message. It keeps
/// records beside the executable: events as lines of "<executable>.events", the bytes received on the n-th connection
/// in
/// "<executable>.in.<n>".
///
/// Actions:
///
///     open              takes over the pipe that the host has made, or opens the one that the argument names
///     close             stops listening; connections stay open
///     wait MS           waits; actions that are triggered meanwhile wait too
///     send NAME FIELDS  a message on the latest connection, see Wire::Payload()
///     cut BYTES NAME .. only the first bytes of such a message
///     raw HEX           bytes on the latest connection
///     flood COUNT       progress messages 0 to COUNT - 1 in one burst; the event "flood NS" has the time of its start
///     note TEXT         records an event
///     disconnect        closes the latest connection
///     next              servers that start from now on use "<executable>.script.next"
///     exit CODE, crash, abort, hang
class ScriptedServer : public QObject
{
    Q_OBJECT

public:
    ScriptedServer(const QString& basePath, const QString& pipeName);

    void Begin();

private:
    void Trigger(const QString& trigger);
    void DoPending();
    void Do(const QString& action);
    void Open();
    void OnConnection();
    void OnBytes(QLocalSocket* socket, int number);
    void OnMessage(const QString& name, const QByteArray& payload, int number);
    void Write(const QByteArray& bytes);
    void Flood(int count);
    void Note(const QString& event);

    QString basePath;
    QString pipeName;
    ServerScript script;
    QLocalServer server;
    QLocalSocket* latestConnection = nullptr;
    QHash<QLocalSocket*, QByteArray> unparsed;
    QString sessionId;
    QStringList pending;
    bool isWaiting = false;
};
