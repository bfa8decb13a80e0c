// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeTest.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QTest>
#include <QThread>

// On Windows the temporary folder does not keep the pipes of parallel tests apart, so their names have to.
const QString pipeName = QStringLiteral("pipe-%1").arg(QCoreApplication::applicationPid());
const QString otherPipeName = QStringLiteral("other-%1").arg(QCoreApplication::applicationPid());
const QString workerSource = QStringLiteral("src\\private\\ZTPipeSession_p");

#ifdef Q_OS_WIN
// On Windows the end of a connection is no error.
const QStringList linesOfALeavingPeer;
#else
const QStringList linesOfALeavingPeer{QStringLiteral("Socket error: 1")};
#endif

const QByteArray frameA = QByteArray::fromHex("00000002"
                                              "0061"
                                              "00000003"
                                              "626364");
const QByteArray frame21 = QByteArray::fromHex("00000004"
                                               "00320031"
                                               "00000000");

void PipeTest::init()
{
    tempDir = std::make_unique<PrivateTempDir>();
    lines = std::make_unique<DebugLines>();
}

void PipeTest::cleanup()
{
    lines.reset();
    tempDir.reset();
}

bool WaitWithoutEventLoop(const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(10000);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::yieldCurrentThread();
    }
    return true;
}

SignalLog::SignalLog(ZTPipeSession& session)
{
    connect(&session, &ZTPipeSession::SessionConnected, this, [this] { lines.append(QStringLiteral("connected")); });
    connect(&session, &ZTPipeSession::SessionDown, this, [this] { lines.append(QStringLiteral("down")); });
    connect(&session, &ZTPipeSession::MessageSent, this, [this] { lines.append(QStringLiteral("sent")); });
    connect(&session, &ZTPipeSession::IncomingMessage, this, [this](const QString& name, const QByteArray& payload) {
        lines.append(name + QLatin1Char('=') + QString::fromLatin1(payload));
    });
}

ConnectedPair::ConnectedPair()
{
    const bool isListening = peer.Listen(pipeName);
    session = std::make_unique<ZTPipeSession>(pipeName, nullptr);
    log = std::make_unique<SignalLog>(*session);
    isConnected = isListening && peer.Accept() &&
                  QTest::qWaitFor(
                      [this] { return session->IsConnected() && log->Count(QStringLiteral("connected")) == 1; }, 10000);
    log->lines.clear();
}

QLocalSocket* ConnectedSocket(PeerProcess& peer)
{
    auto* socket = new QLocalSocket;
    if (peer.Listen(pipeName)) {
        socket->connectToServer(pipeName);
        peer.Accept();
    }
    return socket;
}
