// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeTest.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <vector>

/// Connecting by name, losing the connection, and reconnecting.
class tst_PipeConnection : public PipeTest
{
    Q_OBJECT

private Q_SLOTS:
    void byNameIsNotConnectedAtFirst();
    void connectedReachesALateReceiver();
    void connectedComesBeforeWhatFollows_data();
    void connectedComesBeforeWhatFollows();
    void connectsWithoutAnEventLoop();
    void waitForConnected();
    void waitForConnectedNeedsNoEventLoop();
    void attemptsThatTakeTheirTime();
    void failedAttemptIsRevivedByReconnect();
    void failedAttemptsAreLoggedOnly();

    void downWhenThePeerCloses();
    void downWhenThePeerDies();
    void socketErrors_data();
    void socketErrors();

    void reconnectWhileConnected();
    void reconnectToNobody();
    void reconnectWithUnsentData();
    void remainderNeverSpoilsTheNextConnection_data();
    void remainderNeverSpoilsTheNextConnection();
};

void tst_PipeConnection::byNameIsNotConnectedAtFirst()
{
    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(pipeName, nullptr);
    QVERIFY(session.isRunning());
    QVERIFY(!session.IsConnected());
    QVERIFY(peer.Accept());
    QTRY_VERIFY(session.IsConnected());
    QCOMPARE(lines->All(), QStringList());
}

void tst_PipeConnection::connectedReachesALateReceiver()
{
    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(pipeName, nullptr);
    QVERIFY(peer.Accept());
    QSignalSpy connected(&session, SIGNAL(SessionConnected()));
    QTRY_COMPARE(connected.count(), 1);
    QVERIFY(session.IsConnected());

    // All other signals come after it, and it comes only once.
    QVERIFY(peer.Write(frameA));
    QSignalSpy incoming(&session, SIGNAL(IncomingMessage(QString, QByteArray)));
    QTRY_COMPARE(incoming.count(), 1);
    QCOMPARE(connected.count(), 1);
}

void tst_PipeConnection::connectedComesBeforeWhatFollows_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QStringList>("events");

    QTest::newRow("message sent") << QStringLiteral("send")
                                  << QStringList{QStringLiteral("connected"), QStringLiteral("sent")};
    QTest::newRow("message received") << QStringLiteral("read")
                                      << QStringList{QStringLiteral("connected"), QStringLiteral("a=bcd")};
    QTest::newRow("another connection") << QStringLiteral("reconnect")
                                        << QStringList{QStringLiteral("connected"), QStringLiteral("down"),
                                                       QStringLiteral("connected")};
    QTest::newRow("end") << QStringLiteral("end")
                         << QStringList{QStringLiteral("connected"), QStringLiteral("a=bcd"), QStringLiteral("down")};
}

void tst_PipeConnection::connectedComesBeforeWhatFollows()
{
    QFETCH(QString, what);
    QFETCH(QStringList, events);

    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);

    // All of this happens while this thread's event loop does not run.
    QVERIFY(peer.Accept());
    if (what == QLatin1String("send")) {
        session.Send(QStringLiteral("21"), QByteArrayLiteral(""));
        QCOMPARE(peer.Read(frame21.size()), frame21);
    } else if (what == QLatin1String("read")) {
        session.RunReadCycle();
        QVERIFY(peer.Write(frameA));
    } else if (what == QLatin1String("reconnect")) {
        session.Reconnect(pipeName);
        QVERIFY(peer.Accept());
    } else {
        QVERIFY(peer.Write(frameA));
        peer.Die();
        QVERIFY(WaitWithoutEventLoop([&] { return lines->TextsFrom(workerSource) == linesOfALeavingPeer; }));
    }
    QTRY_COMPARE(log.lines, events);
}

void tst_PipeConnection::connectsWithoutAnEventLoop()
{
    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);
    QVERIFY(WaitWithoutEventLoop([&] { return session.IsConnected(); }));
    // When the event loop runs after all, it does not emit the signal a second time.
    QVERIFY(peer.Accept());
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(log.lines, (QStringList{QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_PipeConnection::waitForConnected()
{
    ZTPipeSession nobody(pipeName, nullptr);
    QVERIFY(!nobody.WaitForConnected(0));
    QVERIFY(!nobody.WaitForConnected(50));

    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(pipeName, nullptr);
    QVERIFY(session.WaitForConnected(1000));
    QTRY_VERIFY(session.IsConnected());
    QVERIFY(session.WaitForConnected(0));
}

void tst_PipeConnection::waitForConnectedNeedsNoEventLoop()
{
    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);
    QVERIFY(session.WaitForConnected(1000));
    QVERIFY(WaitWithoutEventLoop([&] { return session.IsConnected(); }));
    // The event that is queued for this thread's event loop does not emit the signal a second time.
    QVERIFY(peer.Accept());
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(log.lines, (QStringList{QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_PipeConnection::attemptsThatTakeTheirTime()
{
#ifdef Q_OS_WIN
    QSKIP("On Windows an attempt ends inside the call that makes it.");
#endif
    // A socket has to wait when the server's queue is full of connections that it has not accepted.
    QLocalServer server;
    QVERIFY(server.listen(pipeName));
    std::vector<std::unique_ptr<QLocalSocket>> queue;
    do {
        queue.push_back(std::make_unique<QLocalSocket>());
        queue.back()->connectToServer(pipeName);
    } while (queue.back()->state() == QLocalSocket::ConnectedState && queue.size() < 1000);
    QCOMPARE(queue.back()->state(), QLocalSocket::ConnectingState);

    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);
    auto impatient = std::make_unique<ZTPipeSession>(pipeName, nullptr);
    auto adopted = std::make_unique<ZTPipeSession>(queue.back().release(), nullptr);
    queue.pop_back();
    QVERIFY(!session.IsConnected());
    QVERIFY(!adopted->IsConnected());
    QVERIFY(!impatient->WaitForConnected(30));
    delete new ZTPipeSession(pipeName, nullptr);
    // Both are connecting on their threads when they are deleted: the server cannot accept them while this thread is
    // busy here.
    impatient->Send(QStringLiteral("a"), QByteArray());
    adopted->Send(QStringLiteral("a"), QByteArray());
    QVERIFY(WaitWithoutEventLoop([&] { return lines->CountEndingWith(QStringLiteral("] Socket error: 19")) >= 2; }));
    impatient.reset();
    adopted.reset();
    QCOMPARE(log.lines, QStringList());

    // Now this thread's event loop runs, and the server accepts the rest.
    QTRY_COMPARE(log.lines, QStringList{QStringLiteral("connected")});
    QVERIFY(session.IsConnected());
}

void tst_PipeConnection::failedAttemptIsRevivedByReconnect()
{
    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);
    QVERIFY(!session.IsConnected());
    QCOMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 2")});

    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    session.Reconnect(pipeName);
    QVERIFY(peer.Accept());
    QTRY_COMPARE(log.lines, QStringList{QStringLiteral("connected")});
    QVERIFY(session.IsConnected());

    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(log.lines.value(1), QStringLiteral("a=bcd"));
    session.Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QCOMPARE(peer.Read(frame21.size()), frame21);
}

void tst_PipeConnection::failedAttemptsAreLoggedOnly()
{
    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);
    for (int attempts = 2; attempts <= 4; ++attempts) {
        session.Reconnect(pipeName);
        QTRY_COMPARE(lines->CountEndingWith(QStringLiteral("] Socket error: 2")), attempts);
    }
    QVERIFY(!session.IsConnected());
    QCOMPARE(log.lines, QStringList());
}

void tst_PipeConnection::downWhenThePeerCloses()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVERIFY(pair.peer.Disconnect());
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("down")});
    QVERIFY(!pair.session->IsConnected());
    QVERIFY(!pair.session->WaitForConnected(0));
    QCOMPARE(lines->TextsFrom(workerSource), linesOfALeavingPeer);
}

void tst_PipeConnection::downWhenThePeerDies()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    pair.peer.Die();
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("down")});
    QVERIFY(!pair.session->IsConnected());
}

void tst_PipeConnection::socketErrors_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("connection error") << int(QLocalSocket::ConnectionError) << QStringList{QStringLiteral("down")}
                                      << QStringList();
    for (const int error : {0, 1, 2, 3, 4, 5, 6, 10, 19, -1}) {
        QTest::addRow("%d", error) << error << QStringList()
                                   << QStringList{QStringLiteral("Socket error: %1").arg(error)};
    }
}

void tst_PipeConnection::socketErrors()
{
    QFETCH(int, error);
    QFETCH(QStringList, events);
    QFETCH(QStringList, texts);

    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    ZTPipeSession session(socket, nullptr);
    const SignalLog log(session);
    QVERIFY(session.IsConnected());

    QObject* worker = socket->parent();
    qRegisterMetaType<QLocalSocket::LocalSocketError>("QLocalSocket::LocalSocketError");
    QMetaObject::invokeMethod(worker, "OnError", Qt::BlockingQueuedConnection,
                              Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::LocalSocketError(error)));
    QVERIFY(!session.IsConnected());
    QCOMPARE(lines->TextsFrom(workerSource), texts);
    QTRY_COMPARE(log.lines, events);
    QCOMPARE(socket->isOpen(), error != QLocalSocket::ConnectionError);
}

void tst_PipeConnection::reconnectWhileConnected()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    PeerProcess other;
    QVERIFY(other.Listen(otherPipeName));
    pair.session->Reconnect(otherPipeName);
    QVERIFY(other.Accept());
    QVERIFY(pair.peer.WaitForEnd());
    QVERIFY(other.Write(frameA));
    QTRY_COMPARE(pair.log->lines,
                 (QStringList{QStringLiteral("down"), QStringLiteral("connected"), QStringLiteral("a=bcd")}));
    QVERIFY(pair.session->IsConnected());
    pair.session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QCOMPARE(other.Read(frame21.size()), frame21);
}

void tst_PipeConnection::reconnectToNobody()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    pair.session->Reconnect(QStringLiteral("nobody"));
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("down")});
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 2")});
    QVERIFY(!pair.session->IsConnected());
}

void tst_PipeConnection::reconnectWithUnsentData()
{
    // The peer never reads, so the pipe is full. The next connection does not wait for that.
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    pair.session->Send(QStringLiteral("b"), QByteArray(4 * 1024 * 1024, 'x'));
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("sent")});
    PeerProcess other;
    QVERIFY(other.Listen(otherPipeName));
    pair.session->Reconnect(otherPipeName);
    QVERIFY(other.Accept());
    QVERIFY(other.Write(frameA));
    QTRY_COMPARE(pair.log->lines, (QStringList{QStringLiteral("sent"), QStringLiteral("down"),
                                               QStringLiteral("connected"), QStringLiteral("a=bcd")}));
    pair.session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QCOMPARE(other.Read(frame21.size()), frame21);
}

void tst_PipeConnection::remainderNeverSpoilsTheNextConnection_data()
{
    QTest::addColumn<int>("cut");
    QTest::addColumn<bool>("peerCloses");

    for (const int cut : {1, 4, 5, 6, 8, 10, 12}) {
        QTest::addRow("%d bytes, the peer closes", cut) << cut << true;
        QTest::addRow("%d bytes, we leave", cut) << cut << false;
    }
}

void tst_PipeConnection::remainderNeverSpoilsTheNextConnection()
{
    QFETCH(int, cut);
    QFETCH(bool, peerCloses);

    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVERIFY(pair.peer.Write(frame21 + frameA.left(cut)));
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("21=")});
    if (peerCloses) {
        QVERIFY(pair.peer.Disconnect());
        QTRY_COMPARE(pair.log->Count(QStringLiteral("down")), 1);
    }
    pair.session->Reconnect(pipeName);
    QTRY_COMPARE(pair.log->Count(QStringLiteral("connected")), 1);
    QVERIFY(pair.peer.Accept());
    QVERIFY(pair.peer.Write(frameA));
    QTRY_COMPARE(pair.log->lines, (QStringList{QStringLiteral("21="), QStringLiteral("down"),
                                               QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

QTEST_GUILESS_MAIN(tst_PipeConnection)
#include "tst_pipeconnection.moc"
