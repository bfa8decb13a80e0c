#include "DeathCase.h"
#include "DebugLines.h"
#include "MetaMethods.h"
#include "PeerProcess.h"
#include "PrivateTempDir.h"
#include "ZTPipeSession.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <memory>

// Frames are written by hand: the count of the name's bytes, the name in UTF-16, the count of the payload's bytes, the
// payload, all big-endian.

namespace {

// On Windows the temporary folder does not keep the pipes of tests apart, so their names do.
const QString pipeName = QStringLiteral("pipe-%1").arg(QCoreApplication::applicationPid());
const QString otherPipeName = QStringLiteral("other-%1").arg(QCoreApplication::applicationPid());
const QString workerSource = QStringLiteral("src\\private\\ZTPipeSession_p");

#ifdef Q_OS_WIN
// There the end of a connection is no error.
const QStringList linesOfALeavingPeer;
#else
const QStringList linesOfALeavingPeer{QStringLiteral("Socket error: 1")};
#endif

const QByteArray frameA = QByteArray::fromHex("00000002"
                                              "0061"
                                              "00000003"
                                              "626364"); // "a", "bcd"
const QByteArray frame21 = QByteArray::fromHex("00000004"
                                               "00320031"
                                               "00000000"); // "21", nothing

/// What a session has said, in order.
class Listener : public QObject
{
public:
    explicit Listener(ZTPipeSession& session)
    {
        connect(&session, &ZTPipeSession::SessionConnected, this, [this] { Note(QStringLiteral("connected")); });
        connect(&session, &ZTPipeSession::SessionDown, this, [this] { Note(QStringLiteral("down")); });
        connect(&session, &ZTPipeSession::MessageSent, this, [this] { Note(QStringLiteral("sent")); });
        connect(&session, &ZTPipeSession::IncomingMessage, this, [this](const QString& name, const QByteArray& data) {
            Note(name + QLatin1Char('=') + QString::fromLatin1(data));
        });
    }

    int Count(const QString& event) const { return events.count(event); }

    QStringList events;

private:
    void Note(const QString& event) { events.append(event); }
};

/// Both ends of a connection: a session by name on this side, a peer process on the other.
class Link
{
public:
    Link()
    {
        good = peer.Do(QStringLiteral("listen ") + pipeName);
        session = std::make_unique<ZTPipeSession>(pipeName, nullptr);
        listener = std::make_unique<Listener>(*session);
        good = good && peer.Do(QStringLiteral("accept")) &&
               QTest::qWaitFor([this] { return session->IsConnected() && listener->Count(connected) == 1; }, 10000);
        listener->events.clear();
    }

    const QString connected = QStringLiteral("connected");
    PeerProcess peer;
    std::unique_ptr<ZTPipeSession> session;
    std::unique_ptr<Listener> listener;
    bool good = false;
};

/// A socket of this thread that is connected to `peer`.
QLocalSocket* ConnectedSocket(PeerProcess& peer)
{
    auto* socket = new QLocalSocket;
    if (peer.Do(QStringLiteral("listen ") + pipeName)) {
        socket->connectToServer(pipeName);
        peer.Do(QStringLiteral("accept"));
    }
    return socket;
}

} // namespace

class tst_ZTPipeSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void metaMethods();
    void workerMetaMethods();

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

    void downWhenThePeerCloses();
    void downWhenThePeerDies();
    void messagesBeforeTheEndAreDelivered();
    void socketErrors_data();
    void socketErrors();

    void reconnectWhileConnected();
    void reconnectToNobody();
    void reconnectWithUnsentData();
    void remainderNeverSpoilsTheNextConnection_data();
    void remainderNeverSpoilsTheNextConnection();

    void adoptedSocketIsConnectedAtOnce();
    void adoptedSocketSendsWithoutMessageSent();
    void adoptedSocketThatIsNotConnected();
    void adoptedSocketReadsAfterRunReadCycle();
    void nullSocket();
    void runReadCycleDoesNotDoubleMessages();

    void threadEndsBeforeTheDestructorReturns();
    void workerIsFreedOnce_data();
    void workerIsFreedOnce();
    void deletedInASlot_data();
    void deletedInASlot();
    void deletedWhileMessagesWait_data();
    void deletedWhileMessagesWait();
    void deletedWithTheirParent();
    void deletedOnAForeignThread();
    void messagesSentBeforeTheEndArrive_data();
    void messagesSentBeforeTheEndArrive();

    void assertions_data();
    void assertions();

private:
    std::unique_ptr<PrivateTempDir> tempDir;
    std::unique_ptr<DebugLines> lines;
};

void tst_ZTPipeSession::init()
{
    tempDir = std::make_unique<PrivateTempDir>();
    lines = std::make_unique<DebugLines>();
}

void tst_ZTPipeSession::cleanup()
{
    lines.reset();
    tempDir.reset();
}

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

void tst_ZTPipeSession::byNameIsNotConnectedAtFirst()
{
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(pipeName, nullptr);
    QVERIFY(session.isRunning());
    QVERIFY(!session.IsConnected());
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QTRY_VERIFY(session.IsConnected());
    QCOMPARE(lines->All(), QStringList());
}

void tst_ZTPipeSession::connectedReachesALateReceiver()
{
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(pipeName, nullptr);
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QSignalSpy connected(&session, SIGNAL(SessionConnected()));
    QTRY_COMPARE(connected.count(), 1);
    QVERIFY(session.IsConnected());

    // Everything that follows the connection comes behind it, and the signal comes only once.
    QVERIFY(peer.Write(frameA));
    QSignalSpy incoming(&session, SIGNAL(IncomingMessage(QString, QByteArray)));
    QTRY_COMPARE(incoming.count(), 1);
    QCOMPARE(connected.count(), 1);
}

void tst_ZTPipeSession::connectedComesBeforeWhatFollows_data()
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

void tst_ZTPipeSession::connectedComesBeforeWhatFollows()
{
    QFETCH(QString, what);
    QFETCH(QStringList, events);
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);

    // All of this happens while this thread is away from its event loop.
    QVERIFY(peer.Do(QStringLiteral("accept")));
    if (what == QLatin1String("send")) {
        session.Send(QStringLiteral("21"), QByteArrayLiteral(""));
        QCOMPARE(peer.Read(frame21.size()), frame21);
    } else if (what == QLatin1String("read")) {
        session.RunReadCycle();
        QVERIFY(peer.Write(frameA));
    } else if (what == QLatin1String("reconnect")) {
        session.Reconnect(pipeName);
        QVERIFY(peer.Do(QStringLiteral("accept")));
    } else {
        QVERIFY(peer.Write(frameA));
        peer.Die();
        const QDeadlineTimer deadline(10000);
        while (lines->TextsFrom(workerSource) != linesOfALeavingPeer && !deadline.hasExpired()) {
            QThread::yieldCurrentThread();
        }
    }
    QTRY_COMPARE(listener.events, events);
}

void tst_ZTPipeSession::connectsWithoutAnEventLoop()
{
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);
    const QDeadlineTimer deadline(10000);
    while (!session.IsConnected() && !deadline.hasExpired()) {
        QThread::yieldCurrentThread();
    }
    QVERIFY(session.IsConnected());
    // The event loop, when there is one after all, adds no second announcement.
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(listener.events, (QStringList{QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_ZTPipeSession::waitForConnected()
{
    ZTPipeSession nobody(pipeName, nullptr);
    QVERIFY(!nobody.WaitForConnected(0));
    QVERIFY(!nobody.WaitForConnected(50));

    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(pipeName, nullptr);
    QVERIFY(session.WaitForConnected(1000));
    QTRY_VERIFY(session.IsConnected());
    QVERIFY(session.WaitForConnected(0));
}

void tst_ZTPipeSession::waitForConnectedNeedsNoEventLoop()
{
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);
    QVERIFY(session.WaitForConnected(1000));
    const QDeadlineTimer deadline(10000);
    while (!session.IsConnected() && !deadline.hasExpired()) {
        QThread::yieldCurrentThread();
    }
    QVERIFY(session.IsConnected());
    // The announcement that waits in this thread's event loop adds no second one.
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(listener.events, (QStringList{QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_ZTPipeSession::attemptsThatTakeTheirTime()
{
#ifdef Q_OS_WIN
    QSKIP("On Windows an attempt ends inside the call that makes it.");
#endif
    // A socket has to wait once nobody takes the connections of those before it.
    QLocalServer server;
    QVERIFY(server.listen(pipeName));
    std::vector<std::unique_ptr<QLocalSocket>> queue;
    do {
        queue.push_back(std::make_unique<QLocalSocket>());
        queue.back()->connectToServer(pipeName);
    } while (queue.back()->state() == QLocalSocket::ConnectedState && queue.size() < 1000);
    QCOMPARE(queue.back()->state(), QLocalSocket::ConnectingState);

    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);
    auto impatient = std::make_unique<ZTPipeSession>(pipeName, nullptr);
    auto adopted = std::make_unique<ZTPipeSession>(queue.back().release(), nullptr);
    queue.pop_back();
    QVERIFY(!session.IsConnected());
    QVERIFY(!adopted->IsConnected());
    QVERIFY(!impatient->WaitForConnected(30));
    delete new ZTPipeSession(pipeName, nullptr);
    // Both are at work on their threads when they are deleted, while this thread keeps the server from taking them.
    impatient->Send(QStringLiteral("a"), QByteArray());
    adopted->Send(QStringLiteral("a"), QByteArray());
    const QDeadlineTimer deadline(10000);
    while (lines->CountEndingWith(QStringLiteral("] Socket error: 19")) < 2 && !deadline.hasExpired()) {
        QThread::yieldCurrentThread();
    }
    impatient.reset();
    adopted.reset();
    QCOMPARE(listener.events, QStringList());

    // This thread's event loop lets the server take the rest.
    QTRY_COMPARE(listener.events, QStringList{QStringLiteral("connected")});
    QVERIFY(session.IsConnected());
}

void tst_ZTPipeSession::failedAttemptIsRevivedByReconnect()
{
    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);
    QVERIFY(!session.IsConnected());
    QCOMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 2")});

    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    session.Reconnect(pipeName);
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QTRY_COMPARE(listener.events, QStringList{QStringLiteral("connected")});
    QVERIFY(session.IsConnected());

    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(listener.events.value(1), QStringLiteral("a=bcd"));
    session.Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QCOMPARE(peer.Read(frame21.size()), frame21);
}

void tst_ZTPipeSession::failedAttemptsAreLoggedOnly()
{
    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);
    for (int attempts = 2; attempts <= 4; ++attempts) {
        session.Reconnect(pipeName);
        QTRY_COMPARE(lines->CountEndingWith(QStringLiteral("] Socket error: 2")), attempts);
    }
    QVERIFY(!session.IsConnected());
    QCOMPARE(listener.events, QStringList());
}

void tst_ZTPipeSession::writtenFrames_data()
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

void tst_ZTPipeSession::writtenFrames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, frame);

    Link link;
    QVERIFY(link.good);
    link.session->Send(name, data);
    QCOMPARE(link.peer.Read(frame.size()), frame);
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("sent")});

    // Nothing stands between two messages.
    link.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(link.peer.Read(frameA.size()), frameA);
}

void tst_ZTPipeSession::workerWritesOneMessage()
{
    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    const ZTPipeSession session(socket, nullptr);
    QMetaObject::invokeMethod(socket->parent(), "Write", Qt::QueuedConnection, Q_ARG(QString, QStringLiteral("a")),
                              Q_ARG(QByteArray, QByteArrayLiteral("bcd")));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    QCOMPARE(lines->All(), QStringList());
}

void tst_ZTPipeSession::sendIsOrderedAndCounted()
{
    Link link;
    QVERIFY(link.good);
    QByteArray expected;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(4, '0');
        link.session->Send(QStringLiteral("a"), number);
        expected += QByteArray::fromHex("00000002"
                                        "0061"
                                        "00000004") +
                    number;
    }
    QCOMPARE(link.peer.Read(expected.size()), expected);
    QTRY_COMPARE(link.listener->Count(QStringLiteral("sent")), 1000);
}

void tst_ZTPipeSession::sendWhileNotConnectedIsDropped()
{
    ZTPipeSession session(pipeName, nullptr);
    const Listener listener(session);
    lines->Clear();
    session.Send(QStringLiteral("a"), QByteArrayLiteral("lost"));
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 19")});

    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    session.Reconnect(pipeName);
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QTRY_VERIFY(session.IsConnected());
    session.Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    QTRY_COMPARE(listener.events, (QStringList{QStringLiteral("connected"), QStringLiteral("sent")}));
}

void tst_ZTPipeSession::sendAfterTheEndIsDropped()
{
    Link link;
    QVERIFY(link.good);
    QVERIFY(link.peer.Do(QStringLiteral("disconnect")));
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("down")});
    lines->Clear();
    link.session->Send(QStringLiteral("a"), QByteArray());
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 19")});
    QCOMPARE(link.listener->events, QStringList{QStringLiteral("down")});
}

void tst_ZTPipeSession::incomingFrames_data()
{
    writtenFrames_data();
}

void tst_ZTPipeSession::incomingFrames()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, frame);

    Link link;
    QVERIFY(link.good);
    QSignalSpy incoming(link.session.get(), SIGNAL(IncomingMessage(QString, QByteArray)));
    QVERIFY(link.peer.Write(frame));
    QTRY_COMPARE(incoming.count(), 1);
    const QString receivedName = incoming.at(0).at(0).toString();
    const QByteArray receivedData = incoming.at(0).at(1).toByteArray();
    QCOMPARE(receivedName, name);
    QCOMPARE(receivedName.isNull(), name.isNull());
    QCOMPARE(receivedData, data);
    QCOMPARE(receivedData.isNull(), data.isNull());
}

void tst_ZTPipeSession::twoMessagesAtOnce()
{
    Link link;
    QVERIFY(link.good);
    QVERIFY(link.peer.Write(frameA + frame21 + frameA));
    QTRY_COMPARE(link.listener->events,
                 (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21="), QStringLiteral("a=bcd")}));
}

void tst_ZTPipeSession::byteByByte()
{
    Link link;
    QVERIFY(link.good);
    QByteArray stream;
    QStringList expected;
    for (int i = 0; i < 20; ++i) {
        stream += frameA + frame21;
        expected << QStringLiteral("a=bcd") << QStringLiteral("21=");
    }
    QVERIFY(link.peer.Do(QStringLiteral("dribble ") + QString::fromLatin1(stream.toHex())));
    QTRY_COMPARE(link.listener->events, expected);
}

void tst_ZTPipeSession::manyMessages()
{
    Link link;
    QVERIFY(link.good);
    QByteArray stream;
    QStringList expected;
    for (int i = 0; i < 20000; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(6, '0');
        stream += QByteArray::fromHex("00000002"
                                      "0061"
                                      "00000006") +
                  number;
        expected << QStringLiteral("a=") + QString::fromLatin1(number);
    }
    QVERIFY(link.peer.Write(stream));
    QTRY_COMPARE_WITH_TIMEOUT(link.listener->events.size(), expected.size(), 30000);
    QCOMPARE(link.listener->events, expected);
}

void tst_ZTPipeSession::largeMessages()
{
    Link link;
    QVERIFY(link.good);
    QSignalSpy incoming(link.session.get(), SIGNAL(IncomingMessage(QString, QByteArray)));
    const int size = 33 * 1024 * 1024;
    const QString front = QStringLiteral("00000002"
                                         "0062"
                                         "02100000");
    QVERIFY(link.peer.Do(QStringLiteral("fill %1 %2").arg(front).arg(size)));
    QVERIFY(link.peer.Write(frameA));
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

void tst_ZTPipeSession::largeMessagesBothWays()
{
    Link link;
    QVERIFY(link.good);
    const int size = 8 * 1024 * 1024;
    QByteArray data(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        data[i] = static_cast<char>(i & 0xFF);
    }
    // The peer does not read yet: what does not fit waits, and reading goes on meanwhile.
    link.session->Send(QStringLiteral("b"), data);
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("sent")});
    QVERIFY(link.peer.Write(frameA));
    QTRY_COMPARE(link.listener->events.value(1), QStringLiteral("a=bcd"));

    QCOMPARE(link.peer.Read(10), QByteArray::fromHex("00000002"
                                                     "0062"
                                                     "00800000"));
    QVERIFY(link.peer.Do(QStringLiteral("check %1").arg(size)));
}

void tst_ZTPipeSession::slotsMayRunAnEventLoop()
{
    // As a host does that asks its user something: messages go on coming, each once and in order.
    Link link;
    QVERIFY(link.good);
    QStringList seen;
    connect(link.session.get(), &ZTPipeSession::IncomingMessage, [&](const QString&, const QByteArray& data) {
        seen.append(QString::fromLatin1(data));
        if (seen.size() == 3) {
            QVERIFY(link.peer.Write(frameA));
            QTRY_COMPARE(seen.size(), 101);
        }
    });
    QByteArray stream;
    QStringList expected;
    for (int i = 0; i < 100; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(3, '0');
        stream += QByteArray::fromHex("00000002"
                                      "0061"
                                      "00000003") +
                  number;
        expected.append(QString::fromLatin1(number));
    }
    expected.append(QStringLiteral("bcd"));
    QVERIFY(link.peer.Write(stream));
    QTRY_COMPARE(seen, expected);
    QTRY_COMPARE(link.listener->events.size(), 101);
}

void tst_ZTPipeSession::requestsKeepTheirOrder()
{
    Link link;
    QVERIFY(link.good);
    PeerProcess other;
    QVERIFY(other.Do(QStringLiteral("listen ") + otherPipeName));
    link.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    link.session->Send(QStringLiteral("b"), QByteArray(100000, 'x'));
    link.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(link.peer.Read(frameA.size()), frameA);
    QCOMPARE(link.peer.Read(10 + 100000), QByteArray::fromHex("00000002"
                                                              "0062"
                                                              "000186a0") +
                                              QByteArray(100000, 'x'));
    QCOMPARE(link.peer.Read(frameA.size()), frameA);

    link.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    link.session->Reconnect(otherPipeName);
    link.session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QVERIFY(other.Do(QStringLiteral("accept")));
    QCOMPARE(link.peer.Read(frameA.size()), frameA);
    QCOMPARE(other.Read(frame21.size()), frame21);
    QTRY_COMPARE(
        link.listener->events,
        (QStringList{QStringLiteral("sent"), QStringLiteral("sent"), QStringLiteral("sent"), QStringLiteral("sent"),
                     QStringLiteral("down"), QStringLiteral("connected"), QStringLiteral("sent")}));
}

void tst_ZTPipeSession::signalsComeOnTheSessionsThread()
{
    Link link;
    QVERIFY(link.good);
    QVector<QThread*> threads;
    const auto note = [&threads] { threads.append(QThread::currentThread()); };
    // Direct connections show the thread that emits.
    connect(link.session.get(), &ZTPipeSession::IncomingMessage, note);
    connect(link.session.get(), &ZTPipeSession::MessageSent, note);
    connect(link.session.get(), &ZTPipeSession::SessionDown, note);
    connect(link.session.get(), &ZTPipeSession::SessionConnected, note);
    link.session->Send(QStringLiteral("a"), QByteArray());
    QVERIFY(link.peer.Write(frameA));
    QTRY_COMPARE(threads.size(), 2);
    link.session->Reconnect(pipeName);
    QTRY_COMPARE(threads.size(), 4);
    QCOMPARE(threads, QVector<QThread*>(4, thread()));
}

void tst_ZTPipeSession::refusedFrames_data()
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

void tst_ZTPipeSession::refusedFrames()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, line);

    Link link;
    QVERIFY(link.good);
    QVERIFY(link.peer.Write(bytes));
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("down")});
    QVERIFY(!link.session->IsConnected());
    QCOMPARE(lines->TextsFrom(workerSource), QStringList{line});
    QVERIFY(link.peer.Do(QStringLiteral("closed")));

    // The next connection starts with a clean slate.
    link.session->Reconnect(pipeName);
    QVERIFY(link.peer.Do(QStringLiteral("accept")));
    QVERIFY(link.peer.Write(frameA));
    QTRY_COMPARE(link.listener->events,
                 (QStringList{QStringLiteral("down"), QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_ZTPipeSession::refusedFrameComesAfterTheMessagesBefore()
{
    Link link;
    QVERIFY(link.good);
    QVERIFY(link.peer.Write(frameA + frame21 + QByteArray::fromHex("00000001") + frameA));
    QTRY_COMPARE(link.listener->events,
                 (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21="), QStringLiteral("down")}));
    QVERIFY(link.peer.Do(QStringLiteral("closed")));
    QCOMPARE(link.listener->events.size(), 3);
}

void tst_ZTPipeSession::downWhenThePeerCloses()
{
    Link link;
    QVERIFY(link.good);
    QVERIFY(link.peer.Do(QStringLiteral("disconnect")));
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("down")});
    QVERIFY(!link.session->IsConnected());
    QVERIFY(!link.session->WaitForConnected(0));
    QCOMPARE(lines->TextsFrom(workerSource), linesOfALeavingPeer);
}

void tst_ZTPipeSession::downWhenThePeerDies()
{
    Link link;
    QVERIFY(link.good);
    link.peer.Die();
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("down")});
    QVERIFY(!link.session->IsConnected());
}

void tst_ZTPipeSession::messagesBeforeTheEndAreDelivered()
{
    // Often enough that the end comes in every phase of the 10 ms between two polls.
    for (int round = 0; round < 20; ++round) {
        Link link;
        QVERIFY(link.good);
        QVERIFY(link.peer.Write(frameA + frame21 + frameA.left(5)));
        link.peer.Die();
        QTRY_COMPARE(link.listener->Count(QStringLiteral("down")), 1);
        QCOMPARE(link.listener->events,
                 (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21="), QStringLiteral("down")}));
    }
}

void tst_ZTPipeSession::socketErrors_data()
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

void tst_ZTPipeSession::socketErrors()
{
    QFETCH(int, error);
    QFETCH(QStringList, events);
    QFETCH(QStringList, texts);

    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    ZTPipeSession session(socket, nullptr);
    const Listener listener(session);
    QVERIFY(session.IsConnected());

    QObject* worker = socket->parent();
    qRegisterMetaType<QLocalSocket::LocalSocketError>("QLocalSocket::LocalSocketError");
    QMetaObject::invokeMethod(worker, "OnError", Qt::BlockingQueuedConnection,
                              Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::LocalSocketError(error)));
    QVERIFY(!session.IsConnected());
    QCOMPARE(lines->TextsFrom(workerSource), texts);
    QTRY_COMPARE(listener.events, events);
    QCOMPARE(socket->isOpen(), error != QLocalSocket::ConnectionError);
}

void tst_ZTPipeSession::reconnectWhileConnected()
{
    Link link;
    QVERIFY(link.good);
    PeerProcess other;
    QVERIFY(other.Do(QStringLiteral("listen ") + otherPipeName));
    link.session->Reconnect(otherPipeName);
    QVERIFY(other.Do(QStringLiteral("accept")));
    QVERIFY(link.peer.Do(QStringLiteral("closed")));
    QVERIFY(other.Write(frameA));
    QTRY_COMPARE(link.listener->events,
                 (QStringList{QStringLiteral("down"), QStringLiteral("connected"), QStringLiteral("a=bcd")}));
    QVERIFY(link.session->IsConnected());
    link.session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QCOMPARE(other.Read(frame21.size()), frame21);
}

void tst_ZTPipeSession::reconnectToNobody()
{
    Link link;
    QVERIFY(link.good);
    link.session->Reconnect(QStringLiteral("nobody"));
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("down")});
    QTRY_COMPARE(lines->TextsFrom(workerSource), QStringList{QStringLiteral("Socket error: 2")});
    QVERIFY(!link.session->IsConnected());
}

void tst_ZTPipeSession::reconnectWithUnsentData()
{
    // The peer never reads what fills the pipe; the next connection does not wait for it.
    Link link;
    QVERIFY(link.good);
    link.session->Send(QStringLiteral("b"), QByteArray(4 * 1024 * 1024, 'x'));
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("sent")});
    PeerProcess other;
    QVERIFY(other.Do(QStringLiteral("listen ") + otherPipeName));
    link.session->Reconnect(otherPipeName);
    QVERIFY(other.Do(QStringLiteral("accept")));
    QVERIFY(other.Write(frameA));
    QTRY_COMPARE(link.listener->events, (QStringList{QStringLiteral("sent"), QStringLiteral("down"),
                                                     QStringLiteral("connected"), QStringLiteral("a=bcd")}));
    link.session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
    QCOMPARE(other.Read(frame21.size()), frame21);
}

void tst_ZTPipeSession::remainderNeverSpoilsTheNextConnection_data()
{
    QTest::addColumn<int>("cut");
    QTest::addColumn<bool>("peerCloses");
    for (const int cut : {1, 4, 5, 6, 8, 10, 12}) {
        QTest::addRow("%d bytes, the peer closes", cut) << cut << true;
        QTest::addRow("%d bytes, we leave", cut) << cut << false;
    }
}

void tst_ZTPipeSession::remainderNeverSpoilsTheNextConnection()
{
    QFETCH(int, cut);
    QFETCH(bool, peerCloses);

    Link link;
    QVERIFY(link.good);
    QVERIFY(link.peer.Write(frame21 + frameA.left(cut)));
    QTRY_COMPARE(link.listener->events, QStringList{QStringLiteral("21=")});
    if (peerCloses) {
        QVERIFY(link.peer.Do(QStringLiteral("disconnect")));
        QTRY_COMPARE(link.listener->Count(QStringLiteral("down")), 1);
    }
    link.session->Reconnect(pipeName);
    QTRY_COMPARE(link.listener->Count(QStringLiteral("connected")), 1);
    QVERIFY(link.peer.Do(QStringLiteral("accept")));
    QVERIFY(link.peer.Write(frameA));
    QTRY_COMPARE(link.listener->events, (QStringList{QStringLiteral("21="), QStringLiteral("down"),
                                                     QStringLiteral("connected"), QStringLiteral("a=bcd")}));
}

void tst_ZTPipeSession::adoptedSocketIsConnectedAtOnce()
{
    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    QVERIFY(peer.Write(frame21));
    ZTPipeSession session(socket, nullptr);
    const Listener listener(session);
    QVERIFY(session.IsConnected());
    QVERIFY(session.WaitForConnected(0));
    QCOMPARE(socket->thread(), &session);
    QVERIFY(socket->parent());

    QTRY_COMPARE(listener.events, QStringList{QStringLiteral("21=")});
    QVERIFY(peer.Write(frameA));
    QTRY_COMPARE(listener.events, (QStringList{QStringLiteral("21="), QStringLiteral("a=bcd")}));
    QVERIFY(peer.Do(QStringLiteral("disconnect")));
    QTRY_COMPARE(listener.events.value(2), QStringLiteral("down"));
    QVERIFY(!session.IsConnected());
    QCOMPARE(listener.events.size(), 3);
}

void tst_ZTPipeSession::adoptedSocketSendsWithoutMessageSent()
{
    PeerProcess peer;
    QLocalSocket* socket = ConnectedSocket(peer);
    ZTPipeSession session(socket, nullptr);
    const Listener listener(session);
    session.Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    // A message that came back shows that everything before it was delivered.
    QVERIFY(peer.Write(frame21));
    QTRY_COMPARE(listener.events, QStringList{QStringLiteral("21=")});
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
    // A session on an adopted socket does not hear of a new connection: its user starts the reading.
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    ZTPipeSession session(new QLocalSocket, nullptr);
    const Listener listener(session);
    session.Reconnect(pipeName);
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QTRY_VERIFY(session.WaitForConnected(0));
    QVERIFY(!session.IsConnected());
    QVERIFY(peer.Write(frameA));
    session.RunReadCycle();
    QTRY_COMPARE(listener.events, QStringList{QStringLiteral("a=bcd")});
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
        // A timer on the session's own thread that fires behind some polls, which have nothing to read from.
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
    Link link;
    QVERIFY(link.good);
    for (int i = 0; i < 10; ++i) {
        link.session->RunReadCycle();
    }
    QVERIFY(link.peer.Write(frameA + frame21));
    QTRY_COMPARE(link.listener->events, (QStringList{QStringLiteral("a=bcd"), QStringLiteral("21=")}));
}

void tst_ZTPipeSession::threadEndsBeforeTheDestructorReturns()
{
    bool finished = false;
    QPointer<ZTPipeSession> session = new ZTPipeSession(pipeName, nullptr);
    connect(session, &QThread::finished, [&finished] { finished = true; });
    delete session;
    QVERIFY(finished);
    QVERIFY(session.isNull());
}

void tst_ZTPipeSession::workerIsFreedOnce_data()
{
    QTest::addColumn<bool>("threadEndsFirst");
    QTest::addColumn<bool>("eventLoopTurns");
    QTest::newRow("deleted while it runs") << false << false;
    QTest::newRow("deleted after its thread") << true << false;
    QTest::newRow("deleted after its thread and a turn of the event loop") << true << true;
}

void tst_ZTPipeSession::workerIsFreedOnce()
{
    QFETCH(bool, threadEndsFirst);
    QFETCH(bool, eventLoopTurns);

    PeerProcess peer;
    QPointer<QLocalSocket> socket = ConnectedSocket(peer);
    auto session = std::make_unique<ZTPipeSession>(socket.data(), nullptr);
    QPointer<QObject> worker = socket->parent();
    int destroyed = 0;
    connect(worker, &QObject::destroyed, [&destroyed] { ++destroyed; });
    if (threadEndsFirst) {
        session->quit();
        QVERIFY(session->wait(10000));
        QCOMPARE(worker->thread(), thread());
    }
    if (eventLoopTurns) {
        QTRY_VERIFY(worker.isNull());
        QVERIFY(socket.isNull());
    }
    session.reset();
    QCOMPARE(destroyed, 1);
    QVERIFY(socket.isNull());
    QCoreApplication::processEvents();
    QCOMPARE(destroyed, 1);
    QVERIFY(peer.Do(QStringLiteral("closed")));
    QCOMPARE(lines->All(), QStringList());
}

void tst_ZTPipeSession::deletedInASlot_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("SessionConnected") << QByteArray(SIGNAL(SessionConnected()));
    QTest::newRow("IncomingMessage") << QByteArray(SIGNAL(IncomingMessage(QString, QByteArray)));
    QTest::newRow("MessageSent") << QByteArray(SIGNAL(MessageSent()));
    QTest::newRow("SessionDown") << QByteArray(SIGNAL(SessionDown()));
}

/// Deletes a session from a slot that the session's own signal calls.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(ZTPipeSession* session)
        : session(session)
    {
    }

    QPointer<ZTPipeSession> session;

public Q_SLOTS:
    void Delete() { delete session; }
};

void tst_ZTPipeSession::deletedInASlot()
{
    QFETCH(QByteArray, signal);

    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    Deleter deleter(new ZTPipeSession(pipeName, nullptr));
    QVERIFY(connect(deleter.session, signal.constData(), &deleter, SLOT(Delete())));
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QVERIFY(peer.Write(frameA + frame21 + frameA));
    deleter.session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    QCOMPARE(peer.Read(frameA.size()), frameA);
    if (signal == SIGNAL(SessionDown())) {
        QTRY_VERIFY(deleter.session->IsConnected());
        QVERIFY(peer.Do(QStringLiteral("disconnect")));
    }
    QTRY_VERIFY(deleter.session.isNull());
    QCOMPARE(lines->CountEndingWith(QStringLiteral("Assert failed")), 0);
}

void tst_ZTPipeSession::deletedWhileMessagesWait_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("nobody listens") << QStringLiteral("nobody");
    QTest::newRow("just made") << QStringLiteral("new");
    QTest::newRow("connected") << QStringLiteral("connected");
    QTest::newRow("peer dead") << QStringLiteral("dead");
    QTest::newRow("messages have come too") << QStringLiteral("both ways");
    QTest::newRow("reconnecting") << QStringLiteral("reconnecting");
}

void tst_ZTPipeSession::deletedWhileMessagesWait()
{
    QFETCH(QString, state);

    PeerProcess peer;
    if (state != QLatin1String("nobody")) {
        QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    }
    auto session = std::make_unique<ZTPipeSession>(pipeName, nullptr);
    if (state != QLatin1String("nobody") && state != QLatin1String("new")) {
        QVERIFY(peer.Do(QStringLiteral("accept")));
        QTRY_VERIFY(session->IsConnected());
    }
    if (state == QLatin1String("dead")) {
        peer.Die();
    }
    if (state == QLatin1String("both ways")) {
        QByteArray stream;
        for (int i = 0; i < 10000; ++i) {
            stream += frameA;
        }
        QVERIFY(peer.Write(stream));
    }
    if (state == QLatin1String("reconnecting")) {
        session->Reconnect(pipeName);
    }
    for (int i = 0; i < 10000; ++i) {
        session->Send(QStringLiteral("a"), QByteArrayLiteral("bcd"));
    }
    QElapsedTimer timer;
    timer.start();
    session.reset();
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QCoreApplication::processEvents();
    QCOMPARE(lines->CountEndingWith(QStringLiteral("Assert failed")), 0);
}

void tst_ZTPipeSession::deletedWithTheirParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<ZTPipeSession> byName = new ZTPipeSession(pipeName, parent.get());
    const QPointer<ZTPipeSession> adopted = new ZTPipeSession(new QLocalSocket, parent.get());
    QCOMPARE(byName->parent(), parent.get());
    parent.reset();
    QVERIFY(byName.isNull());
    QVERIFY(adopted.isNull());
}

void tst_ZTPipeSession::deletedOnAForeignThread()
{
    PeerProcess peer;
    auto* socket = ConnectedSocket(peer);
    auto* session = new ZTPipeSession(socket, nullptr);
    QPointer<QObject> worker = socket->parent();
    const std::unique_ptr<QThread> foreign(QThread::create([session] { delete session; }));
    foreign->start();
    QVERIFY(foreign->wait(10000));

    // Left behind with a line that says so, rather than destroyed where it does not belong.
    QVERIFY(worker);
    QCOMPARE(worker->thread(), thread());
    const QStringList all = lines->All();
    QCOMPARE(all.size(), 1);
    QVERIFY2(QRegularExpression(QStringLiteral("^\\[src\\\\ZTPipeSession:\\d+\\] Assert failed$"))
                 .match(all.first())
                 .hasMatch(),
             qPrintable(all.first()));
    // It has nobody left to tell that its connection ends.
    delete worker;
    QVERIFY(peer.Do(QStringLiteral("closed")));
}

void tst_ZTPipeSession::messagesSentBeforeTheEndArrive_data()
{
    QTest::addColumn<bool>("isTakenBefore");
    QTest::newRow("the peer reads meanwhile") << true;
#ifndef Q_OS_WIN
    // A pipe of Windows keeps nothing for a reader who comes when the writer has gone.
    QTest::newRow("the peer reads afterwards") << false;
#endif
}

void tst_ZTPipeSession::messagesSentBeforeTheEndArrive()
{
    QFETCH(bool, isTakenBefore);
    for (int round = 0; round < 20; ++round) {
        PeerProcess peer;
        QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
        auto session = std::make_unique<ZTPipeSession>(pipeName, nullptr);
        QVERIFY(session->WaitForConnected(1000));
        QVERIFY(!isTakenBefore || peer.Do(QStringLiteral("accept")));
        session->Send(QStringLiteral("21"), QByteArrayLiteral(""));
        session.reset();
        QVERIFY(isTakenBefore || peer.Do(QStringLiteral("accept")));
        QCOMPARE(peer.Read(frame21.size()), frame21);
        QVERIFY(peer.Do(QStringLiteral("closed")));
    }
}

void tst_ZTPipeSession::assertions_data()
{
    QTest::addColumn<QString>("deathCase");
    QTest::addColumn<QString>("source");
    QTest::newRow("IsConnected without worker")
        << QStringLiteral("pipe-is-connected-without-worker") << QStringLiteral("src\\ZTPipeSession");
    QTest::newRow("WaitForConnected without worker")
        << QStringLiteral("pipe-wait-without-worker") << QStringLiteral("src\\ZTPipeSession");
    QTest::newRow("reading on a foreign thread") << QStringLiteral("pipe-read-on-foreign-thread") << workerSource;
}

void tst_ZTPipeSession::assertions()
{
    QFETCH(QString, deathCase);
    QFETCH(QString, source);

    const DeathReport report = RunDeathCase(deathCase);
    const QRegularExpression expected(
        QStringLiteral("^\\[%1:[1-9]\\d*\\] Assert failed$").arg(QRegularExpression::escape(source)));
    QVERIFY2(expected.match(report.lastLine).hasMatch(), qPrintable(report.output));
    QVERIFY(report.aborted);
}

QTEST_GUILESS_MAIN(tst_ZTPipeSession)
#include "tst_ztpipesession.moc"
