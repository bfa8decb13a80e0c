// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeTest.h"

#include "DeathCase.h"
#include "MetaMethods.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>

/// The interface of a session, sessions on adopted sockets, and the assertions.
class tst_ZTPipeSession : public PipeTest
{
    Q_OBJECT

private Q_SLOTS:
    void metaMethods();
    void workerMetaMethods();

    void adoptedSocketIsConnectedAtOnce();
    void adoptedSocketSendsWithoutMessageSent();
    void adoptedSocketThatIsNotConnected();
    void adoptedSocketReadsAfterRunReadCycle();
    void nullSocket();
    void runReadCycleDoesNotDoubleMessages();

    void failedAssertions_data();
    void failedAssertions();
};

void tst_ZTPipeSession::metaMethods()
{
    QCOMPARE(ZTPipeSession::staticMetaObject.className(), "ZTPipeSession");
    QCOMPARE(ZTPipeSession::staticMetaObject.superClass()->className(), "QThread");
    QCOMPARE(OwnMetaMethods(ZTPipeSession::staticMetaObject),
             (QStringList{QStringLiteral("public signal SessionDown()"),
                          QStringLiteral("public signal IncomingMessage(QString,QByteArray)"),
                          QStringLiteral("public signal SessionConnected()"),
                          QStringLiteral("public signal WriteMessage(QString,QByteArray)"),
                          QStringLiteral("public signal ReconnectToServer(QString)"),
                          QStringLiteral("public signal RunUpdateReadTimer()"),
                          QStringLiteral("public signal MessageSent()")}));
    const QMetaMethod incoming = ZTPipeSession::staticMetaObject.method(
        ZTPipeSession::staticMetaObject.indexOfSignal("IncomingMessage(QString,QByteArray)"));
    QCOMPARE(incoming.parameterNames(), (QList<QByteArray>{"message", "data"}));
}

void tst_ZTPipeSession::workerMetaMethods()
{
    auto* socket = new QLocalSocket;
    const ZTPipeSession session(socket, nullptr);
    QCOMPARE(
        OwnMetaMethods(*socket->parent()->metaObject()),
        (QStringList{QStringLiteral("public signal SessionDown()"), QStringLiteral("public signal SessionConnected()"),
                     QStringLiteral("public signal IncomingMessage(QString,QByteArray)"),
                     QStringLiteral("public signal MessageSent()"), QStringLiteral("public slot OnReadyRead()"),
                     QStringLiteral("public slot OnConnected()"),
                     QStringLiteral("public slot OnError(QLocalSocket::LocalSocketError)"),
                     QStringLiteral("public slot OnDisconnected()"),
                     QStringLiteral("public slot Write(QString,QByteArray)"),
                     QStringLiteral("public slot Reconnect(QString)"), QStringLiteral("public slot OnRunTimer()")}));
}

void tst_ZTPipeSession::adoptedSocketIsConnectedAtOnce()
{
    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    QVERIFY(peer.Write(frame21));
    ZTPipeSession session(socket, nullptr);
    const SignalLog log(session);
    QVERIFY(session.IsConnected());
    QVERIFY(session.WaitForConnected(0));
    QCOMPARE(socket->thread(), &session);
    QVERIFY(socket->parent());

    QTRY_COMPARE(log.lines, QStringList{QStringLiteral("21=")});
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(log.lines, (QStringList{QStringLiteral("21="), QStringLiteral("a=bcd")}));
    QVERIFY(peer.Disconnect());
    QTRY_COMPARE(log.lines.value(2), QStringLiteral("down"));
    QVERIFY(!session.IsConnected());
    QCOMPARE(log.lines.size(), 3);
}

void tst_ZTPipeSession::adoptedSocketSendsWithoutMessageSent()
{
    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    ZTPipeSession session(socket, nullptr);
    const SignalLog log(session);
    session.Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    // The signals are in order: when the answer has arrived, all earlier signals have been delivered.
    QVERIFY(peer.Write(frame21));
    QTRY_COMPARE(log.lines, QStringList{QStringLiteral("21=")});
}

void tst_ZTPipeSession::adoptedSocketThatIsNotConnected()
{
    ZTPipeSession session(new QLocalSocket, nullptr);
    QVERIFY(!session.IsConnected());
    QVERIFY(!session.WaitForConnected(10));
    session.Send(QStringLiteral("a"), QByteArray());
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 19")});
}

void tst_ZTPipeSession::adoptedSocketReadsAfterRunReadCycle()
{
    // A session on an adopted socket does not notice a new connection: RunReadCycle() starts the reading.
    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(new QLocalSocket, nullptr);
    const SignalLog log(session);
    session.Reconnect(pipeName);
    QVERIFY(peer.Accept());
    QTRY_VERIFY(session.WaitForConnected(0));
    QVERIFY(!session.IsConnected());
    QVERIFY(peer.Write(frameA));
    session.RunReadCycle();
    QTRY_COMPARE(log.lines, QStringList{QStringLiteral("a=bcd")});
}

void tst_ZTPipeSession::nullSocket()
{
    {
        ZTPipeSession session(static_cast<QLocalSocket*>(nullptr), nullptr);
        QSignalSpy sent(&session, SIGNAL(MessageSent()));
        QVERIFY(session.isRunning());
        QVERIFY(!session.IsConnected());
        QVERIFY(!session.WaitForConnected(10));
        session.Send(QStringLiteral("a"), QByteArrayLiteral("lost"));
        session.RunReadCycle();
        // A timer on the session's own thread, which fires after some polls without a socket.
        QObject onThread;
        onThread.moveToThread(&session);
        std::atomic<bool> polled{false};
        QTimer::singleShot(50, &onThread, [&] {
            onThread.moveToThread(session.thread());
            polled = true;
        });
        QTRY_VERIFY(polled);
        QCOMPARE(sent.count(), 0);
    }
    QCOMPARE(lines->All(), QStringList());
}

void tst_ZTPipeSession::runReadCycleDoesNotDoubleMessages()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    for (int i = 0; i < 10; ++i) {
        pair.session->RunReadCycle();
    }
    QVERIFY(pair.peer.Write(frameA + frame21));
    QTRY_COMPARE(pair.log->lines, (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21=")}));
}

void tst_ZTPipeSession::failedAssertions_data()
{
    QTest::addColumn<QString>("deathCase");
    QTest::addColumn<QString>("source");

    QTest::newRow("IsConnected without worker")
        << QStringLiteral("pipe-is-connected-without-worker") << QStringLiteral("src\\ZTPipeSession");
    QTest::newRow("WaitForConnected without worker")
        << QStringLiteral("pipe-wait-without-worker") << QStringLiteral("src\\ZTPipeSession");
    QTest::newRow("reading on a foreign thread") << QStringLiteral("pipe-read-on-foreign-thread") << workerSource;
}

void tst_ZTPipeSession::failedAssertions()
{
    QFETCH(QString, deathCase);
    QFETCH(QString, source);

    const DeathReport report = RunDeathCase(deathCase);
    QVERIFY2(report.EndedByAssertOf(source), qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ZTPipeSession)
#include "tst_ztpipesession.moc"
