// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include <QLocalSocket>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

/// What hosts can do to a server besides running jobs: commands in any order, malformed messages, disconnecting.
class tst_ServerProtocol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsWithoutARun_data();
    void commandsWithoutARun();
    void unknownSessions_data();
    void unknownSessions();
    void repeatedCommands();
    void manyConnections_data();
    void manyConnections();
    void aSessionHasOneRun();
    void closedSessionsCancelTheirRun();
    void foreignSessionsAreUnknown();
    void messagesThatNoServerGets();

    void malformedPayloads_data();
    void malformedPayloads();
    void malformedFrames_data();
    void malformedFrames();

    void ends_data();
    void ends();
    void endsForASecondConnection();
    void anEarlyConnectionMayBeGivenUp();

    void staleSocketsAreRemoved();
    void aLivingServerIsLeftAlone();
    void otherUsersAreRefused();
    void wrongArguments();

    void missingWorker_data();
    void missingWorker();
};

namespace {

const QString pipeName = QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing");

QByteArray SessionPayload(const QString& id)
{
    return ZTBatchPayload::Pack(ZTBatchPayload::Session{id});
}

QString PipePath(const ServerRun& run)
{
    return run.Path(pipeName);
}

/// How many files a process may have open, for this process and those that it starts.
class FileLimit
{
public:
    explicit FileLimit(unsigned count)
    {
#ifdef Q_OS_UNIX
        ::getrlimit(RLIMIT_NOFILE, &before);
        const rlimit now{count, before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &now);
#else
        Q_UNUSED(count)
#endif
    }
    ~FileLimit()
    {
#ifdef Q_OS_UNIX
        ::setrlimit(RLIMIT_NOFILE, &before);
#endif
    }

private:
    Q_DISABLE_COPY(FileLimit)

#ifdef Q_OS_UNIX
    rlimit before = {};
#endif
};

/// Whether the server still runs a job.
bool Works(ServerRun& run)
{
    run.session = QStringLiteral("still there");
    run.Send<ZTBatchMessage::MsgCreateSession>();
    QFile::remove(run.Path(QStringLiteral("out/works.jpg")));
    run.Process(run.Job({run.Write(QStringLiteral("in/works.jpg"), "good")}));
    return run.WaitFor(QStringLiteral("processed [in/works.jpg]")) && run.WaitForFinished();
}

} // namespace

void tst_ServerProtocol::commandsWithoutARun_data()
{
    QTest::addColumn<int>("message");
    QTest::newRow("pause") << int(ZTBatchMessage::MsgPause);
    QTest::newRow("resume") << int(ZTBatchMessage::MsgResume);
    QTest::newRow("cancel") << int(ZTBatchMessage::MsgCancel);
    QTest::newRow("answer about input") << int(ZTBatchMessage::MsgInputQuestion);
    QTest::newRow("answer about output") << int(ZTBatchMessage::MsgOutputQuestion);
    QTest::newRow("answer about processing") << int(ZTBatchMessage::MsgProcessingQuestion);
    QTest::newRow("answer about naming") << int(ZTBatchMessage::MsgNamingQuestion);
    QTest::newRow("answer about the format") << int(ZTBatchMessage::MsgWriteToFormatQuestion);
}

void tst_ServerProtocol::commandsWithoutARun()
{
    QFETCH(int, message);
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    const bool isAnswer = message >= ZTBatchMessage::MsgInputQuestion;
    const QByteArray payload =
        isAnswer ? ZTBatchPayload::Pack(ZTBatchPayload::Answer{run.session, 0, true}) : SessionPayload(run.session);
    run.SendRaw(ZTBatchMessage::Message(message), payload);
    QVERIFY2(run.WaitFor(QStringLiteral("log No run is active: the %1 is ignored.")
                             .arg(isAnswer ? QStringLiteral("answer") : QStringLiteral("command"))),
             qPrintable(run.Report()));
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "a")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    const int known = run.lines.size();
    run.SendRaw(ZTBatchMessage::Message(message), payload);
    QVERIFY2(QTest::qWaitFor([&] { return run.lines.size() > known; }, 30000), qPrintable(run.Report()));
    QVERIFY2(run.lines.last().startsWith(QStringLiteral("log No run is active")), qPrintable(run.Report()));
    QVERIFY2(Works(run), qPrintable(run.Report()));
}

void tst_ServerProtocol::unknownSessions_data()
{
    QTest::addColumn<int>("message");
    for (int message = ZTBatchMessage::MsgPause; message <= ZTBatchMessage::MsgProcess; ++message) {
        QTest::addRow("message %d", message) << message;
    }
    QTest::addRow("message 18") << int(ZTBatchMessage::MsgProcessingQuestion);
}

void tst_ServerProtocol::unknownSessions()
{
    QFETCH(int, message);
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    const QString id = QStringLiteral("nobody");
    const QByteArray payload =
        message == ZTBatchMessage::MsgProcess
            ? ZTBatchPayload::Pack(ZTBatchPayload::Process{id, QStringLiteral("<root/>"), 0, 0, 0, 0, 0})
        : message >= ZTBatchMessage::MsgInputQuestion ? ZTBatchPayload::Pack(ZTBatchPayload::Answer{id, 0, false})
                                                      : SessionPayload(id);
    run.SendRaw(ZTBatchMessage::Message(message), payload);
    QVERIFY2(Works(run), qPrintable(run.Report()));
    QVERIFY2(run.Report().contains(QStringLiteral("Message %1 was ignored: its session is unknown.").arg(message)),
             qPrintable(run.Report()));
}

void tst_ServerProtocol::manyConnections_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("a few") << 5;
    QTest::newRow("more than the server takes") << 100;
#ifdef Q_OS_UNIX
    QTest::newRow("more than a process may have open") << 512; // Windows has no such limit.
#endif
}

// They keep no host away: neither the one that has a session, nor one that comes later.
void tst_ServerProtocol::manyConnections()
{
    QFETCH(int, count);
    ServerRun run(ServerRun::Worker::StandIn);
    const FileLimit limit(1024); // as most systems have it
    QVERIFY(run.Start());
    QVERIFY2(Works(run), qPrintable(run.Report()));
    std::vector<std::unique_ptr<QLocalSocket>> sockets;
    for (int i = 0; i < count; ++i) {
        sockets.push_back(std::make_unique<QLocalSocket>());
        QLocalSocket& socket = *sockets.back();
        // While the server is busy there may be no room in its queue.
        QVERIFY(QTest::qWaitFor(
            [&socket] {
                socket.abort();
                socket.connectToServer(pipeName);
                return socket.waitForConnected(1000);
            },
            30000));
    }
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY2(run.WaitFor(QStringLiteral("log No run is active")), qPrintable(run.Report()));
    ZTPipeSession late(pipeName, nullptr);
    QVERIFY(late.WaitForConnected(30000));
    QSignalSpy answers(&late, &ZTPipeSession::IncomingMessage);
    const QByteArray session = SessionPayload(QStringLiteral("late"));
    late.Send(ZTBatchMessage::Name(ZTBatchMessage::MsgCreateSession), session);
    late.Send(ZTBatchMessage::Name(ZTBatchMessage::MsgPause), session);
    QTRY_COMPARE_WITH_TIMEOUT(answers.size(), 1, 30000);
}

void tst_ServerProtocol::repeatedCommands()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    run.Send<ZTBatchMessage::MsgCreateSession>(); // A second time.
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "hang")}));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/a.jpg]")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgResume>();
    QVERIFY2(run.WaitFor(QStringLiteral("log There is nothing to resume.")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgInputQuestion>(0, true);
    QVERIFY2(run.WaitFor(QStringLiteral("log There is no such question: the answer is ignored.")),
             qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgCancel>();
    run.Send<ZTBatchMessage::MsgCancel>();
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY2(run.WaitFor(QStringLiteral("cancelled")), qPrintable(run.Report()));
    QVERIFY2(Works(run), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("cancelled")), 1);
    QCOMPARE(run.Count(QStringLiteral("paused")), 0);
}

void tst_ServerProtocol::aSessionHasOneRun()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    const QString input = run.Write(QStringLiteral("in/a.jpg"), "a");
    run.Process(run.Job({input}));
    run.Process(run.Job({input}));
    QVERIFY2(run.WaitFor(QStringLiteral("log A session has one run: the second is ignored.")),
             qPrintable(run.Report()));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    run.Process(run.Job({input}));
    QVERIFY(QTest::qWaitFor([&] { return run.Count(QStringLiteral("log A session has one run")) == 2; }, 30000));
    QCOMPARE(run.Count(QStringLiteral("finished")), 1);
}

void tst_ServerProtocol::closedSessionsCancelTheirRun()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    run.Process(
        run.Job({run.Write(QStringLiteral("in/a.jpg"), "hang"), run.Write(QStringLiteral("in/b.jpg"), "hang")}));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/b.jpg]")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgCloseSession>();
    QVERIFY2(Works(run), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("works.jpg")});
}

void tst_ServerProtocol::foreignSessionsAreUnknown()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "hang")}));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/a.jpg]")), qPrintable(run.Report()));
    ZTPipeSession other(QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing"), nullptr);
    QVERIFY(other.WaitForConnected(5000));
    other.Send(ZTBatchMessage::Name(ZTBatchMessage::MsgCancel), SessionPayload(run.session));
    QVERIFY2(
        QTest::qWaitFor(
            [&] { return run.Report().contains(QStringLiteral("Message 4 was ignored: its session is unknown.")); },
            30000),
        qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("cancelled")), 0);
}

void tst_ServerProtocol::messagesThatNoServerGets()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    for (const char* name : {"6", "15", "22", "-1", "", "abc", "99999999999999999999"}) {
        run.Pipe()->Send(QLatin1String(name), SessionPayload(run.session));
    }
    run.Pipe()->Send(QString(30000, QLatin1Char('x')), {});
    QVERIFY2(Works(run), qPrintable(run.Report()));
}

void tst_ServerProtocol::malformedPayloads_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<QByteArray>("payload");
    const QByteArray session = SessionPayload(QStringLiteral("session"));
    QTest::newRow("empty") << 2 << QByteArray();
    QTest::newRow("cut off") << 2 << session.chopped(1);
    QTest::newRow("too long") << 2 << session + 'x';
    QTest::newRow("endless string") << 4 << QByteArray("\xFF\xFF\xFF\xF0 text");
    QTest::newRow("job without policies") << 5 << session + SessionPayload(QStringLiteral("<root/>"));
    QTest::newRow("job of nothing") << 5 << QByteArray();
    QTest::newRow("answer without flag") << 16 << session + QByteArray(4, '\0');
}

void tst_ServerProtocol::malformedPayloads()
{
    QFETCH(int, message);
    QFETCH(QByteArray, payload);
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    run.SendRaw(ZTBatchMessage::Message(message), payload);
    QVERIFY2(run.WaitFor(QStringLiteral("down")), qPrintable(run.Report()));
    // The host of a session is gone.
    QCOMPARE(run.WaitForEnd(), 0);
    QVERIFY2(run.Report().contains(
                 QStringLiteral("A connection was ended: the payload of its message %1 is malformed.").arg(message)),
             qPrintable(run.Report()));
}

void tst_ServerProtocol::malformedFrames_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("endless name") << QByteArray("\x7F\xFF\xFF\xFF");
    QTest::newRow("odd name") << QByteArray("\0\0\0\3abc", 7);
    QTest::newRow("endless payload") << QByteArray("\0\0\0\2\0"
                                                   "5\x7F\xFF\xFF\xFF",
                                                   10);
    QTest::newRow("text") << QByteArray("GET / HTTP/1.1\r\n\r\n");
}

void tst_ServerProtocol::malformedFrames()
{
    QFETCH(QByteArray, bytes);
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    QLocalSocket socket;
    socket.connectToServer(pipeName);
    QVERIFY(socket.waitForConnected());
    socket.write(bytes);
    QVERIFY(QTest::qWaitFor([&] { return socket.state() == QLocalSocket::UnconnectedState; }, 30000));
    // No other host notices.
    QVERIFY2(Works(run), qPrintable(run.Report()));
    QVERIFY2(run.Report().contains(QStringLiteral("Frame refused")), qPrintable(run.Report()));
}

void tst_ServerProtocol::ends_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("isWorking");
    for (const char* how : {"asked", "connection lost", "told by the system"}) {
        QTest::addRow("%s", how) << QString::fromLatin1(how) << false;
        QTest::addRow("%s, in a run", how) << QString::fromLatin1(how) << true;
    }
}

void tst_ServerProtocol::ends()
{
    QFETCH(QString, how);
    QFETCH(bool, isWorking);
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    if (isWorking) {
        run.Process(
            run.Job({run.Write(QStringLiteral("in/a.jpg"), "hang"), run.Write(QStringLiteral("in/b.jpg"), "stop")}));
        QVERIFY2(run.WaitFor(QStringLiteral("file [in/b.jpg]")), qPrintable(run.Report()));
        QVERIFY(QTest::qWaitFor([&] { return run.Names(QStringLiteral("out")).size() == 2; }, 30000));
    }
    const QList<qint64> workers = run.WorkerIds();
    if (how == QLatin1String("asked")) {
        run.SendRaw(ZTBatchMessage::MsgCloseServer, "");
    } else if (how == QLatin1String("connection lost")) {
        // The server knows the session before the host disconnects.
        QVERIFY(QTest::qWaitFor([&] { return run.WorkerIds().size() == 2; }, 30000));
        run.Process(run.Job({}));
        QVERIFY(QTest::qWaitFor([&] { return !run.lines.isEmpty(); }, 30000));
        run.DropPipe();
    } else {
#ifdef Q_OS_UNIX
        QVERIFY(QTest::qWaitFor([&] { return run.WorkerIds().size() == 2; }, 30000));
        ::kill(pid_t(run.Server().processId()), SIGTERM);
#else
        QSKIP("The system asks nothing here.");
#endif
    }
    QCOMPARE(run.WaitForEnd(), 0);
    QVERIFY(run.Names(QStringLiteral("out")).isEmpty());
    QVERIFY(!QFile::exists(PipePath(run)));
    for (const qint64 worker : workers) {
        QVERIFY(QTest::qWaitFor([&] { return ServerRun::HasEnded(worker); }, 30000));
    }
}

void tst_ServerProtocol::endsForASecondConnection()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "hang")}));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/a.jpg]")), qPrintable(run.Report()));
    ZTBatchManager::KillExistingBatchProcess(false);
    QCOMPARE(run.WaitForEnd(), 0);
    QVERIFY(run.Names(QStringLiteral("out")).isEmpty());
}

void tst_ServerProtocol::anEarlyConnectionMayBeGivenUp()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.StartServer());
    QVERIFY(run.Connect());
    run.DropPipe();
    QVERIFY(run.Connect());
    QVERIFY2(Works(run), qPrintable(run.Report()));
}

void tst_ServerProtocol::staleSocketsAreRemoved()
{
#ifdef Q_OS_UNIX
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    QVERIFY2(Works(run), qPrintable(run.Report()));
    QVERIFY(run.KillServer());
    QVERIFY(QFileInfo(PipePath(run)).exists());
    run.lines.clear();
    run.session = QStringLiteral("session");
    QVERIFY(run.Start());
    QVERIFY2(Works(run), qPrintable(run.Report()));
#else
    QSKIP("Pipes leave no files here.");
#endif
}

void tst_ServerProtocol::aLivingServerIsLeftAlone()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    QProcess second;
    second.start(run.Server().program(), run.Server().arguments());
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.exitCode(), 1);
    QVERIFY(second.readAllStandardError().contains("another server listens on it already"));
    QVERIFY2(Works(run), qPrintable(run.Report()));
}

void tst_ServerProtocol::otherUsersAreRefused()
{
#ifdef Q_OS_LINUX
    const passwd* nobody = ::getpwnam("nobody");
    if (::geteuid() != 0 || !nobody) {
        QSKIP("Only root can become another user.");
    }
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    const QByteArray pipe = PipePath(run).toUtf8();
    struct stat found = {};
    QCOMPARE(::stat(pipe.constData(), &found), 0);
    QCOMPARE(int(found.st_mode & 0077U), 0);

    // Even if the socket file admits everybody.
    QCOMPARE(::chmod(pipe.constData(), 0666), 0);
    QCOMPARE(::chmod(run.Path(QString()).toUtf8().constData(), 0755), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgid(nobody->pw_gid) != 0 || ::setuid(nobody->pw_uid) != 0) {
            ::_exit(1);
        }
        QLocalSocket socket;
        socket.connectToServer(QString::fromUtf8(pipe));
        if (!socket.waitForConnected(10000)) {
            ::_exit(2);
        }
        ::_exit(socket.waitForDisconnected(20000) || socket.state() == QLocalSocket::UnconnectedState ? 0 : 3);
    }
    int status = -1;
    QVERIFY(QTest::qWaitFor([&] { return ::waitpid(child, &status, WNOHANG) == child; }, 40000));
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
    QVERIFY(QTest::qWaitFor(
        [&] { return run.Report().contains(QStringLiteral("A connection was refused: it comes from another user.")); },
        30000));
    QVERIFY2(Works(run), qPrintable(run.Report()));
#else
    QSKIP("Written for Linux.");
#endif
}

void tst_ServerProtocol::wrongArguments()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QString program = run.Path(QStringLiteral("VelkoraBatchProcessing"));
    for (const QStringList& arguments :
         {QStringList(), QStringList{QString()}, QStringList{QStringLiteral("a"), QStringLiteral("b")}}) {
        QProcess server;
        server.start(program, arguments);
        QVERIFY(server.waitForFinished());
        QCOMPARE(server.exitCode(), 2);
        QVERIFY(server.readAllStandardError().startsWith("Usage: VelkoraBatchProcessing PIPE"));
    }
#ifdef Q_OS_UNIX // Elsewhere pipes have no folders, and any name is valid.
    QProcess server;
    server.start(program, {run.Path(QStringLiteral("no such folder/pipe"))});
    QVERIFY(server.waitForFinished());
    QCOMPARE(server.exitCode(), 1);
#endif
}

void tst_ServerProtocol::missingWorker_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("missing") << false;
    QTest::newRow("ends at once") << true;
}

void tst_ServerProtocol::missingWorker()
{
    QFETCH(bool, isThere);
    ServerRun run(isThere ? ServerRun::Worker::StandIn : ServerRun::Worker::Missing);
    run.Write(QStringLiteral("start.script"), {});
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "a"), run.Write(QStringLiteral("in/b.jpg"), "b")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")), QStringList{QStringLiteral("error [] [] 2 7")});
    QVERIFY2(run.Count(QStringLiteral("log No picture can be processed: ")) == 1, qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Stopped: 0 written, 0 skipped, 0 failed, 2 not processed.")), 1);
    if (isThere) {
        QVERIFY2(run.Report().contains(QStringLiteral("told to end")), qPrintable(run.Report()));
        // The same server works once the file is repaired.
        QVERIFY(QFile::remove(run.Path(QStringLiteral("start.script"))));
        run.lines.clear();
        QVERIFY2(Works(run), qPrintable(run.Report()));
    }
}

QTEST_GUILESS_MAIN(tst_ServerProtocol)
#include "tst_serverprotocol.moc"
