// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProgramFiles.h"
#include "Text.h"

#include "server/protocol/WorkerPool.h"

#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace BatchProtocol;

namespace {

/// What a stand-in worker says of itself.
struct Description
{
    QByteArray process;
    QString temporaryFolder;
    QByteArray openFiles;
};

QByteArray FramedJob(const char* name)
{
    return FrameToWorker(Job{Text(name), ServerLimits(), {}});
}

} // namespace

/// Which worker gets which task, and what a worker is given. The workers are stand-ins that describe themselves.
class tst_WorkerPool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void reusesWorkersForOneJob();
    void neverSharesAWorkerBetweenJobs();
    void jobsOfAGroupShareWorkers();
    void tasksOfAChainGoToOneWorker();
    void dividesWorkersAmongJobs();
    void jobsTakeTurnsWithOneWorker();
    void replacesWorkersOfAFinishedJob();
    void givesEachWorkerATemporaryFolder();
    void passesNoOpenFilesOn();

private:
    void MakePool(int workers);
    bool WaitForRoom(const QByteArray& job);
    void Give(const QByteArray& job, const QByteArray& group = {}, int chain = -1);
    bool WaitForReports(int count);
    QVector<Description> Reported(const QByteArray& job) const;
    QSet<QByteArray> ProcessesOf(const QByteArray& job) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<WorkerPool> pool;
    QVector<QByteArray> jobs; ///< of the tasks, by their numbers
    int reports = 0;
};

void tst_WorkerPool::init()
{
    pool.reset();
    jobs.clear();
    reports = 0;
    folder = std::make_unique<QTemporaryDir>();
    QFile input(folder->filePath(Text("input")));
    QVERIFY(input.open(QIODevice::WriteOnly));
    input.write("describe\n");
}

void tst_WorkerPool::MakePool(int workers)
{
    ServerLimits limits;
    limits.workers = workers;
    pool = std::make_unique<WorkerPool>(BuiltProgram(Text("standinworker")), limits);
    connect(pool.get(), &WorkerPool::Reported, this,
            [this](const Assignment&, const Report& report) { reports += report.reason.isEmpty() ? 1 : 0; });
    pool->Start();
}

bool tst_WorkerPool::WaitForRoom(const QByteArray& job)
{
    constexpr int manyTasks = 100;
    return QTest::qWaitFor([&] { return pool->HasRoom(job, manyTasks); }, 30'000);
}

void tst_WorkerPool::Give(const QByteArray& job, const QByteArray& group, int chain)
{
    PictureTask picture;
    picture.number = jobs.size();
    picture.inputFile = folder->filePath(Text("input"));
    picture.outputFile = folder->filePath(QString::number(picture.number));
    Assignment task;
    task.run = 1;
    task.file = picture.number;
    task.job = job;
    task.task = picture;
    task.group = group;
    task.chain = chain;
    jobs.append(job);
    pool->Give(task);
}

bool tst_WorkerPool::WaitForReports(int count)
{
    return QTest::qWaitFor([&] { return reports == count; }, 30'000);
}

QVector<Description> tst_WorkerPool::Reported(const QByteArray& job) const
{
    QVector<Description> descriptions;
    for (int number = 0; number < jobs.size(); ++number) {
        QFile file(folder->filePath(QString::number(number)));
        if (jobs[number] == job && file.open(QIODevice::ReadOnly)) {
            const QByteArrayList lines = file.readAll().split('\n');
            descriptions.append({lines.value(0), QFile::decodeName(lines.value(1)), lines.value(2)});
        }
    }
    return descriptions;
}

QSet<QByteArray> tst_WorkerPool::ProcessesOf(const QByteArray& job) const
{
    QSet<QByteArray> processes;
    const QVector<Description> descriptions = Reported(job);
    for (const Description& one : descriptions) {
        processes.insert(one.process);
    }
    return processes;
}

void tst_WorkerPool::reusesWorkersForOneJob()
{
    MakePool(2);
    const QByteArray job = FramedJob("a");
    pool->Serve({job});
    for (int i = 0; i < 10; ++i) {
        QVERIFY(WaitForRoom(job));
        Give(job);
    }
    QVERIFY(WaitForReports(10));
    QVERIFY(ProcessesOf(job).size() <= 2);
}

void tst_WorkerPool::neverSharesAWorkerBetweenJobs()
{
    MakePool(2);
    const QByteArray a = FramedJob("a");
    const QByteArray b = FramedJob("b");
    for (int i = 0; i < 6; ++i) {
        const QByteArray& job = i % 2 == 0 ? a : b;
        pool->Serve({job});
        QVERIFY(WaitForRoom(job));
        Give(job);
        QVERIFY(WaitForReports(i + 1));
    }
    QVERIFY(!ProcessesOf(a).intersects(ProcessesOf(b)));
    QCOMPARE(Reported(a).size() + Reported(b).size(), 6);
}

void tst_WorkerPool::jobsOfAGroupShareWorkers()
{
    MakePool(1);
    const QByteArray a = FramedJob("a");
    const QByteArray b = FramedJob("b");
    const QByteArray group = a + b;
    pool->Serve({group});
    for (int i = 0; i < 6; ++i) {
        QVERIFY(WaitForRoom(group));
        Give(i % 3 == 0 ? a : b, group);
    }
    QVERIFY(WaitForReports(6));
    QCOMPARE(Reported(b).size(), 4);
    QCOMPARE(ProcessesOf(a).size(), 1);
    QCOMPARE(ProcessesOf(a), ProcessesOf(b));
    // The group has the worker, not one of its jobs.
    pool->Serve({a});
    QVERIFY(!pool->HasRoom(a, 1));
}

/// They need no room of their own.
void tst_WorkerPool::tasksOfAChainGoToOneWorker()
{
    constexpr int chains = 6;
    constexpr int tasksOfChain = 5;
    MakePool(3);
    const QByteArray a = FramedJob("a");
    pool->Serve({a});
    for (int chain = 0; chain < chains; ++chain) {
        QVERIFY(WaitForRoom(a));
        for (int i = 0; i < tasksOfChain; ++i) {
            Give(a, {}, chain);
        }
    }
    QVERIFY(WaitForReports(chains * tasksOfChain));
    const QVector<Description> descriptions = Reported(a);
    QCOMPARE(descriptions.size(), chains * tasksOfChain);
    for (int i = 0; i < descriptions.size(); ++i) {
        QCOMPARE(descriptions.at(i).process, descriptions.at(i - i % tasksOfChain).process);
    }
    QVERIFY(ProcessesOf(a).size() > 1);
}

/// A job that comes later gets its share, though the first has tasks for all workers.
void tst_WorkerPool::dividesWorkersAmongJobs()
{
    MakePool(2);
    const QByteArray a = FramedJob("a");
    const QByteArray b = FramedJob("b");
    pool->Serve({a});
    int given = 0;
    const auto giveAll = [&](const QByteArray& job) {
        constexpr int manyTasks = 100;
        while (pool->HasRoom(job, manyTasks)) {
            Give(job);
            ++given;
        }
    };
    QVERIFY(WaitForRoom(a));
    giveAll(a);
    const bool hasBoth = QTest::qWaitFor(
        [&] {
            pool->Serve({a, b});
            giveAll(a);
            giveAll(b);
            return Reported(b).size() > 4 && Reported(a).size() > 10;
        },
        60'000);
    QVERIFY(hasBoth);
    QVERIFY(WaitForReports(given));
    // The worker of the second job stays with it.
    QCOMPARE(ProcessesOf(b).size(), 1);
    QVERIFY(!ProcessesOf(a).intersects(ProcessesOf(b)));
}

void tst_WorkerPool::jobsTakeTurnsWithOneWorker()
{
    MakePool(1);
    const QVector<QByteArray> all{FramedJob("a"), FramedJob("b"), FramedJob("c")};
    int given = 0;
    const bool haveAll = QTest::qWaitFor(
        [&] {
            pool->Serve(all);
            for (const QByteArray& job : all) {
                if (pool->HasRoom(job, 100)) {
                    Give(job);
                    ++given;
                }
            }
            return std::all_of(all.begin(), all.end(),
                               [this](const QByteArray& job) { return ProcessesOf(job).size() >= 2; });
        },
        60'000);
    QVERIFY(haveAll);
    QVERIFY(WaitForReports(given));
    QVERIFY(!ProcessesOf(all[0]).intersects(ProcessesOf(all[1]) + ProcessesOf(all[2])));
}

void tst_WorkerPool::replacesWorkersOfAFinishedJob()
{
    MakePool(1);
    const QByteArray a = FramedJob("a");
    const QByteArray b = FramedJob("b");
    pool->Serve({a});
    QVERIFY(WaitForRoom(a));
    Give(a);
    QVERIFY(WaitForReports(1));
    QVERIFY(pool->HasRoom(a, 1));
    // No job has tasks: the next one finds a worker that is ready.
    pool->Serve({});
    pool->Start();
    pool->Serve({b});
    QVERIFY(!pool->HasRoom(b, 1));
    QVERIFY(WaitForRoom(b));
    Give(b);
    QVERIFY(WaitForReports(2));
    QVERIFY(!ProcessesOf(a).intersects(ProcessesOf(b)));
}

void tst_WorkerPool::givesEachWorkerATemporaryFolder()
{
    MakePool(2);
    const QByteArray job = FramedJob("a");
    pool->Serve({job});
    QSet<QString> folders;
    for (int i = 0; i < 200 && folders.size() < 2; ++i) {
        QVERIFY(WaitForRoom(job));
        Give(job);
        const QVector<Description> descriptions = Reported(job);
        for (const Description& one : descriptions) {
            folders.insert(one.temporaryFolder);
        }
    }
    QCOMPARE(folders.size(), 2);
    for (const QString& one : qAsConst(folders)) {
        const QFileInfo info(one);
        QVERIFY(info.isDir());
        QVERIFY(one != QDir::tempPath());
#ifdef Q_OS_UNIX // Elsewhere it lies in a folder of the user.
        QCOMPARE(
            int(info.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)), 0);
#endif
    }
    pool.reset();
    for (const QString& one : qAsConst(folders)) {
        QVERIFY(!QFile::exists(one));
    }
}

void tst_WorkerPool::passesNoOpenFilesOn()
{
#ifndef Q_OS_LINUX
    QSKIP("only Linux tells which files are open");
#else
    // Opened without O_CLOEXEC, as a parent process may have passed them on.
    const int file = open("/dev/null", O_RDWR);
    const int high = fcntl(file, F_DUPFD, 500);
    QVERIFY(high >= 500);
    MakePool(1);
    const QByteArray job = FramedJob("a");
    pool->Serve({job});
    QVERIFY(WaitForRoom(job));
    Give(job);
    QVERIFY(WaitForReports(1));
    close(file);
    close(high);
    QVERIFY2(Reported(job).first().openFiles.startsWith("0 1 2"), Reported(job).first().openFiles.constData());
    QVERIFY(!Reported(job).first().openFiles.split(' ').contains(QByteArray::number(high)));
#endif
}

QTEST_GUILESS_MAIN(tst_WorkerPool)
#include "tst_workerpool.moc"
