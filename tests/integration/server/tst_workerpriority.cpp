// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessEnd.h"
#include "ServerRun.h"

#include "server/protocol/ServerLimits.h"

#include <QFile>
#include <QtTest>

#include <sched.h>
#include <sys/resource.h>

/// Whether workers give way to other programs.
class tst_WorkerPriority : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workersGiveWay_data();
    void workersGiveWay();
};

namespace {

int NicenessOf(qint64 process)
{
    return getpriority(PRIO_PROCESS, id_t(process));
}

/// A child process is a copy of the server at first.
bool IsWorker(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(process));
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("VelkoraBatchWorker");
}

/// The niceness of the group of sessions to which a process belongs, of a kernel that divides the processor among such
/// groups; empty for others.
QByteArray NicenessOfGroup(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/autogroup").arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split(' ').value(2) : QByteArray();
}

} // namespace

void tst_WorkerPriority::workersGiveWay_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("givesWay");
    QTest::newRow("by default") << QString() << true;
    QTest::newRow("normal") << QStringLiteral("1") << false;
    QTest::newRow("not normal") << QStringLiteral("0") << true;
    QTest::newRow("no number") << QStringLiteral("high") << true;
    QTest::newRow("out of range") << QStringLiteral("2") << true;
}

void tst_WorkerPriority::workersGiveWay()
{
    QFETCH(QString, value);
    QFETCH(bool, givesWay);
    ServerRun run(ServerRun::Worker::StandIn);
    if (!value.isEmpty()) {
        run.SetVariable(QLatin1String(BatchProtocol::normalPriorityLimit.variable), value);
    }
    QVERIFY(run.Start());
    QTRY_VERIFY(!run.WorkerIds().isEmpty());
    const qint64 server = run.Server().processId();
    QCOMPARE(NicenessOf(server), NicenessOf(0));
    const QByteArray group = NicenessOfGroup(server);
    if (!group.isEmpty()) {
        QCOMPARE(group, givesWay ? QByteArray("10") : QByteArray("0"));
    }
    constexpr int more = 10;
    constexpr int largest = 19;
    const qint64 worker = run.WorkerIds().first();
    QTRY_VERIFY(IsWorker(worker));
    QCOMPARE(NicenessOf(worker), givesWay ? std::min(NicenessOf(0) + more, largest) : NicenessOf(0));
    QCOMPARE(sched_getscheduler(pid_t(worker)), givesWay ? SCHED_BATCH : sched_getscheduler(0));
}

QTEST_GUILESS_MAIN(tst_WorkerPriority)
#include "tst_workerpriority.moc"
