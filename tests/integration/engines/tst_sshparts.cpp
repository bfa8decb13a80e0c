// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EngineScript.h"
#include "LiveProcesses.h"
#include "PartsStage.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <csignal>
#include <memory>

namespace {

constexpr int patience = 600'000; // ms

QString VariableOf(int part)
{
    return QStringLiteral("PARALLEL_SEQ=%1").arg(part);
}

} // namespace

/// The guide's command for GNU parallel over real ssh to three machines, all of which are this one. What dies on the
/// way is run again: the results are those of one run.
class tst_SshParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lostCommandWorkerAndConnection();
    void cleanupTestCase();

private:
    QList<qint64> ProcessesOf(int part, const QString& program) const
    {
        return ProcessesWith({stage->Mark(), VariableOf(part)}, program);
    }
    QList<qint64> SessionOf(int part) const;

    std::unique_ptr<PartsStage> stage;
    std::unique_ptr<EngineScript> machines;
};

void tst_SshParts::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("parallel")).isEmpty()) {
        QSKIP("No GNU parallel here: the package parallel is missing.");
    }
    stage = std::make_unique<PartsStage>();
    const QProcessEnvironment& environment = stage->Environment();
    // Sessions have what the system gives to everybody, and these.
    QStringList arguments{stage->Path(QStringLiteral("ssh"))};
    for (const char* const variable : {"PATH", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "LSAN_OPTIONS"}) {
        const QString name = QString::fromLatin1(variable);
        if (environment.contains(name)) {
            arguments.append(name + QLatin1Char('=') + environment.value(name));
        }
    }
    machines = std::make_unique<EngineScript>(QStringLiteral("ssh-machines"), arguments, environment);
    if (!machines->Missing().isEmpty()) {
        QSKIP(qPrintable(QStringLiteral("No ssh server here: ") + machines->Missing()));
    }
    QVERIFY2(machines->IsReady(), machines->Err());
    const QString problem = stage->Prepare();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_SshParts::cleanupTestCase()
{
    machines.reset();
    if (stage) {
        QTRY_VERIFY_WITH_TIMEOUT(ProcessesWith({stage->Mark()}).isEmpty(), patience);
    }
}

/// The server's process for the connection that runs the part.
QList<qint64> tst_SshParts::SessionOf(int part) const
{
    for (const qint64 command : ProcessesOf(part, QStringLiteral("velkora-batch"))) {
        for (qint64 pid = ParentOf(command); pid > 1; pid = ParentOf(pid)) {
            if (ProgramOf(pid) == QLatin1String("sshd")) {
                return {pid};
            }
        }
    }
    return {};
}

void tst_SshParts::lostCommandWorkerAndConnection()
{
    const CliRun split = stage->Split();
    QVERIFY2(split.exitCode == 0, split.err);
    QProcessEnvironment environment = stage->Environment();
    environment.insert(QStringLiteral("PARALLEL_SSH"),
                       QStringLiteral("ssh -F ") + stage->Path(QStringLiteral("ssh/ssh_config")));
    QProcess run;
    run.setProcessEnvironment(environment);
    run.setWorkingDirectory(stage->Path(QString()));
    run.start(QStringLiteral(GUIDE_SCRIPTS "/web-parallel.sh"), {stage->Plan()});
    run.closeWriteChannel();
    // The first three parts run at once, one on each machine.
    for (const int part : {1, 2, 3}) {
        QVERIFY2(stage->HoldOnTheWay(part, VariableOf(part)), run.readAllStandardError());
    }

    const QList<qint64> commands = ProcessesOf(1, QStringLiteral("velkora-batch"));
    QCOMPARE(commands.size(), 1);
    Signal(commands, SIGKILL);
    stage->Continue(VariableOf(1));
    const QList<qint64> workers = ProcessesOf(2, QStringLiteral("VelkoraBatchWorker"));
    QVERIFY(!workers.isEmpty());
    Signal(workers, SIGKILL);
    const QList<qint64> session = SessionOf(3);
    QCOMPARE(session.size(), 1);
    Signal(session, SIGKILL);
    stage->Continue(VariableOf(3));

    QVERIFY(run.waitForFinished(patience));
    QVERIFY2(run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0, run.readAllStandardError());
    for (int part = 1; part <= PartsStage::partCount; ++part) {
        // A killed worker fails a picture only if one was in work.
        QVERIFY2(stage->BeginningsOf(part) >= (part == 1 || part == 3 ? 2 : 1), QByteArray::number(part));
    }
    QFile log(stage->Path(QStringLiteral("web.plan.joblog")));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray lines = log.readAll();
    for (const char* const machine : {"\talpha\t", "\tbeta\t", "\tgamma\t"}) {
        QVERIFY2(lines.contains(machine), lines);
    }
    QVERIFY(log.remove());
    QTRY_VERIFY_WITH_TIMEOUT(ProcessesOf(3, QStringLiteral("velkora-batch")).isEmpty(), patience);
    QCOMPARE(stage->DifferenceFromOneRun(), QString());
}

QTEST_GUILESS_MAIN(tst_SshParts)
#include "tst_sshparts.moc"
