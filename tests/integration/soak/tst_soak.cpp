// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"
#include "OwnFolder.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTimer>
#include <QtTest>

#include <cstdio>

namespace {

using Session = ZTBatchManager::ZTBatchSession;

/// The resident memory of this process in KiB; 0 where the system does not tell.
qint64 ResidentMemory()
{
#ifdef Q_OS_LINUX
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).simplified().split(' ').first().toLongLong();
            }
        }
    }
#endif
    return 0;
}

/// Writes to the terminal directly: DebugLines swallows what Qt logs.
void Print(const QString& text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryIsMeasured = false; // the sanitizer keeps freed memory
#else
constexpr bool memoryIsMeasured = true;
#endif

} // namespace

/// Long runs: memory and objects do not accumulate, and the server may be killed at any moment.
class tst_Soak : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thousandRuns();
    void serverKilledAtAnyMoment();
};

void tst_Soak::thousandRuns()
{
    constexpr int warmUp = 200;
    constexpr int runs = 1000;
    constexpr qint64 allowedGrowth = 1024; // KiB: at most one for each run

    ManagerRun run(
        {opensAtOnce,
         QStringLiteral("5: send 11 id i:0 i:2; send 8 id s:a; send 7 id i:1; send 10 id s:line; send 16 id"),
         QStringLiteral("16: send 9 id s:a s:b; send 7 id i:2; send 6 id")});
    QVERIFY(run.Connect());
    qint64 memoryBefore = 0;
    for (int i = 0; i < warmUp + runs; ++i) {
        if (i == warmUp) {
            memoryBefore = ResidentMemory();
        }
        QVERIFY(run.Manager()->IsAllowToCreateSession());
        const QPointer<Session> session = run.Manager()->CreateBatchSession();
        QVERIFY(session);
        run.log.lines.clear();
        run.log.Watch(session);
        bool isOver = false;
        connect(session, &Session::InputQuestion, session,
                [&session] { session->InputRespond(ZTBatchManager::InputSkip, true); });
        connect(session, &Session::Finished, session, [&isOver] { isOver = true; });
        QVERIFY(session->Process(QStringLiteral("<batch/>")));
        while (!isOver) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCOMPARE(run.log.lines.join(QLatin1Char(';')),
                 QStringLiteral("range 0 2;file [a];progress 1;log [line];input question;processed [a] [b];"
                                "progress 2;finished"));
        delete session;
    }
    const qint64 growth = ResidentMemory() - memoryBefore;
    Print(QStringLiteral("%1 runs, memory %2 KiB before them and %3 KiB more after them")
              .arg(runs)
              .arg(memoryBefore)
              .arg(growth));
    QCOMPARE(run.log.Count(HostLines::failed), 0);
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == warmUp + runs; }));
    QVERIFY2(!memoryIsMeasured || growth <= allowedGrowth, qPrintable(QString::number(growth)));
    QCOMPARE(run.Manager()->children().size(), 2); // the process and the pipe
}

void tst_Soak::serverKilledAtAnyMoment()
{
#ifdef Q_OS_WIN
    // On Windows a process takes ten times as long to start: fewer starts, at moments further apart.
    constexpr int starts = 40;
    constexpr int latestKill = 2500; // ms
#else
    constexpr int starts = 200;
    constexpr int latestKill = 120; // ms
#endif
    constexpr quint32 seed = 20240611;
    Print(QStringLiteral("seed %1").arg(seed));
    QRandomGenerator random(seed);

    // The moments range from before the pipe is open to the middle of a run.
    ManagerRun run({QStringLiteral("start: wait 5; open"),
                    QStringLiteral("5: send 11 id i:0 i:9; flood 3000; wait 5; flood 3000; send 6 id")});
    run.timings.reconnectInterval = 10;
    int sessions = 0;
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this, [&] {
        if (run.Manager()->IsAllowToCreateSession()) {
            const QPointer<Session> session = run.Manager()->CreateBatchSession();
            if (!session) {
                return; // The server has ended before the host got the signal.
            }
            ++sessions;
            session->Process(QStringLiteral("<batch/>"));
            // The session is deleted at the end of the server as well as at the end of its run.
            connect(session, &Session::Aborted, session, [session] { delete session; });
            connect(session, &Session::Finished, session, [session] { delete session; });
        }
    });
    for (int i = 0; i < starts; ++i) {
        run.Manager()->Start();
        QVERIFY(run.Manager()->IsStarted());
        const QPointer<QProcess> process = run.Process();
        QTimer::singleShot(static_cast<int>(random.bounded(latestKill)), process, &QProcess::kill);
        QVERIFY(Eventually([&] { return run.log.Count(HostLines::failed) == i + 1; }));
        QVERIFY(!run.Manager()->IsStarted());
        QVERIFY(run.Manager()->IsAllowToCreateSession());
        QCoreApplication::processEvents();
        QCOMPARE(run.log.Count(HostLines::failed), i + 1);
    }
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QVERIFY(sessions > 0);
    Print(QStringLiteral("%1 starts, %2 sessions").arg(starts).arg(sessions));

    run.timings.reconnectInterval = 1000;
    run.stage.SetRules({opensAtOnce});
    QVERIFY(Eventually([&] { return run.Process() == nullptr; }));
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return sessions > 0 && run.Manager()->CreateBatchSession(); }));
}

OWN_FOLDER_TEST_MAIN(tst_Soak)
#include "tst_soak.moc"
