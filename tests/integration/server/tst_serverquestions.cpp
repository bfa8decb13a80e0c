// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include <QtTest>

/// The questions of a run and their answers.
class tst_ServerQuestions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void questions_data();
    void questions();
    void answersForTheRest();
    void oneQuestionAtATimeInOrder();
    void outputQuestionsHoldTheRun();
    void unansweredQuestionsKeepTheRunWaiting();
};

void tst_ServerQuestions::questions_data()
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

void tst_ServerQuestions::questions()
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
    // The error that the question is about comes before it.
    const int at = run.lines.indexOf(question);
    const QString reported = QStringLiteral("error [in/a.jpg] [out/a.jpg] 0 ");
    QVERIFY2(run.lines[at - 1].startsWith(reported), qPrintable(run.Report()));

    run.SendRaw(ZTBatchMessage::Message(message),
                ZTBatchPayload::Pack(ZTBatchPayload::Answer{run.session, answer, false}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")).last(), QStringLiteral("error [in/a.jpg] ") + error);
    QCOMPARE(run.Count(question), 1);
}

void tst_ServerQuestions::answersForTheRest()
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

void tst_ServerQuestions::oneQuestionAtATimeInOrder()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QString gate = run.Path(QStringLiteral("gate"));
    // The trouble of the first file is found last.
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

void tst_ServerQuestions::outputQuestionsHoldTheRun()
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
    // The file of the question, and the next one, which the worker had already got.
    QVERIFY2(run.Count(QStringLiteral("file ")) <= 2, qPrintable(run.Report()));
}

void tst_ServerQuestions::unansweredQuestionsKeepTheRunWaiting()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/bad.jpg"), "input 2"),
                             run.Write(QStringLiteral("in/good.jpg"), "good")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), {2, 2, 2, 3, 2});
    QVERIFY2(run.WaitFor(QStringLiteral("input question")), qPrintable(run.Report()));
    QVERIFY2(run.WaitFor(QStringLiteral("processed [in/good.jpg]")), qPrintable(run.Report()));
    // Invalid answers leave the question open.
    run.Send<ZTBatchMessage::MsgInputQuestion>(2, false);
    run.Send<ZTBatchMessage::MsgInputQuestion>(77, true);
    run.Send<ZTBatchMessage::MsgOutputQuestion>(0, true);
    QVERIFY(run.WaitFor(QStringLiteral("log 2 is not an answer to the question about input, which stays open.")));
    QVERIFY(run.WaitFor(QStringLiteral("log 77 is not an answer to the question about input, which stays open.")));
    QVERIFY(run.WaitFor(QStringLiteral("log There is no such question: the answer is ignored.")));
    QCOMPARE(run.Count(QStringLiteral("finished")), 0);
    run.Send<ZTBatchMessage::MsgCancel>();
    QVERIFY2(run.WaitFor(QStringLiteral("cancelled")), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("log Cancelled: 1 written, 0 skipped, 0 failed, 1 not processed.")), 1);
    QCOMPARE(run.Count(QStringLiteral("finished")), 0);
}

QTEST_GUILESS_MAIN(tst_ServerQuestions)
#include "tst_serverquestions.moc"
