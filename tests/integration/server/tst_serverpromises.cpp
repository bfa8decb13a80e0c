// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessEnd.h"
#include "ServerRun.h"

#include "job/journal/RunJournal.h"

#include "ZTBatchOutputSettings.h"

#include <QImage>
#include <QRandomGenerator>
#include <QtTest>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

using Settings = ZTBatchOutputSettings;
using Policies = ServerRun::Policies;

/// What the server promises, and attempts to break it.
class tst_ServerPromises : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brokenWorkersCostOnePicture_data();
    void brokenWorkersCostOnePicture();
    void idleWorkersAreReplaced();
    void manyCrashes();
    void onlyThePictureInWorkIsBlamed_data();
    void onlyThePictureInWorkIsBlamed();
    void finishedResultsOfLostWorkersCount_data();
    void finishedResultsOfLostWorkersCount();
    void picturesOutliveTheCancellingOfAnotherRun();
    void finishedResultsOfLostServersCount_data();
    void finishedResultsOfLostServersCount();
    void jobsThatNoWorkerSurvives();

    void resultsAreWholeOrAbsent_data();
    void resultsAreWholeOrAbsent();
    void fullDisk_data();
    void fullDisk();
    void foldersThatGoHalfWay_data();
    void foldersThatGoHalfWay();
    void foldersThatCannotBeMade();

    void hostileNames();
    void hostileTexts();
    void namesThatAreNoText();
    void memoryOfManyFiles();
};

namespace {

QByteArray Photo()
{
    QImage picture(160, 120, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb(x, 2 * y, (x * y) % 256));
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

#ifdef Q_OS_UNIX
constexpr int killed = SIGKILL;
#else
constexpr int killed = -1;
#endif

void SendSignal(qint64 process, int signal)
{
#ifdef Q_OS_UNIX
    ::kill(pid_t(process), signal);
#else
    Q_UNUSED(signal)
    KillProcess(process);
#endif
}

QStringList Temporary(const QStringList& names)
{
    return names.filter(QRegularExpression(QStringLiteral("\\A\\.velkora-.*\\.tmp\\z")));
}

#ifdef Q_OS_LINUX
bool Mount(const QStringList& arguments)
{
    return ::geteuid() == 0 && QProcess::execute(QStringLiteral("mount"), arguments) == 0;
}

/// A small file system in memory, mounted while this object exists.
class SmallDisk
{
public:
    SmallDisk(const QString& path, const QString& size)
        : path(path)
        , isThere(QDir().mkpath(path) && Mount({QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                                                QStringLiteral("size=") + size, QStringLiteral("none"), path}))
    {
    }
    ~SmallDisk()
    {
        if (isThere) {
            QProcess::execute(QStringLiteral("umount"), {QStringLiteral("--lazy"), path});
        }
    }
    bool IsThere() const { return isThere; }
    bool MakeReadOnly() const { return Mount({QStringLiteral("-o"), QStringLiteral("remount,ro"), path}); }

private:
    Q_DISABLE_COPY(SmallDisk)

    QString path;
    bool isThere;
};
#endif

} // namespace

void tst_ServerPromises::brokenWorkersCostOnePicture_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("code");
    QTest::newRow("killed") << QByteArray("hang") << killed << 9;
#ifdef Q_OS_UNIX
    QTest::newRow("segmentation fault") << QByteArray("hang") << int(SIGSEGV) << 9;
    QTest::newRow("stopped from outside") << QByteArray("hang") << int(SIGSTOP) << 9;
#endif
    QTest::newRow("stops by itself") << QByteArray("stop") << 0 << 9;
    QTest::newRow("hangs") << QByteArray("hang") << 0 << 9;
    QTest::newRow("takes all memory") << QByteArray("eat") << 0 << 10;
}

void tst_ServerPromises::brokenWorkersCostOnePicture()
{
    QFETCH(QByteArray, script);
    QFETCH(int, signal);
    QFETCH(int, code);
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    run.SetVariable(QStringLiteral("VELKORA_BATCH_PICTURE_SECONDS"),
                    code == 10 || signal == killed ? QStringLiteral("60") : QStringLiteral("1"));
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKER_MIB"), QStringLiteral("128"));
    QStringList inputs{run.Write(QStringLiteral("in/bad.jpg"), script)};
    for (int i = 0; i < 5; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), "good"));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    if (signal != 0) {
        QVERIFY2(run.WaitFor(QStringLiteral("file [in/bad.jpg]")), qPrintable(run.Report()));
        // It has begun to write.
        QVERIFY(QTest::qWaitFor([&] { return !Temporary(run.Names(QStringLiteral("out"))).isEmpty(); }, 30000));
        QCOMPARE(run.WorkerIds().size(), 1);
        SendSignal(run.WorkerIds().first(), signal);
    }
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")),
             QStringList{QStringLiteral("error [in/bad.jpg] [out/bad.jpg] 1 %1").arg(code)});
    QCOMPARE(run.Names(QStringLiteral("out")),
             (QStringList{QStringLiteral("0.jpg"), QStringLiteral("1.jpg"), QStringLiteral("2.jpg"),
                          QStringLiteral("3.jpg"), QStringLiteral("4.jpg")}));
    QCOMPARE(run.Content(QStringLiteral("in/bad.jpg")), script);
}

void tst_ServerPromises::idleWorkersAreReplaced()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    QVERIFY(QTest::qWaitFor([&] { return run.WorkerIds().size() == 2; }, 30000));
    const QList<qint64> first = run.WorkerIds();
    KillProcess(first[0]);
    QVERIFY(QTest::qWaitFor(
        [&] {
            const QList<qint64> now = run.WorkerIds();
            return now.size() == 2 && !now.contains(first[0]) && now.contains(first[1]);
        },
        30000));
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "a")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("processed")), 1);
}

void tst_ServerPromises::manyCrashes()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < 60; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), i % 2 == 0 ? "crash" : "good"));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Finished: 30 written, 0 skipped, 30 failed.")), 1);
    QCOMPARE(run.Names(QStringLiteral("out")).size(), 30);
}

void tst_ServerPromises::onlyThePictureInWorkIsBlamed_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("garbage after the answer") << QByteArray("late garbage");
    QTest::newRow("crash after the answer") << QByteArray("late crash");
}

void tst_ServerPromises::onlyThePictureInWorkIsBlamed()
{
    QFETCH(QByteArray, script);
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    QStringList inputs;
    for (int i = 0; i < 20; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), i % 4 == 0 ? script : QByteArray("good")));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")), QStringList());
    QCOMPARE(run.Count(QStringLiteral("processed")), inputs.size());
    QCOMPARE(run.Names(QStringLiteral("out")).size(), inputs.size());
}

void tst_ServerPromises::finishedResultsOfLostWorkersCount_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("naming");
    const int rename = ZTBatchManager::NamingRename;
    QTest::newRow("crash") << QByteArray("crash") << 9 << rename;
    QTest::newRow("garbage") << QByteArray("garbage") << 9 << rename;
    QTest::newRow("out of memory") << QByteArray("outofmemory") << 10 << rename;
    QTest::newRow("crash, over an existing file") << QByteArray("crash") << 9 << int(ZTBatchManager::NamingOverwrite);
}

/// A worker has placed a result, and ends while it works on the next picture, before it could report the first.
void tst_ServerPromises::finishedResultsOfLostWorkersCount()
{
    QFETCH(QByteArray, script);
    QFETCH(int, code);
    QFETCH(int, naming);
    const bool isOver = naming == ZTBatchManager::NamingOverwrite;
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    const QStringList inputs{
        run.Write(QStringLiteral("in/done.jpg"), "held"), run.Write(QStringLiteral("in/bad.jpg"), script),
        run.Write(QStringLiteral("in/x.jpg"), "good"), run.Write(QStringLiteral("in/y.jpg"), "good")};
    if (isOver) {
        run.Write(QStringLiteral("out/done.jpg"), "old");
    }
    Policies policies;
    policies.naming = naming;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QStringList errors{QStringLiteral("error [in/bad.jpg] [out/bad.jpg] 1 %1").arg(code)};
    if (isOver) {
        errors.prepend(QStringLiteral("error [in/done.jpg] [out/done.jpg] 4 11"));
    }
    QCOMPARE(run.Lines(QStringLiteral("error")), errors);
    QCOMPARE(run.Count(QStringLiteral("processed [in/done.jpg] [out/done.jpg]")), 1);
    QCOMPARE(run.Count(QStringLiteral("file [in/bad.jpg]")), 1);
    QCOMPARE(run.Names(QStringLiteral("out")),
             (QStringList{QStringLiteral("done.jpg"), QStringLiteral("x.jpg"), QStringLiteral("y.jpg")}));
    QCOMPARE(run.Content(QStringLiteral("out/done.jpg")), QByteArray("held"));
}

void tst_ServerPromises::picturesOutliveTheCancellingOfAnotherRun()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("2"));
    QStringList others;
    for (int i = 0; i < 4; ++i) {
        others.append(run.Write(QStringLiteral("in/other%1.jpg").arg(i), "hang"));
    }
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/done.jpg"), "wait " + run.Path(QStringLiteral("go")).toUtf8())}));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/done.jpg]")), qPrintable(run.Report()));
    run.session = QStringLiteral("other");
    run.Send<ZTBatchMessage::MsgCreateSession>();
    run.Process(run.Job(others, [](ZTBatchDocument& job) {
        job.GetOutputSettings()->SetPath(job.GetOutputSettings()->GetPath() + QStringLiteral("/other"));
    }));
    QVERIFY2(QTest::qWaitFor([&] { return !Temporary(run.Names(QStringLiteral("out/other"))).isEmpty(); }, 30000),
             qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgCancel>();
    QVERIFY2(run.WaitFor(QStringLiteral("cancelled")), qPrintable(run.Report()));
    run.Write(QStringLiteral("go"), {});
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")), QStringList());
    QCOMPARE(run.Count(QStringLiteral("log Finished: 1 written, 0 skipped, 0 failed.")), 1);
}

void tst_ServerPromises::finishedResultsOfLostServersCount_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("isOver");
    QTest::newRow("new") << QStringLiteral("out") << false;
    QTest::newRow("over another file") << QStringLiteral("out") << true;
    QTest::newRow("over its source") << QStringLiteral("in") << true;
}

/// The server dies after a result has replaced its source and before the journal says so. Processing the file again
/// would apply the effects twice.
void tst_ServerPromises::finishedResultsOfLostServersCount()
{
    QFETCH(QString, folder);
    QFETCH(bool, isOver);
    ServerRun run(ServerRun::Worker::StandIn);
    const QString output = folder + QStringLiteral("/done.jpg");
    const QDateTime longAgo(QDate(2001, 1, 1), QTime(0, 0));
    const QString input = run.Write(QStringLiteral("in/done.jpg"), "held");
    if (isOver) {
        QFile old(run.Write(output, "held"));
        QVERIFY(old.open(QIODevice::ReadWrite) && old.setFileTime(longAgo, QFileDevice::FileModificationTime));
    }
    const QString job =
        run.Job({input}, [&](ZTBatchDocument& document) { document.GetOutputSettings()->SetPath(run.Path(folder)); });
    Policies policies;
    policies.naming = ZTBatchManager::NamingOverwrite;
    const QString journalPath = run.Path(QStringLiteral("journal"));
    run.SetVariable(QString::fromLatin1(BatchJob::journalVariable), journalPath);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_IN_PLACE"), QStringLiteral("1"));
    QVERIFY(BatchJob::RunJournal().Create(
        journalPath, job, {policies.input, policies.output, policies.processing, policies.naming, policies.format}));

    QVERIFY(run.Start());
    run.Process(job, policies);
    // On Windows, opening the file here would block the worker.
    const auto isPlaced = [&] { return QFileInfo(run.Path(output)).lastModified() > longAgo; };
    QVERIFY2(QTest::qWaitFor(isPlaced, 30000), qPrintable(run.Report()));
    QVERIFY(run.KillServer());
    run.DropPipe();
    QCOMPARE(run.Count(QStringLiteral("processed")), 0);

    run.lines.clear();
    QVERIFY(run.Start());
    run.Process(job, policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("file")), QStringList());
    QCOMPARE(run.Count(QStringLiteral("processed [in/done.jpg] [%1]").arg(output)), 1);
}

void tst_ServerPromises::jobsThatNoWorkerSurvives()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("job.script"), {});
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "a"), run.Write(QStringLiteral("in/b.jpg"), "b")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Finished: 0 written, 0 skipped, 2 failed.")), 1);
}

void tst_ServerPromises::resultsAreWholeOrAbsent_data()
{
    QTest::addColumn<bool>("isReal");
    QTest::addColumn<int>("moments");
#ifdef Q_OS_WIN
    QTest::newRow("stand-in") << false << 30; // A server and its workers take seconds to start under Wine.
#else
    QTest::newRow("stand-in") << false << 140;
#endif
    if (HAS_REAL_WORKER) {
        QTest::newRow("pictures") << true << 60;
    }
}

/// The supervisor is killed at random moments of a run, and the next one resumes.
void tst_ServerPromises::resultsAreWholeOrAbsent()
{
    QFETCH(bool, isReal);
    QFETCH(int, moments);
    ServerRun run(isReal ? ServerRun::Worker::Real : ServerRun::Worker::StandIn);
    const QByteArray content = isReal ? Photo() : QByteArray(300'000, 'x');
    QStringList inputs;
    for (int i = 0; i < 12; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.png").arg(i), content));
    }
    QByteArray whole;
    QRandomGenerator random(20240229);
    int unfinished = 0;
    int left = 0;
    int longest = 0; // ms; the approximate time of a run, which the load of the machine may change
    for (int moment = -1; moment < moments; ++moment) {
        QVERIFY(QDir(run.Path(QStringLiteral("out"))).removeRecursively() || moment == -1);
        run.lines.clear();
        QVERIFY(run.Start());
        QElapsedTimer time;
        time.start();
        run.Process(run.Job(inputs));
        if (moment == -1) {
            QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
            longest = int(time.elapsed());
            whole = run.Content(QStringLiteral("out/0.jpg"));
            QVERIFY(!whole.isEmpty());
        } else {
            const int delay = random.bounded(longest + 1);
            QTest::qWait(delay);
            longest = run.Count(QStringLiteral("finished")) > 0 ? delay : longest + longest / 16 + 1;
        }
        QVERIFY2(run.Server().state() == QProcess::Running, qPrintable(run.Report()));
        QVERIFY(run.KillServer());
        run.DropPipe();
        unfinished += run.Count(QStringLiteral("finished")) == 0 ? 1 : 0;

        for (const QString& name : run.Names(QStringLiteral("out"))) {
            if (Temporary({name}).isEmpty()) {
                QCOMPARE(run.Content(QStringLiteral("out/") + name), whole);
            } else {
                ++left;
            }
        }
    }
    // The servers were killed at work.
    QVERIFY2(unfinished > moments / 4, qPrintable(QString::number(unfinished)));
    qInfo("%d of %d runs were cut, which left %d temporary files", unfinished, moments, left);

    QVERIFY(QDir().mkpath(run.Path(QStringLiteral("out"))));
    run.Write(QStringLiteral("out/.velkora-0123456789abcdef.tmp"), "what a crash has left");
    run.lines.clear();
    QVERIFY(run.Start());
    Policies policies;
    policies.naming = ZTBatchManager::NamingOverwrite;
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")).size(), inputs.size());
    QVERIFY(Temporary(run.Names(QStringLiteral("out"))).isEmpty());
    QVERIFY2(run.Count(QStringLiteral("log Removed ")) == 1, qPrintable(run.Report()));
    for (int i = 0; i < inputs.size(); ++i) {
        QCOMPARE(run.Content(QStringLiteral("in/%1.png").arg(i)), content);
    }
}

void tst_ServerPromises::fullDisk_data()
{
    QTest::addColumn<bool>("isReal");
    QTest::newRow("stand-in") << false;
    QTest::newRow("pictures") << true;
}

void tst_ServerPromises::fullDisk()
{
#ifdef Q_OS_LINUX
    QFETCH(bool, isReal);
    ServerRun run(isReal ? ServerRun::Worker::Real : ServerRun::Worker::StandIn);
    const SmallDisk disk(run.Path(QStringLiteral("out")), QStringLiteral("256k"));
    if (!disk.IsThere()) {
        QSKIP("No file system can be mounted here.");
    }
    const QByteArray content = isReal ? Photo() : QByteArray(100'000, 'x');
    // There is room for one picture, not for the other: as a PNG the photo takes some tens of kilobytes.
    run.Write(QStringLiteral("out/filler"), QByteArray(isReal ? 230'000 : 100'000, 'x'));
    QStringList inputs;
    for (int i = 0; i < 4; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.png").arg(i), content));
    }
    QVERIFY(run.Start());
    run.Process(
        run.Job(inputs, [](ZTBatchDocument& job) { job.GetOutputSettings()->SetFormat(QStringLiteral("PNG"), {}); }));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    const QStringList errors = run.Lines(QStringLiteral("error"));
    QVERIFY2(!errors.isEmpty(), qPrintable(run.Report()));
    for (const QString& error : errors) {
        QVERIFY2(error.endsWith(QStringLiteral(" 1 4")), qPrintable(error));
    }
    QCOMPARE(run.Count(QStringLiteral("processed")) + errors.size(), 4);
    QCOMPARE(run.Names(QStringLiteral("out")).size(), 1 + run.Count(QStringLiteral("processed")));
    QVERIFY(Temporary(run.Names(QStringLiteral("out"))).isEmpty());
#else
    QSKIP("Written for Linux.");
#endif
}

void tst_ServerPromises::foldersThatGoHalfWay_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("read-only") << QStringLiteral("read-only");
    QTest::newRow("removed") << QStringLiteral("removed");
    QTest::newRow("replaced by a file") << QStringLiteral("replaced");
}

void tst_ServerPromises::foldersThatGoHalfWay()
{
#ifdef Q_OS_LINUX
    QFETCH(QString, how);
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    std::unique_ptr<SmallDisk> disk;
    if (how == QLatin1String("read-only")) {
        disk = std::make_unique<SmallDisk>(run.Path(QStringLiteral("out")), QStringLiteral("1m"));
        if (!disk->IsThere()) {
            QSKIP("No file system can be mounted here.");
        }
    }
    const QString gate = run.Path(QStringLiteral("gate"));
    const QStringList inputs{run.Write(QStringLiteral("in/before.jpg"), "good"),
                             run.Write(QStringLiteral("in/during.jpg"), "wait " + gate.toUtf8()),
                             run.Write(QStringLiteral("in/after.jpg"), "good")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/during.jpg]")), qPrintable(run.Report()));
    if (disk) {
        QVERIFY(disk->MakeReadOnly());
    } else {
        QVERIFY(QDir().rename(run.Path(QStringLiteral("out")), run.Path(QStringLiteral("moved"))));
        if (how == QLatin1String("replaced")) {
            run.Write(QStringLiteral("out"), "a file");
        }
    }
    run.Write(QStringLiteral("gate"), {});
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")),
             (QStringList{QStringLiteral("error [in/during.jpg] [out/during.jpg] 1 4"),
                          QStringLiteral("error [in/after.jpg] [out/after.jpg] 1 4")}));
    QCOMPARE(run.Names(disk ? QStringLiteral("out") : QStringLiteral("moved")),
             QStringList{QStringLiteral("before.jpg")});
#else
    QSKIP("Written for Linux.");
#endif
}

void tst_ServerPromises::foldersThatCannotBeMade()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("out"), "a file");
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "a")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")), QStringList{QStringLiteral("error [in/a.jpg] [out/a.jpg] 1 4")});
    QCOMPARE(run.Content(QStringLiteral("out")), QByteArray("a file"));
}

void tst_ServerPromises::hostileNames()
{
#ifdef Q_OS_UNIX
    ServerRun run(ServerRun::Worker::Real);
    const QStringList stems{
        QStringLiteral("-rf"),
        QStringLiteral("two\nlines"),
        QStringLiteral("CON"),
        QStringLiteral("..\\..\\x"),
        QStringLiteral("..."),
        QStringLiteral("%s%n$(id)`id`;&|"),
        QStringLiteral(u"\u202Egpj.exe"),
        QStringLiteral(u"\U0001F30A"),
        QStringLiteral("a[b]"), // Libraries read options behind a name.
        QString(251, QLatin1Char('a')),
    };
    const QByteArray photo = Photo();
    QStringList inputs;
    for (const QString& stem : stems) {
        inputs.append(run.Write(QStringLiteral("in/") + stem + QStringLiteral(".png"), photo));
    }
    QStringList before = run.Names(QStringLiteral("."));
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("processed")), stems.size());
    const QStringList results{QStringLiteral("-rf.jpg"),
                              QStringLiteral("two_lines.jpg"),
                              QStringLiteral("_.jpg"),
                              QStringLiteral(".._.._x.jpg"),
                              QStringLiteral("___.jpg"),
                              QStringLiteral("%s%n$(id)`id`;&_.jpg"),
                              QString(251, QLatin1Char('a')) + QStringLiteral(".jpg")};
    for (const QString& result : results) {
        QVERIFY2(!run.Content(QStringLiteral("out/") + result).isNull(), qPrintable(result));
    }
    QCOMPARE(run.Names(QStringLiteral("out")).size(), stems.size());
    before.append(QStringLiteral("out"));
    QStringList after = run.Names(QStringLiteral("."));
    after.removeAll(QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing"));
    const auto isOfWorker = [](const QString& name) { return name.startsWith(QStringLiteral("velkora-worker-")); };
    after.erase(std::remove_if(after.begin(), after.end(), isOfWorker), after.end()); // their temporary folders
    before.sort();
    after.sort();
    QCOMPARE(after, before);
#else
    QSKIP("The file system refuses such names.");
#endif
}

void tst_ServerPromises::hostileTexts()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/a.jpg"), "a")}, [](ZTBatchDocument& job) {
        Settings& settings = *job.GetOutputSettings();
        settings.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateCustomText);
        settings.SetCustomTemplate(Settings::PartMiddle, QStringLiteral("../../x"));
        settings.SetPrefixSeparator(QStringLiteral("/../"));
    }));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral(".._.._x.jpg")});
}

void tst_ServerPromises::namesThatAreNoText()
{
#ifdef Q_OS_LINUX
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("out/good.txt"), {});
    // No job can name this file, but it is in a folder that the server reads.
    const std::string odd = run.Path(QStringLiteral("out/")).toStdString() + "caf\xE9.jpg";
    std::filesystem::copy_file(run.Path(QStringLiteral("out/good.txt")).toStdString(), odd);
    const QStringList inputs{run.Path(QStringLiteral("in/caf")) + QChar(0xFFFD) + QStringLiteral(".jpg"),
                             run.Write(QStringLiteral("in/good.jpg"), "good")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Finished: 1 written, 0 skipped, 1 failed.")) +
                 run.Count(QStringLiteral("log Finished: 1 written, 1 skipped, 0 failed.")),
             1);
    QVERIFY(std::filesystem::remove(odd)); // Qt cannot.
#else
    QSKIP("Written for Linux.");
#endif
}

void tst_ServerPromises::memoryOfManyFiles()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("Sanitizers take memory of their own.");
#elif defined(Q_OS_LINUX)
    constexpr int count = 100'000;
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < count; ++i) {
        inputs.append(QStringLiteral("/home/someone/Pictures/2024/Summer/IMG_%1.jpg").arg(i, 6, 10, QLatin1Char('0')));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    // To the end: the messages about files must not pile up either.
    QVERIFY2(
        QTest::qWaitFor([&] { return !run.lines.isEmpty() && run.lines.last() == QLatin1String("finished"); }, 200000),
        qPrintable(run.lines.mid(0, 20).join(QLatin1Char('\n'))));
    const qint64 peak = run.PeakMemory();
    qInfo("%d files: peak of %lld KiB", count, peak / 1024);
    QVERIFY(peak > 0);
    QVERIFY2(peak <= (qint64(60) << 20) + qint64(count) * 1024, qPrintable(QString::number(peak / 1024)));
#else
    QSKIP("Written for Linux.");
#endif
}

QTEST_GUILESS_MAIN(tst_ServerPromises)
#include "tst_serverpromises.moc"
