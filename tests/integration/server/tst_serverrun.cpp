// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawPicture.h"
#include "ServerRun.h"

#include "server/protocol/SystemProtection.h"

#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QImage>
#include <QtTest>

using Policies = ServerRun::Policies;

/// Runs from the order to the end: messages, real pictures, troubles, several workers.
class tst_ServerRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messagesOfARun();
    void realPictures();
    void refusedJobs_data();
    void refusedJobs();

    void cases_data();
    void cases();
    void stoppedRun();

    void samePicturesForAnyNumberOfWorkers();
    void sameResultsForAnyNumberOfWorkers();
    void twoRunsAtATime();
    void workersHaveOneThreadForPictures();
};

namespace {

QString Lines(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void tst_ServerRun::messagesOfARun()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    const QString good = run.Write(QStringLiteral("in/good.jpg"), "good");
    const QString bad = run.Write(QStringLiteral("in/bad.jpg"), "input 2");
    QVERIFY(run.Start());
    run.Process(run.Job({good, bad}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QStringList expected{QStringLiteral("range 0 2"), QStringLiteral("log The job has 2 files.")};
    for (const QString& missing : BatchProtocol::SystemProtection::OfThisSystem().Missing()) {
        expected.append(QStringLiteral("log ") + missing);
    }
    expected += QStringList{
        QStringLiteral("file [in/good.jpg]"),
        QStringLiteral("log in/good.jpg: facts: from 64 x 48 pixels, to 32 x 24 pixels, 4 bytes, quality 85, "
                       "0.012 seconds"),
        QStringLiteral("processed [in/good.jpg] [out/good.jpg]"),
        QStringLiteral("progress 1"),
        QStringLiteral("file [in/bad.jpg]"),
        QStringLiteral("log in/bad.jpg: as the script says; skipped (input policy)"),
        QStringLiteral("error [in/bad.jpg] [out/bad.jpg] 1 2"),
        QStringLiteral("progress 2"),
        QStringLiteral("log Finished: 1 written, 0 skipped, 1 failed."),
        QStringLiteral("finished"),
    };
    QCOMPARE(Lines(run.lines), Lines(expected));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("good.jpg")});
    QCOMPARE(run.Content(QStringLiteral("out/good.jpg")), QByteArray("good"));
}

void tst_ServerRun::realPictures()
{
    if (!HAS_REAL_WORKER) {
        QSKIP("The picture worker is not built.");
    }
    ServerRun run(ServerRun::Worker::Real);
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QStringList inputs;
    for (int i = 0; i < 6; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.png").arg(i), {}));
        QVERIFY(picture.save(inputs.last(), "PNG"));
    }
    run.Write(QStringLiteral("in/3.png"), "no picture");
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("processed")), 5);
    QCOMPARE(run.Lines(QStringLiteral("error")), QStringList{QStringLiteral("error [in/3.png] [out/3.jpg] 1 1")});
    const QImage result(run.Path(QStringLiteral("out/5.jpg")));
    QCOMPARE(result.size(), picture.size());
    QVERIFY2(qAbs(QColor(result.pixel(10, 10)).green() - QColor(Qt::darkGreen).green()) < 4, "the colour is lost");
}

void tst_ServerRun::refusedJobs_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    QTest::newRow("no XML") << "text" << 5 << "The job is refused: The job is not a batch document.";
    QTest::newRow("no files") << "empty" << 5 << "The job is refused: The job has no files.";
    QTest::newRow("no output folder") << "folder" << 6 << "The job is refused: The output folder is \"\"";
    QTest::newRow("effect") << "effect" << 8 << "The job is refused: Effect 1, \"no such effect\", does not exist";
    QTest::newRow("parameters") << "parameters" << 9 << "The job is refused: Effect 1, \"exposure\": \"stops\" is 99";
    QTest::newRow("policy") << "policy" << 6 << "The job is refused: The input policy is 9; it must be one of";
}

void tst_ServerRun::refusedJobs()
{
    QFETCH(QString, kind);
    QFETCH(int, code);
    QFETCH(QString, message);
    ServerRun run(ServerRun::Worker::StandIn);
    const QString input = run.Write(QStringLiteral("in/a.jpg"), "a");
    Policies policies;
    QString job = run.Job({input}, [&kind](ZTBatchDocument& document) {
        if (kind == QLatin1String("empty")) {
            document.GetInputModel()->removeRows(0, 1);
        } else if (kind == QLatin1String("folder")) {
            document.GetOutputSettings()->SetPath({});
        } else if (kind == QLatin1String("effect")) {
            document.GetStyle()->AppendEffect(QStringLiteral("no such effect"), {}, true);
        } else if (kind == QLatin1String("parameters")) {
            document.GetStyle()->AppendEffect(QStringLiteral("exposure"), "{\"stops\": 99}", true);
        }
    });
    if (kind == QLatin1String("text")) {
        job = QStringLiteral("<root>");
    } else if (kind == QLatin1String("policy")) {
        policies.input = 9;
    }
    QVERIFY(run.Start());
    run.Process(job, policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.lines.size(), 4);
    QVERIFY2(run.lines[0].startsWith(QStringLiteral("log ") + message), qPrintable(run.Report()));
    QCOMPARE(run.lines[1], QStringLiteral("error [] [] 2 %1").arg(code));
    QCOMPARE(run.lines[2], QStringLiteral("log Finished: 0 written, 0 skipped, 0 failed."));
    QVERIFY(run.Names(QStringLiteral("out")).isEmpty());
}

void tst_ServerRun::cases_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("totals");
    const QString failed = QStringLiteral("1 written, 0 skipped, 1 failed.");
    const QString skipped = QStringLiteral("1 written, 1 skipped, 0 failed.");
    QTest::newRow("unreadable") << QByteArray("input 2") << "1 2" << failed;
    QTest::newRow("unknown format") << QByteArray("input 1") << "1 1" << failed;
    QTest::newRow("too large") << QByteArray("input 10") << "1 10" << failed;
    QTest::newRow("output") << QByteArray("output 4") << "1 4" << failed;
    QTest::newRow("effect") << QByteArray("processing 9") << "1 9" << failed;
    QTest::newRow("name taken meanwhile") << QByteArray("naming 11") << "1 11" << skipped;
    QTest::newRow("format") << QByteArray("format TIFF") << "1 3" << skipped;
    QTest::newRow("crash") << QByteArray("crash") << "1 9" << failed;
    QTest::newRow("sudden end") << QByteArray("exit") << "1 9" << failed;
    QTest::newRow("out of memory") << QByteArray("outofmemory") << "1 10" << failed;
    QTest::newRow("garbage") << QByteArray("garbage") << "1 9" << failed;
#ifndef Q_OS_WIN // There QProcess reads all that comes before it lets anybody look at it.
    QTest::newRow("answer without end") << QByteArray("flood") << "1 9" << failed;
#endif
    QTest::newRow("answer about another file") << QByteArray("alien") << "1 9" << failed;
    QTest::newRow("code that is none of the case's") << QByteArray("input 9") << "1 9" << failed;
    QTest::newRow("code that is none") << QByteArray("output 77") << "1 9" << failed;
}

void tst_ServerRun::cases()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, error);
    QFETCH(QString, totals);
    ServerRun run(ServerRun::Worker::StandIn);
    const QString good = run.Write(QStringLiteral("in/good.jpg"), "good");
    const QString bad = run.Write(QStringLiteral("in/bad.jpg"), script);
    QVERIFY(run.Start());
    run.Process(run.Job({bad, good}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")),
             QStringList{QStringLiteral("error [in/bad.jpg] [out/bad.jpg] ") + error});
    QCOMPARE(run.Lines(QStringLiteral("log Finished")), QStringList{QStringLiteral("log Finished: ") + totals});
    QVERIFY2(run.PeakMemory() < (150 << 20), qPrintable(QString::number(run.PeakMemory() >> 20)));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("good.jpg")});
}

void tst_ServerRun::stoppedRun()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    QStringList inputs{run.Write(QStringLiteral("in/bad.jpg"), "processing 9")};
    for (int i = 0; i < 20; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), "good"));
    }
    Policies policies;
    policies.processing = ZTBatchManager::ProcessingStop;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")), QStringList{QStringLiteral("error [in/bad.jpg] [out/bad.jpg] 2 9")});
    // The file that the worker had already got is finished.
    QCOMPARE(run.Lines(QStringLiteral("log Stopped")),
             QStringList{QStringLiteral("log Stopped: 1 written, 0 skipped, 1 failed, 19 not processed.")});
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("0.jpg")});
    QCOMPARE(run.lines.last(), QStringLiteral("finished"));
}

void tst_ServerRun::samePicturesForAnyNumberOfWorkers()
{
    if (!HAS_REAL_WORKER) {
        QSKIP("The picture worker is not built.");
    }
    QMap<QString, QByteArray> results[2];
    for (int i = 0; i < 2; ++i) {
        ServerRun run(ServerRun::Worker::Real);
        run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QString::number(i == 0 ? 1 : 4));
        QStringList inputs;
        for (int file = 0; file < 24; ++file) {
            // Pictures of different sizes, so that workers overtake each other.
            QImage picture(40 + 37 * (file % 5) * (file % 5), 60, QImage::Format_RGB32);
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    picture.setPixel(x, y, qRgb((x + file) % 256, y, (x * y) % 256));
                }
            }
            inputs.append(run.Write(QStringLiteral("in/%1/%2.png").arg(file).arg(file % 4), {}));
            QVERIFY(picture.save(inputs.last()));
        }
        Policies policies;
        policies.naming = ZTBatchManager::NamingRename;
        QVERIFY(run.Start());
        run.Process(run.Job(inputs,
                            [](ZTBatchDocument& job) {
                                job.GetStyle()->AppendEffect(QStringLiteral("exposure"), "{\"stops\": 0.5}", true);
                            }),
                    policies);
        QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
        for (const QString& name : run.Names(QStringLiteral("out"))) {
            results[i].insert(name, run.Content(QStringLiteral("out/") + name));
        }
    }
    QCOMPARE(results[0].size(), 24);
    QCOMPARE(results[0], results[1]);
}

void tst_ServerRun::sameResultsForAnyNumberOfWorkers()
{
    QMap<QString, QByteArray> results[2];
    for (int i = 0; i < 2; ++i) {
        ServerRun run(ServerRun::Worker::StandIn);
        run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QString::number(i == 0 ? 1 : 4));
        QStringList inputs;
        for (int file = 0; file < 60; ++file) {
            // Names clash with each other and with the disk, formats change, some files fail.
            const QByteArray script = file % 7 == 3   ? QByteArray("format TIFF\n")
                                      : file % 7 == 5 ? QByteArray("input 2\n")
                                      : file % 7 == 6 ? QByteArray("format PNG\n")
                                                      : QByteArray();
            inputs.append(
                run.Write(QStringLiteral("in/%1/%2.jpg").arg(file).arg(file % 3), script + QByteArray::number(file)));
        }
        run.Write(QStringLiteral("out/1.jpg"), "old");
        run.Write(QStringLiteral("out/1 (2).tif"), "old");
        Policies policies;
        policies.naming = ZTBatchManager::NamingRename;
        policies.format = ZTBatchManager::WriteToFormatNearest;
        QVERIFY(run.Start());
        run.Process(run.Job(inputs), policies);
        QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
        for (const QString& name : run.Names(QStringLiteral("out"))) {
            results[i].insert(name, run.Content(QStringLiteral("out/") + name));
        }
    }
    QVERIFY(results[0].size() > 50);
    QCOMPARE(results[0], results[1]);
}

void tst_ServerRun::twoRunsAtATime()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QString gate = run.Path(QStringLiteral("gate"));
    QVERIFY(run.Start());
    run.Process(run.Job({run.Write(QStringLiteral("in/slow.jpg"), "wait " + gate.toUtf8())}));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/slow.jpg]")), qPrintable(run.Report()));
    run.session = QStringLiteral("second");
    run.Send<ZTBatchMessage::MsgCreateSession>();
    run.Process(run.Job({run.Write(QStringLiteral("in/quick.jpg"), "quick")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("quick.jpg")});
    run.Write(QStringLiteral("gate"), {});
    QVERIFY(QTest::qWaitFor([&] { return run.Count(QStringLiteral("finished")) == 2; }, 30000));
}

/// One worker for each core: a decoder that has threads of its own would slow the others down.
void tst_ServerRun::workersHaveOneThreadForPictures()
{
#ifdef Q_OS_LINUX
    ServerRun run(ServerRun::Worker::Real);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    run.SetVariable(QStringLiteral("OMP_NUM_THREADS"), QStringLiteral("4"));
    const QString input = run.Write(QStringLiteral("in/a.dng"), RawPicture::Dng());
    QVERIFY(run.Start());
    run.Process(run.Job({input}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("processed")), 1);
    QCOMPARE(run.WorkerIds().size(), 1);
    // The imaging library names its threads. All others have the name of the program.
    const QString tasks = QStringLiteral("/proc/%1/task").arg(run.WorkerIds().first());
    int count = 0;
    for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name(QStringLiteral("%1/%2/comm").arg(tasks, task));
        count += name.open(QIODevice::ReadOnly) && name.readLine().startsWith("VelkoraBatch") ? 1 : 0;
    }
    QCOMPARE(count, 2); // One makes pictures, one flushes them.
#else
    QSKIP("Written for Linux.");
#endif
}

QTEST_GUILESS_MAIN(tst_ServerRun)
#include "tst_serverrun.moc"
