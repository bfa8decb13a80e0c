#include "RawPicture.h"
#include "ServerRun.h"

#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QImage>
#include <QtTest>

using Settings = ZTBatchOutputSettings;
using Policies = ServerRun::Policies;

/// Runs from the order to the end: messages, policies, questions, pause and cancel.
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

    void namingPolicies_data();
    void namingPolicies();
    void anothersSourceIsNeverOverwritten();
    void resultsOfOneNameAreOverwrittenInOrder();
    void probedNames();
    void formatPolicies_data();
    void formatPolicies();
    void newNamesOfOtherFormatsAreChecked();

    void questions_data();
    void questions();
    void answersForTheRest();
    void oneQuestionAtATimeInOrder();
    void outputQuestionsHoldTheRun();
    void unansweredQuestionsKeepTheRunWaiting();

    void pauseAndResume();
    void pauseWhileLookingAtPictures();
    void cancelled_data();
    void cancelled();
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

void Original(ZTBatchDocument& job)
{
    job.GetOutputSettings()->SetFormat(Settings::GetOriginalFormat(), {});
}

constexpr char jpeg[] = "\xFF\xD8\xFF and so on";

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
    const QStringList expected{
        QStringLiteral("range 0 2"),
        QStringLiteral("log The job has 2 files."),
        QStringLiteral("file [in/good.jpg]"),
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
    QTest::newRow("no XML") << "text" << 5 << "The job is refused: The job is no batch document.";
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
#ifndef Q_OS_WIN // QProcess takes in whatever comes there before it lets anybody look at it.
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
    // The one that the worker had already is finished.
    QCOMPARE(run.Lines(QStringLiteral("log Stopped")),
             QStringList{QStringLiteral("log Stopped: 1 written, 0 skipped, 1 failed, 19 not processed.")});
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("0.jpg")});
    QCOMPARE(run.lines.last(), QStringLiteral("finished"));
}

void tst_ServerRun::namingPolicies_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QStringList>("errors");
    QTest::addColumn<QString>("out"); // name=content
    QTest::newRow("skip") << int(ZTBatchManager::NamingSkip)
                          << QStringList{QStringLiteral("error [in/a.jpg] [out/a.jpg] 1 11"),
                                         QStringLiteral("error [in/x/b.jpg] [out/b.jpg] 1 11")}
                          << "a.jpg=old b.jpg=b1";
    QTest::newRow("overwrite") << int(ZTBatchManager::NamingOverwrite)
                               << QStringList{QStringLiteral("error [in/a.jpg] [out/a.jpg] 4 11"),
                                              QStringLiteral("error [in/x/b.jpg] [out/b.jpg] 4 11")}
                               << "a.jpg=a1 b.jpg=b2";
    QTest::newRow("rename") << int(ZTBatchManager::NamingRename)
                            << QStringList{QStringLiteral("error [in/a.jpg] [out/a (2).jpg] 3 11"),
                                           QStringLiteral("error [in/x/b.jpg] [out/b (2).jpg] 3 11")}
                            << "a (2).jpg=a1 a.jpg=old b (2).jpg=b2 b.jpg=b1";
}

void tst_ServerRun::namingPolicies()
{
    QFETCH(int, policy);
    QFETCH(QStringList, errors);
    QFETCH(QString, out);
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("out/a.jpg"), "old");
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "a1"), run.Write(QStringLiteral("in/b.jpg"), "b1"),
                             run.Write(QStringLiteral("in/x/b.jpg"), "b2")};
    Policies policies;
    policies.naming = policy;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QStringList found = run.Lines(QStringLiteral("error"));
    found.sort();
    QCOMPARE(Lines(found), Lines(errors));
    QStringList files;
    for (const QString& name : run.Names(QStringLiteral("out"))) {
        files.append(name + QLatin1Char('=') + QString::fromUtf8(run.Content(QStringLiteral("out/") + name)));
    }
    QCOMPARE(files.join(QLatin1Char(' ')), out);
}

void tst_ServerRun::anothersSourceIsNeverOverwritten()
{
    ServerRun run(ServerRun::Worker::StandIn);
    // The result of the first has the name of the second's source; the second may replace itself.
    const QStringList inputs{run.Write(QStringLiteral("in/b.jpg"), "first"),
                             run.Write(QStringLiteral("out/b.jpg"), "second")};
    Policies policies;
    policies.naming = ZTBatchManager::NamingOverwrite;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Content(QStringLiteral("out/b (2).jpg")), QByteArray("first"));
    QCOMPARE(run.Content(QStringLiteral("out/b.jpg")), QByteArray("second"));
    QCOMPARE(run.Content(QStringLiteral("in/b.jpg")), QByteArray("first"));
}

void tst_ServerRun::resultsOfOneNameAreOverwrittenInOrder()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < 10; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1/a.jpg").arg(i), QByteArray::number(i)));
    }
    Policies policies;
    policies.naming = ZTBatchManager::NamingOverwrite;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("a.jpg")});
    QCOMPARE(run.Content(QStringLiteral("out/a.jpg")), QByteArray("9"));
    QCOMPARE(run.Count(QStringLiteral("processed")), 10);
}

void tst_ServerRun::probedNames()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "a"),
                             run.Write(QStringLiteral("in/crash.jpg"), "crashprobe"),
                             run.Path(QStringLiteral("in/missing.jpg")), run.Write(QStringLiteral("in/b.jpg"), "b")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs, [](ZTBatchDocument& job) {
        Settings& settings = *job.GetOutputSettings();
        settings.SetNamingTemplate(Settings::PartPrefix, Settings::TemplateCaptureDate);
        settings.SetFolderStructure(Settings::StructureByCaptureDate);
    }));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out/2024/2024-05-01")),
             (QStringList{QStringLiteral("20240501a.jpg"), QStringLiteral("20240501b.jpg")}));
    QCOMPARE(Lines(run.Lines(QStringLiteral("error"))),
             Lines({QStringLiteral("error [in/crash.jpg] [out/0000/0000-00-00/00000000crash.jpg] 1 9"),
                    QStringLiteral("error [in/missing.jpg] [out/0000/0000-00-00/00000000missing.jpg] 1 2")}));
}

void tst_ServerRun::formatPolicies_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QStringList>("errors");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("skip") << int(ZTBatchManager::WriteToFormatSkip)
                          << QStringList{QStringLiteral("error [in/photo.jpg] [] 1 3"),
                                         QStringLiteral("error [in/raw.dng] [] 1 3")}
                          << QStringList{QStringLiteral("good.jpg")};
    QTest::newRow("stop") << int(ZTBatchManager::WriteToFormatStop)
                          << QStringList{QStringLiteral("error [in/photo.jpg] [] 2 3")} << QStringList();
    // The stand-in calls what it does not know a PSD, and PNG its nearest format.
    QTest::newRow("nearest") << int(ZTBatchManager::WriteToFormatNearest)
                             << QStringList{QStringLiteral("error [in/photo.jpg] [out/photo.png] 5 3"),
                                            QStringLiteral("error [in/raw.dng] [out/raw.tif] 5 3")}
                             << QStringList{QStringLiteral("good.jpg"), QStringLiteral("photo.png"),
                                            QStringLiteral("raw.tif")};
}

void tst_ServerRun::formatPolicies()
{
    QFETCH(int, policy);
    QFETCH(QStringList, errors);
    QFETCH(QStringList, names);
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/photo.jpg"), "no JPEG"),
                             run.Write(QStringLiteral("in/raw.dng"), QByteArray("II*\0 and so on", 14)),
                             run.Write(QStringLiteral("in/good.jpg"), jpeg)};
    Policies policies;
    policies.format = policy;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs, Original), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QStringList found = run.Lines(QStringLiteral("error"));
    found.sort();
    QCOMPARE(Lines(found), Lines(errors));
    QCOMPARE(run.Names(QStringLiteral("out")), names);
}

void tst_ServerRun::newNamesOfOtherFormatsAreChecked()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("out/a.tif"), "old");
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "format TIFF"),
                             run.Write(QStringLiteral("in/b.jpg"), "format TIFF")};
    Policies policies;
    policies.format = ZTBatchManager::WriteToFormatNearest;
    policies.naming = ZTBatchManager::NamingRename;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(Lines(run.Names(QStringLiteral("out"))),
             Lines({QStringLiteral("a (2).tif"), QStringLiteral("a.tif"), QStringLiteral("b.tif")}));
    QCOMPARE(run.Content(QStringLiteral("out/a.tif")), QByteArray("old"));
    QCOMPARE(Lines(run.Lines(QStringLiteral("error [in/a"))),
             Lines({QStringLiteral("error [in/a.jpg] [out/a (2).tif] 5 3"),
                    QStringLiteral("error [in/a.jpg] [out/a (2).tif] 3 11")}));
}

void tst_ServerRun::questions_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("message");
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("error"); // after the answer
    const int input = ZTBatchMessage::MsgInputQuestion;
    const int output = ZTBatchMessage::MsgOutputQuestion;
    const int processing = ZTBatchMessage::MsgProcessingQuestion;
    const int naming = ZTBatchMessage::MsgNamingQuestion;
    const int format = ZTBatchMessage::MsgWriteToFormatQuestion;
    QTest::newRow("input, skip") << QByteArray("input 2") << input << "input question" << 0 << "[out/a.jpg] 1 2";
    QTest::newRow("input, stop") << QByteArray("input 2") << input << "input question" << 1 << "[out/a.jpg] 2 2";
    QTest::newRow("output, skip") << QByteArray("output 4") << output << "output question" << 0 << "[out/a.jpg] 1 4";
    QTest::newRow("output, stop") << QByteArray("output 4") << output << "output question" << 1 << "[out/a.jpg] 2 4";
    QTest::newRow("processing, skip") << QByteArray("crash") << processing << "processing question" << 0
                                      << "[out/a.jpg] 1 9";
    QTest::newRow("processing, stop") << QByteArray("processing 9") << processing << "processing question" << 1
                                      << "[out/a.jpg] 2 9";
    QTest::newRow("naming, skip") << QByteArray("on disk") << naming << "naming question" << 0 << "[out/a.jpg] 1 11";
    QTest::newRow("naming, overwrite") << QByteArray("on disk") << naming << "naming question" << 1
                                       << "[out/a.jpg] 4 11";
    QTest::newRow("naming, rename") << QByteArray("on disk") << naming << "naming question" << 2
                                    << "[out/a (2).jpg] 3 11";
    QTest::newRow("format, skip") << QByteArray("format PNG") << format << "format question" << 0 << "[out/a.jpg] 1 3";
    QTest::newRow("format, stop") << QByteArray("format PNG") << format << "format question" << 1 << "[out/a.jpg] 2 3";
    QTest::newRow("format, nearest") << QByteArray("format PNG") << format << "format question" << 3
                                     << "[out/a.png] 5 3";
}

void tst_ServerRun::questions()
{
    QFETCH(QByteArray, script);
    QFETCH(int, message);
    QFETCH(QString, question);
    QFETCH(int, answer);
    QFETCH(QString, error);
    ServerRun run(ServerRun::Worker::StandIn);
    if (script == "on disk") {
        run.Write(QStringLiteral("out/a.jpg"), "old");
    }
    const QString input = run.Write(QStringLiteral("in/a.jpg"), script);
    QVERIFY(run.Start());
    run.Process(run.Job({input}), {2, 2, 2, 3, 2});
    QVERIFY2(run.WaitFor(question), qPrintable(run.Report()));
    // What the question is about comes before it.
    const int at = run.lines.indexOf(question);
    const QString reported = QStringLiteral("error [in/a.jpg] [out/a.jpg] 0 ");
    QVERIFY2(run.lines[at - 1].startsWith(reported), qPrintable(run.Report()));

    run.SendRaw(ZTBatchMessage::Message(message),
                ZTBatchPayload::Pack(ZTBatchPayload::Answer{run.session, answer, false}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")).last(), QStringLiteral("error [in/a.jpg] ") + error);
    QCOMPARE(run.Count(question), 1);
}

void tst_ServerRun::answersForTheRest()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < 30; ++i) {
        const QString name = QStringLiteral("%1.jpg").arg(i);
        run.Write(QStringLiteral("out/") + name, "old");
        inputs.append(run.Write(QStringLiteral("in/") + name, QByteArray::number(i)));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), {2, 2, 2, 3, 2});
    QVERIFY(run.WaitFor(QStringLiteral("naming question")));
    run.Send<ZTBatchMessage::MsgNamingQuestion>(int(ZTBatchManager::NamingSkip), false);
    QVERIFY(QTest::qWaitFor([&] { return run.Count(QStringLiteral("naming question")) == 2; }, 30000));
    run.Send<ZTBatchMessage::MsgNamingQuestion>(int(ZTBatchManager::NamingRename), true);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("naming question")), 2);
    QCOMPARE(run.Count(QStringLiteral("log The answer about naming holds for the rest of the run.")), 1);
    QCOMPARE(run.Names(QStringLiteral("out")).size(), 30 + 29);
    QCOMPARE(run.Content(QStringLiteral("out/7 (2).jpg")), QByteArray("7"));
    QCOMPARE(run.Content(QStringLiteral("out/7.jpg")), QByteArray("old"));
    QVERIFY(run.Content(QStringLiteral("out/0 (2).jpg")).isNull());
    QCOMPARE(run.Count(QStringLiteral("log Finished: 29 written, 1 skipped, 0 failed.")), 1);
}

void tst_ServerRun::oneQuestionAtATimeInOrder()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QString gate = run.Path(QStringLiteral("gate"));
    // The first is the last to be found out.
    const QStringList inputs{run.Write(QStringLiteral("in/0.jpg"), "wait " + gate.toUtf8()),
                             run.Write(QStringLiteral("in/1.jpg"), "input 2"),
                             run.Write(QStringLiteral("in/2.jpg"), "processing 9"),
                             run.Write(QStringLiteral("in/3.jpg"), "good")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), {2, 2, 2, 3, 2});
    QVERIFY2(run.WaitFor(QStringLiteral("processed [in/3.jpg]")), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("input question")) + run.Count(QStringLiteral("processing question")), 0);
    run.Write(QStringLiteral("gate"), {});
    QVERIFY2(run.WaitFor(QStringLiteral("input question")), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("processing question")), 0);
    run.Send<ZTBatchMessage::MsgInputQuestion>(0, false);
    QVERIFY2(run.WaitFor(QStringLiteral("processing question")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgProcessingQuestion>(0, false);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Finished: 2 written, 0 skipped, 2 failed.")), 1);
}

void tst_ServerRun::outputQuestionsHoldTheRun()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    QStringList inputs;
    for (int i = 0; i < 50; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), "output 4"));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), {2, 2, 2, 3, 2});
    QVERIFY2(run.WaitFor(QStringLiteral("output question")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgOutputQuestion>(int(ZTBatchManager::OutputStop), false);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    // The one that was asked about and the one behind it in the worker.
    QVERIFY2(run.Count(QStringLiteral("file ")) <= 2, qPrintable(run.Report()));
}

void tst_ServerRun::unansweredQuestionsKeepTheRunWaiting()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/bad.jpg"), "input 2"),
                             run.Write(QStringLiteral("in/good.jpg"), "good")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), {2, 2, 2, 3, 2});
    QVERIFY2(run.WaitFor(QStringLiteral("input question")), qPrintable(run.Report()));
    QVERIFY2(run.WaitFor(QStringLiteral("processed [in/good.jpg]")), qPrintable(run.Report()));
    // Answers that are none leave it open.
    run.Send<ZTBatchMessage::MsgInputQuestion>(2, false);
    run.Send<ZTBatchMessage::MsgInputQuestion>(77, true);
    run.Send<ZTBatchMessage::MsgOutputQuestion>(0, true);
    QVERIFY(run.WaitFor(QStringLiteral("log 2 is no answer to the question about input: it stays open.")));
    QVERIFY(run.WaitFor(QStringLiteral("log 77 is no answer to the question about input: it stays open.")));
    QVERIFY(run.WaitFor(QStringLiteral("log There is no such question: the answer is ignored.")));
    QCOMPARE(run.Count(QStringLiteral("finished")), 0);
    run.Send<ZTBatchMessage::MsgCancel>();
    QVERIFY2(run.WaitFor(QStringLiteral("cancelled")), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Cancelled: 1 written, 0 skipped, 0 failed, 1 not processed.")), 1);
    QCOMPARE(run.Count(QStringLiteral("finished")), 0);
}

void tst_ServerRun::pauseAndResume()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
    const QString gate = run.Path(QStringLiteral("gate"));
    QStringList inputs{run.Write(QStringLiteral("in/first.jpg"), "wait " + gate.toUtf8())};
    for (int i = 0; i < 10; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), "good"));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/first.jpg]")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgPause>();
    // Confirmed while a picture is in work.
    QVERIFY2(run.WaitFor(QStringLiteral("paused")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY2(run.WaitFor(QStringLiteral("log There is nothing to pause.")), qPrintable(run.Report()));
    run.Write(QStringLiteral("gate"), {});
    // What the worker had already is finished, nothing else.
    QVERIFY2(run.WaitFor(QStringLiteral("processed [in/0.jpg]")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY(QTest::qWaitFor([&] { return run.Count(QStringLiteral("log There is nothing to pause.")) == 2; }, 30000));
    QCOMPARE(run.Count(QStringLiteral("file ")), 2);
    run.Send<ZTBatchMessage::MsgResume>();
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("resumed")), 1);
    QCOMPARE(run.Names(QStringLiteral("out")).size(), 11);
}

void tst_ServerRun::pauseWhileLookingAtPictures()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QString input = run.Write(QStringLiteral("in/a.jpg"), "a");
    QVERIFY(run.Start());
    run.Process(run.Job({input}, [](ZTBatchDocument& job) {
        job.GetOutputSettings()->SetNamingTemplate(Settings::PartPrefix, Settings::TemplateCaptureDate);
    }));
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY2(run.WaitFor(QStringLiteral("paused")), qPrintable(run.Report()));
    QVERIFY2(run.WaitFor(QStringLiteral("log Names and formats depend on the pictures")), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("file ")), 0);
    run.Send<ZTBatchMessage::MsgResume>();
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("20240501a.jpg")});
}

void tst_ServerRun::cancelled_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("before");
    QTest::newRow("in the middle of pictures") << QByteArray("hang") << "file [in/0.jpg]";
    QTest::newRow("with a stopped worker") << QByteArray("stop") << "file [in/0.jpg]";
    QTest::newRow("at once") << QByteArray("hang") << QString();
    QTest::newRow("paused") << QByteArray("hang") << "paused";
}

void tst_ServerRun::cancelled()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, before);
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < 6; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1.jpg").arg(i), script));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    if (before == QLatin1String("paused")) {
        run.Send<ZTBatchMessage::MsgPause>();
    }
    if (!before.isNull()) {
        QVERIFY2(run.WaitFor(before), qPrintable(run.Report()));
    }
    run.Send<ZTBatchMessage::MsgCancel>();
    run.Send<ZTBatchMessage::MsgCancel>();
    QVERIFY2(run.WaitFor(QStringLiteral("cancelled")), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Cancelled: 0 written, 0 skipped, 0 failed")), 1);
    // Nothing is left behind, and the server works on.
    QVERIFY2(run.Names(QStringLiteral("out")).isEmpty(),
             qPrintable(run.Names(QStringLiteral("out")).join(QLatin1Char(' '))));
    run.Send<ZTBatchMessage::MsgCloseSession>();
    run.session = QStringLiteral("next");
    run.Send<ZTBatchMessage::MsgCreateSession>();
    run.Process(run.Job({run.Write(QStringLiteral("in/good.jpg"), "good")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("good.jpg")});
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
            // Names meet each other and the disk; formats change; some fail.
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
    // Threads of the imaging library have names of their own; those of others have that of the program.
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
