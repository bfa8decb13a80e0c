// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EngineScript.h"
#include "LiveProcesses.h"
#include "PartsStage.h"

#include <QFile>
#include <QtTest>

#include <csignal>
#include <memory>

namespace {

constexpr int patience = 600'000; // ms

QString VariableOf(int task)
{
    return QStringLiteral("SLURM_ARRAY_TASK_ID=%1").arg(task);
}

QString OnNode(const QString& node)
{
    return QStringLiteral("SLURMD_NODENAME=") + node;
}

} // namespace

/// The array of the guide on a real Slurm of three nodes, with deaths on the way: the results are those of one run.
class tst_SlurmParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void lostNodeWorkerAndCommand();
    void lostDaemonWhoseTaskGoesOn();
    void cleanupTestCase();

private:
    CliRun Slurm(const QString& program, const QStringList& arguments) const
    {
        return CliRun::OfProgram(program, arguments, stage->Path(QString()), environment);
    }
    void Submit();
    int TaskOn(const QString& node) const;
    QList<qint64> ProcessesOf(int task, const QString& program) const
    {
        return ProcessesWith({stage->Mark(), VariableOf(task)}, program);
    }
    QList<qint64> DaemonOf(const QString& node) const;
    QString FieldOf(int task, const QString& field) const;
    bool IsOver() const;
    bool IsUp(const QString& node) const
    {
        return Slurm(QStringLiteral("sinfo"),
                     {QStringLiteral("-h"), QStringLiteral("-n"), node, QStringLiteral("-o"), QStringLiteral("%t")})
                   .Out()
                   .trimmed() == QLatin1String("idle");
    }
    QByteArray Told() const;

    std::unique_ptr<PartsStage> stage;
    std::unique_ptr<EngineScript> slurm;
    QProcessEnvironment environment;
    QString job;
};

void tst_SlurmParts::initTestCase()
{
    stage = std::make_unique<PartsStage>();
    const QString folder = stage->Path(QStringLiteral("slurm"));
    slurm = std::make_unique<EngineScript>(QStringLiteral("slurm"), QStringList{folder}, stage->Environment());
    if (!slurm->Missing().isEmpty()) {
        QSKIP(qPrintable(QStringLiteral("No Slurm here: ") + slurm->Missing()));
    }
    QVERIFY2(slurm->IsReady(), slurm->Err());
    const QString problem = stage->Prepare();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    environment = stage->Environment();
    environment.insert(QStringLiteral("SLURM_CONF"), folder + QLatin1String("/slurm.conf"));
}

/// No job, and all nodes there.
void tst_SlurmParts::cleanup()
{
    Slurm(QStringLiteral("scancel"), {job});
    for (const QString& node : {QStringLiteral("n1"), QStringLiteral("n2"), QStringLiteral("n3")}) {
        if (ProgramOf(DaemonOf(node).value(0)).isEmpty()) {
            slurm->Tell(node.toUtf8());
        }
        QTRY_VERIFY_WITH_TIMEOUT(IsUp(node), patience);
    }
}

void tst_SlurmParts::cleanupTestCase()
{
    slurm.reset();
    if (stage) {
        QTRY_VERIFY_WITH_TIMEOUT(ProcessesWith({stage->Mark()}).isEmpty(), patience);
    }
}

/// As the guide says it. The nodes have one core.
void tst_SlurmParts::Submit()
{
    const CliRun split = stage->Split();
    QVERIFY2(split.exitCode == 0, split.err);
    const CliRun submitted =
        Slurm(QStringLiteral("sbatch"),
              {QStringLiteral("--parsable"), QStringLiteral("--cpus-per-task=1"),
               QStringLiteral("--output=task-%a.log"), QStringLiteral(GUIDE_SCRIPTS "/web.sbatch"), stage->Plan()});
    QVERIFY2(submitted.exitCode == 0, submitted.err);
    job = submitted.Out().trimmed();
}

/// The task whose command runs there; 0 if no command does.
int tst_SlurmParts::TaskOn(const QString& node) const
{
    for (int task = 1; task <= PartsStage::partCount; ++task) {
        if (!ProcessesWith({stage->Mark(), VariableOf(task), OnNode(node)}, QStringLiteral("velkora-batch"))
                 .isEmpty()) {
            return task;
        }
    }
    return 0;
}

QList<qint64> tst_SlurmParts::DaemonOf(const QString& node) const
{
    QFile file(stage->Path(QStringLiteral("slurm/%1.pid").arg(node)));
    return file.open(QIODevice::ReadOnly) ? QList<qint64>{file.readAll().trimmed().toLongLong()} : QList<qint64>();
}

/// What Slurm says of a task.
QString tst_SlurmParts::FieldOf(int task, const QString& field) const
{
    const CliRun run =
        Slurm(QStringLiteral("scontrol"), {QStringLiteral("--oneliner"), QStringLiteral("show"), QStringLiteral("job"),
                                           QStringLiteral("%1_%2").arg(job).arg(task)});
    const QStringList words = run.Out().simplified().split(QLatin1Char(' '));
    for (const QString& word : words) {
        if (word.startsWith(field + QLatin1Char('='))) {
            return word.mid(field.size() + 1);
        }
    }
    return {};
}

bool tst_SlurmParts::IsOver() const
{
    const CliRun queue = Slurm(QStringLiteral("squeue"), {QStringLiteral("--noheader"), QStringLiteral("--jobs"), job});
    return queue.exitCode == 0 && queue.out.trimmed().isEmpty();
}

/// What the tasks have printed.
QByteArray tst_SlurmParts::Told() const
{
    QByteArray text;
    for (int task = 1; task <= PartsStage::partCount; ++task) {
        QFile file(stage->Path(QStringLiteral("task-%1.log").arg(task)));
        if (file.open(QIODevice::ReadOnly)) {
            text += file.fileName().toUtf8() + ":\n" + file.readAll();
        }
    }
    return text;
}

/// All at once: a node dies, and Slurm notices it; on another node a worker dies, which fails its picture; on the third
/// a command dies. All three tasks are queued again.
void tst_SlurmParts::lostNodeWorkerAndCommand()
{
    Submit();
    QVector<int> tasks;
    for (const QString& node : {QStringLiteral("n1"), QStringLiteral("n2"), QStringLiteral("n3")}) {
        QTRY_VERIFY_WITH_TIMEOUT(TaskOn(node) > 0, patience);
        tasks.append(TaskOn(node));
    }
    for (const int task : qAsConst(tasks)) {
        QVERIFY2(stage->HoldOnTheWay(task, VariableOf(task)), Told());
    }

    QList<qint64> lost = DaemonOf(QStringLiteral("n1"));
    QList<qint64> onNode = ProcessesWith({stage->Mark(), OnNode(QStringLiteral("n1"))});
    QVERIFY(lost.size() == 1 && onNode.size() >= 4); // script, command, server, worker
    for (const qint64 pid : qAsConst(onNode)) {
        if (ProgramOf(ParentOf(pid)).startsWith(QLatin1String("slurmstepd"))) {
            lost.append(ParentOf(pid));
        }
    }
    QCOMPARE(lost.size(), 2);
    Signal(lost + onNode, SIGKILL);

    const QList<qint64> workers = ProcessesOf(tasks.at(1), QStringLiteral("VelkoraBatchWorker"));
    QVERIFY(!workers.isEmpty());
    Signal(workers, SIGKILL);

    const QList<qint64> commands = ProcessesOf(tasks.at(2), QStringLiteral("velkora-batch"));
    QCOMPARE(commands.size(), 1);
    Signal(commands, SIGKILL);
    stage->Continue(VariableOf(tasks.at(2)));

    QTRY_VERIFY_WITH_TIMEOUT(IsOver(), patience);
    for (int task = 1; task <= PartsStage::partCount; ++task) {
        QVERIFY2(FieldOf(task, QStringLiteral("JobState")) == QLatin1String("COMPLETED"), Told());
        QVERIFY(FieldOf(task, QStringLiteral("NodeList")) != QLatin1String("n1"));
    }
    // So may be others: that of the killed worker if a picture was in work, and any if a busy machine lets nodes be
    // late.
    for (const int again : {tasks.at(0), tasks.at(2)}) {
        const QByteArray what = QByteArray::number(again) + " of " + QByteArray::number(tasks.at(0)) + ' ' +
                                QByteArray::number(tasks.at(1)) + ' ' + QByteArray::number(tasks.at(2)) + '\n' + Told();
        QVERIFY2(FieldOf(again, QStringLiteral("Restarts")).toInt() >= 1, what);
        QVERIFY2(stage->BeginningsOf(again) >= 2, what);
    }
    QVERIFY(!IsUp(QStringLiteral("n1")));
    QCOMPARE(stage->DifferenceFromOneRun(), QString());
}

/// A node's daemon dies, and the node is given up, but the command there goes on. The part runs twice at a time.
void tst_SlurmParts::lostDaemonWhoseTaskGoesOn()
{
    Submit();
    const QString node = QStringLiteral("n1");
    QTRY_VERIFY_WITH_TIMEOUT(TaskOn(node) > 0, patience);
    const int task = TaskOn(node);
    QVERIFY2(stage->HoldOnTheWay(task, VariableOf(task)), Told());
    Signal(DaemonOf(node), SIGKILL);
    const CliRun given =
        Slurm(QStringLiteral("scontrol"), {QStringLiteral("update"), QStringLiteral("nodename=") + node,
                                           QStringLiteral("state=down"), QStringLiteral("reason=test")});
    QVERIFY2(given.exitCode == 0, given.err);
    const auto commands = [this, task] { return ProcessesOf(task, QStringLiteral("velkora-batch")).size(); };
    const auto workers = [this, task] { return ProcessesOf(task, QStringLiteral("VelkoraBatchWorker")).size(); };
    const int held = workers();
    QTRY_COMPARE_WITH_TIMEOUT(commands(), 2, patience);
    // A command asks a worker for its versions before it begins; that one is not to be held.
    QTRY_COMPARE_WITH_TIMEOUT(stage->BeginningsOf(task), 2, patience);
    QTRY_VERIFY_WITH_TIMEOUT(workers() > held, patience);
    QVERIFY2(stage->HoldOnTheWay(task, VariableOf(task)), Told());
    stage->Continue(VariableOf(task));

    QTRY_VERIFY_WITH_TIMEOUT(IsOver(), patience);
    QTRY_COMPARE_WITH_TIMEOUT(commands(), 0, patience);
    QVERIFY(FieldOf(task, QStringLiteral("Restarts")).toInt() >= 1);
    for (int each = 1; each <= PartsStage::partCount; ++each) {
        QVERIFY2(FieldOf(each, QStringLiteral("JobState")) == QLatin1String("COMPLETED"), Told());
    }
    QCOMPARE(stage->DifferenceFromOneRun(), QString());
}

QTEST_GUILESS_MAIN(tst_SlurmParts)
#include "tst_slurmparts.moc"
