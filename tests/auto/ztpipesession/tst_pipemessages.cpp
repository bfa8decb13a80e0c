// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeTest.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// The frame of a message named "a" with at most 255 bytes of payload.
QByteArray FrameOfA(const QByteArray& payload)
{
    QByteArray frame = QByteArray::fromHex("00000002"
                                           "0061"
                                           "00000000");
    frame.back() = static_cast<char>(payload.size());
    return frame + payload;
}

} // namespace

/// Messages in both directions, byte by byte, and frames that are refused.
class tst_PipeMessages : public PipeTest
{
    Q_OBJECT

private Q_SLOTS:
    void writtenFrames_data();
    void writtenFrames();
    void workerWritesOneMessage();
    void sendIsOrderedAndCounted();
    void sendWhileNotConnectedIsDropped();
    void sendAfterTheEndIsDropped();

    void incomingFrames_data();
    void incomingFrames();
    void twoMessagesAtOnce();
    void byteByByte();
    void manyMessages();
    void largeMessages();
    void largeMessagesBothWays();
    void slotsMayRunAnEventLoop();
    void requestsKeepTheirOrder();
    void signalsComeOnTheSessionsThread();

    void refusedFrames_data();
    void refusedFrames();
    void refusedFrameComesAfterTheMessagesBefore();

    void messagesBeforeTheEndAreDelivered();
};

void tst_PipeMessages::writtenFrames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("frame");

    QTest::newRow("plain") << QStringLiteral("a") << QByteArrayLiteral("bcd") << frameA;
    QTest::newRow("no payload") << QStringLiteral("21") << QByteArrayLiteral("") << frame21;
    QTest::newRow("both empty") << QStringLiteral("") << QByteArrayLiteral("")
                                << QByteArray::fromHex("00000000"
                                                       "00000000");
    QTest::newRow("both null") << QString() << QByteArray()
                               << QByteArray::fromHex("ffffffff"
                                                      "ffffffff");
    QTest::newRow("other scripts") << QStringLiteral("\u00fc\U0001F4F7") << QByteArray("\0\xff\n", 3)
                                   << QByteArray::fromHex("00000006"
                                                          "00fcd83ddcf7"
                                                          "00000003"
                                                          "00ff0a");
}

void tst_PipeMessages::writtenFrames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, frame);

    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    pair.session->Send(name, data);
    QCOMPARE(pair.peer.Read(frame.size()), frame);
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("sent")});

    // There is nothing between two messages.
    pair.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(pair.peer.Read(frameA.size()), frameA);
}

void tst_PipeMessages::workerWritesOneMessage()
{
    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    const ZTPipeSession session(socket, nullptr);
    QMetaObject::invokeMethod(socket->parent(), "Write", Qt::QueuedConnection, Q_ARG(QString, QStringLiteral("a")),
                              Q_ARG(QByteArray, QByteArrayLiteral("bcd")));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    QCOMPARE(lines->All(), QStringList());
}

void tst_PipeMessages::sendIsOrderedAndCounted()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QByteArray expected;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(4, '0');
        pair.session->Send(QStringLiteral("a"), number);
        expected += FrameOfA(number);
    }
    QCOMPARE(pair.peer.Read(expected.size()), expected);
    QTRY_COMPARE(pair.log->Count(QStringLiteral("sent")), 1000);
}

void tst_PipeMessages::sendWhileNotConnectedIsDropped()
{
    ZTPipeSession session(pipeName, nullptr);
    const SignalLog log(session);
    lines->Clear();
    session.Send(QStringLiteral("a"), QByteArrayLiteral("lost"));
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 19")});

    PeerProcess peer;
    QVERIFY(peer.Listen(pipeName));
    session.Reconnect(pipeName);
    QVERIFY(peer.Accept());
    QTRY_VERIFY(session.IsConnected());
    session.Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    QTRY_COMPARE(log.lines, (QStringList{QStringLiteral("connected"), QStringLiteral("sent")}));
}

void tst_PipeMessages::sendAfterTheEndIsDropped()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVERIFY(pair.peer.Disconnect());
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("down")});
    lines->Clear();
    pair.session->Send(QStringLiteral("a"), QByteArray());
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 19")});
    QCOMPARE(pair.log->lines, QStringList{QStringLiteral("down")});
}

void tst_PipeMessages::incomingFrames_data()
{
    writtenFrames_data();
}

void tst_PipeMessages::incomingFrames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, frame);

    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QSignalSpy incoming(pair.session.get(), SIGNAL(IncomingMessage(QString, QByteArray)));
    QVERIFY(pair.peer.Write(frame));
    QTRY_COMPARE(incoming.count(), 1);
    const QString receivedName = incoming.at(0).at(0).toString();
    const QByteArray receivedData = incoming.at(0).at(1).toByteArray();
    QCOMPARE(receivedName, name);
    QCOMPARE(receivedName.isNull(), name.isNull());
    QCOMPARE(receivedData, data);
    QCOMPARE(receivedData.isNull(), data.isNull());
}

void tst_PipeMessages::twoMessagesAtOnce()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVERIFY(pair.peer.Write(frameA + frame21 + frameA));
    QTRY_COMPARE(pair.log->lines,
                 (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21="), QStringLiteral("a=bcd")}));
}

void tst_PipeMessages::byteByByte()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QByteArray stream;
    QStringList expected;
    for (int i = 0; i < 20; ++i) {
        stream += frameA + frame21;
        expected << QStringLiteral("a=bcd") << QStringLiteral("21=");
    }
    QVERIFY(pair.peer.Do(QStringLiteral("dribble ") + QString::fromLatin1(stream.toHex())));
    QTRY_COMPARE(pair.log->lines, expected);
}

void tst_PipeMessages::manyMessages()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QByteArray stream;
    QStringList expected;
    for (int i = 0; i < 20000; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(6, '0');
        stream += FrameOfA(number);
        expected << QStringLiteral("a=") + QString::fromLatin1(number);
    }
    QVERIFY(pair.peer.Write(stream));
    QTRY_COMPARE_WITH_TIMEOUT(pair.log->lines.size(), expected.size(), 30000);
    QCOMPARE(pair.log->lines, expected);
}

void tst_PipeMessages::largeMessages()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QSignalSpy incoming(pair.session.get(), SIGNAL(IncomingMessage(QString, QByteArray)));
    const int size = 33 * 1024 * 1024;
    const QString front = QStringLiteral("00000002"
                                         "0062"
                                         "02100000");
    QVERIFY(pair.peer.Do(QStringLiteral("fill %1 %2").arg(front).arg(size)));
    QVERIFY(pair.peer.Write(frameA));
    QTRY_COMPARE_WITH_TIMEOUT(incoming.count(), 2, 30000);

    const QByteArray data = incoming.at(0).at(1).toByteArray();
    QCOMPARE(incoming.at(0).at(0).toString(), QStringLiteral("b"));
    QCOMPARE(data.size(), size);
    int wrong = 0;
    for (int i = 0; i < size; ++i) {
        wrong += static_cast<uchar>(data.at(i)) == (i & 0xFF) ? 0 : 1;
    }
    QCOMPARE(wrong, 0);
    QCOMPARE(incoming.at(1).at(0).toString(), QStringLiteral("a"));
}

void tst_PipeMessages::largeMessagesBothWays()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    const int size = 8 * 1024 * 1024;
    QByteArray data(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        data[i] = static_cast<char>(i & 0xFF);
    }
    // The peer does not read yet: the rest of the message waits, and the session still reads.
    pair.session->Send(QStringLiteral("b"), data);
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("sent")});
    QVERIFY(pair.peer.Write(frameA));
    QTRY_COMPARE(pair.log->lines.value(1), QStringLiteral("a=bcd"));

    QCOMPARE(pair.peer.Read(10), QByteArray::fromHex("00000002"
                                                     "0062"
                                                     "00800000"));
    QVERIFY(pair.peer.Do(QStringLiteral("check %1").arg(size)));
}

void tst_PipeMessages::slotsMayRunAnEventLoop()
{
    // As a host does that asks its user something: messages continue to arrive, each once and in order.
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QStringList seen;
    connect(pair.session.get(), &ZTPipeSession::IncomingMessage, [&](const QString&, const QByteArray& data) {
        seen.append(QString::fromLatin1(data));
        if (seen.size() == 3) {
            QVERIFY(pair.peer.Write(frameA));
            QTRY_COMPARE(seen.size(), 101);
        }
    });
    QByteArray stream;
    QStringList expected;
    for (int i = 0; i < 100; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(3, '0');
        stream += FrameOfA(number);
        expected.append(QString::fromLatin1(number));
    }
    expected.append(QStringLiteral("bcd"));
    QVERIFY(pair.peer.Write(stream));
    QTRY_COMPARE(seen, expected);
    QTRY_COMPARE(pair.log->lines.size(), 101);
}

void tst_PipeMessages::requestsKeepTheirOrder()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    PeerProcess other;
    QVERIFY(other.Listen(otherPipeName));
    pair.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    pair.session->Send(QStringLiteral("b"), QByteArray(100000, 'x'));
    pair.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(pair.peer.Read(frameA.size()), frameA);
    QCOMPARE(pair.peer.Read(10 + 100000), QByteArray::fromHex("00000002"
                                                              "0062"
                                                              "000186a0") +
                                              QByteArray(100000, 'x'));
    QCOMPARE(pair.peer.Read(frameA.size()), frameA);

    pair.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    pair.session->Reconnect(otherPipeName);
    pair.session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QVERIFY(other.Accept());
    QCOMPARE(pair.peer.Read(frameA.size()), frameA);
    QCOMPARE(other.Read(frame21.size()), frame21);
    QTRY_COMPARE(pair.log->lines, (QStringList{QStringLiteral("sent"), QStringLiteral("sent"), QStringLiteral("sent"),
                                               QStringLiteral("sent"), QStringLiteral("down"),
                                               QStringLiteral("connected"), QStringLiteral("sent")}));
}

void tst_PipeMessages::signalsComeOnTheSessionsThread()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVector<QThread*> threads;
    const auto note = [&threads] { threads.append(QThread::currentThread()); };
    // The connections are direct, so the slots run on the emitting thread.
    connect(pair.session.get(), &ZTPipeSession::IncomingMessage, note);
    connect(pair.session.get(), &ZTPipeSession::MessageSent, note);
    connect(pair.session.get(), &ZTPipeSession::SessionDown, note);
    connect(pair.session.get(), &ZTPipeSession::SessionConnected, note);
    pair.session->Send(QStringLiteral("a"), QByteArray());
    QVERIFY(pair.peer.Write(frameA));
    QTRY_COMPARE(threads.size(), 2);
    pair.session->Reconnect(pipeName);
    QTRY_COMPARE(threads.size(), 4);
    QCOMPARE(threads, QVector<QThread*>(4, thread()));
}

void tst_PipeMessages::refusedFrames_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line");

    const auto row = [](const char* title, const char* hex, const char* line) {
        QTest::newRow(title) << QByteArray::fromHex(hex) << QString::fromLatin1(line);
    };
    row("long name", "00010002", "Frame refused: its name has 65538 bytes, 65536 are allowed.");
    row("odd name", "00000003", "Frame refused: its name has an odd number of bytes, 3.");
    row("large payload",
        "00000002"
        "0061"
        "40000001",
        "Frame refused: its payload has 1073741825 bytes, 1073741824 are allowed.");
    row("text for a frame", "47455420", "Frame refused: its name has 1195725856 bytes, 65536 are allowed.");
}

void tst_PipeMessages::refusedFrames()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, line);

    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVERIFY(pair.peer.Write(bytes));
    QTRY_COMPARE(pair.log->lines, QStringList{QStringLiteral("down")});
    QVERIFY(!pair.session->IsConnected());
    QCOMPARE(lines->TextsFrom(workerSource), QStringList{line});
    QVERIFY(pair.peer.WaitForEnd());

    // Nothing of the refused frame reaches the next connection.
    pair.session->Reconnect(pipeName);
    QVERIFY(pair.peer.Accept());
    QVERIFY(pair.peer.Write(frameA));
    QTRY_COMPARE(pair.log->lines,
                 (QStringList{QStringLiteral("down"), QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_PipeMessages::refusedFrameComesAfterTheMessagesBefore()
{
    ConnectedPair pair;
    QVERIFY(pair.isConnected);
    QVERIFY(pair.peer.Write(frameA + frame21 + QByteArray::fromHex("00000001") + frameA));
    QTRY_COMPARE(pair.log->lines,
                 (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21="), QStringLiteral("down")}));
    QVERIFY(pair.peer.WaitForEnd());
    QCOMPARE(pair.log->lines.size(), 3);
}

void tst_PipeMessages::messagesBeforeTheEndAreDelivered()
{
    // Repeated, so that the end comes at different moments of the 10 ms between two polls.
    for (int round = 0; round < 20; ++round) {
        ConnectedPair pair;
        QVERIFY(pair.isConnected);
        QVERIFY(pair.peer.Write(frameA + frame21 + frameA.left(5)));
        pair.peer.Die();
        QTRY_COMPARE(pair.log->Count(QStringLiteral("down")), 1);
        QCOMPARE(pair.log->lines,
                 (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21="), QStringLiteral("down")}));
    }
}

QTEST_GUILESS_MAIN(tst_PipeMessages)
#include "tst_pipemessages.moc"
