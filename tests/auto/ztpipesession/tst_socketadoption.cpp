// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeTest.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// Queues an error for the worker that adopts it at the moment at which the worker leaves for the session's thread, and
/// so before anything runs there.
class TroubledSocket : public QLocalSocket
{
protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ThreadChange && parent() != nullptr) {
            isErrorQueued = QMetaObject::invokeMethod(
                parent(), "OnError", Qt::QueuedConnection,
                Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::UnsupportedSocketOperationError));
        }
        return QLocalSocket::event(event);
    }

public:
    bool isErrorQueued = false;
};

} // namespace

/// What an adopted socket may have gone through before its session's thread runs.
class tst_SocketAdoption : public PipeTest
{
    Q_OBJECT

private Q_SLOTS:
    void isReadAfterAnErrorBeforeTheThreadRuns();
};

void tst_SocketAdoption::isReadAfterAnErrorBeforeTheThreadRuns()
{
    qRegisterMetaType<QLocalSocket::LocalSocketError>("QLocalSocket::LocalSocketError");
    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    auto* const socket = new TroubledSocket;
    socket->connectToServer(pipeName);
    QVERIFY(peer.Accept());
    QVERIFY(socket->waitForConnected());

    ZTPipeSession session(socket, nullptr);
    QVERIFY(socket->isErrorQueued);
    QSignalSpy messages(&session, &ZTPipeSession::IncomingMessage);
    QTRY_COMPARE(lines->CountEndingWith(QStringLiteral("] Socket error: 10")), 1);
    // The socket is still connected, and is read although the state says otherwise.
    QVERIFY(!session.IsConnected());
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(messages.count(), 1);
    QCOMPARE(messages.at(0), (QVariantList{QStringLiteral("a"), QByteArrayLiteral("bcd")}));
}

QTEST_GUILESS_MAIN(tst_SocketAdoption)
#include "tst_socketadoption.moc"
