// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "DebugLines.h"
#include "PeerProcess.h"
#include "PrivateTempDir.h"
#include "ZTPipeSession.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QLocalSocket;

/// Base class of the tests of pipe sessions. Each test function gets a temporary folder of its own, for its pipes, and
/// the debug lines are collected.
class PipeTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<PrivateTempDir> tempDir;
    std::unique_ptr<DebugLines> lines;

private Q_SLOTS:
    void init();
    void cleanup();
};

/// The names of two pipes of this process.
extern const QString pipeName;
extern const QString otherPipeName;

/// The name of the source in the debug lines of a session's worker.
extern const QString workerSource;

/// What the worker logs when the peer ends the connection.
extern const QStringList linesOfALeavingPeer;

/// Frames, written by hand: the count of the name's bytes, the name in UTF-16, the count of the payload's bytes, the
/// payload, all big-endian.
extern const QByteArray frameA;  ///< name "a", payload "bcd"
extern const QByteArray frame21; ///< name "21", empty payload

/// Waits until `condition` holds, at most 10 seconds, without running this thread's event loop.
bool WaitWithoutEventLoop(const std::function<bool()>& condition);

/// Records the signals of a session, in order: "connected", "down", "sent", and each message as "name=payload".
class SignalLog : public QObject
{
public:
    explicit SignalLog(ZTPipeSession& session);

    int Count(const QString& line) const { return lines.count(line); }

    QStringList lines;
};

/// Both ends of a connection: a session by name in this process, and a peer process.
class ConnectedPair
{
public:
    /// Connects the two; `isConnected` tells whether that succeeded. The log is empty afterwards.
    ConnectedPair();

    PeerProcess peer;
    std::unique_ptr<ZTPipeSession> session;
    std::unique_ptr<SignalLog> log;
    bool isConnected = false;

private:
    Q_DISABLE_COPY(ConnectedPair)
};

/// A socket of this thread that is connected to `peer`.
QLocalSocket* ConnectedSocket(PeerProcess& peer);
