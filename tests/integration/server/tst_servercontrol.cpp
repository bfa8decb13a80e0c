// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include "ZTBatchOutputSettings.h"

#include <QtTest>

using Settings = ZTBatchOutputSettings;

/// Pause, resume and cancel.
class tst_ServerControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pauseAndResume();
    void pauseWhileLookingAtPictures();
    void cancelledWhileNamesAreMade();
    void cancelled_data();
    void cancelled();
};

void tst_ServerControl::pauseAndResume()
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
    // The pause is confirmed while a picture is in work.
    QVERIFY2(run.WaitFor(QStringLiteral("paused")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY2(run.WaitFor(QStringLiteral("log There is nothing to pause.")), qPrintable(run.Report()));
    run.Write(QStringLiteral("gate"), {});
    // Only what the worker had already got is finished.
    QVERIFY2(run.WaitFor(QStringLiteral("processed [in/0.jpg]")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgPause>();
    QVERIFY(QTest::qWaitFor([&] { return run.Count(QStringLiteral("log There is nothing to pause.")) == 2; }, 30000));
    QCOMPARE(run.Count(QStringLiteral("file ")), 2);
    run.Send<ZTBatchMessage::MsgResume>();
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("resumed")), 1);
    QCOMPARE(run.Names(QStringLiteral("out")).size(), 11);
}

void tst_ServerControl::pauseWhileLookingAtPictures()
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

// The plan is elsewhere then. The totals count its files nevertheless.
void tst_ServerControl::cancelledWhileNamesAreMade()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < 50'000; ++i) {
        inputs.append(run.Path(QStringLiteral("in/%1.jpg").arg(i)));
    }
    QVERIFY(run.Start());
    run.Process(run.Job(inputs));
    QVERIFY2(run.WaitFor(QStringLiteral("range 0 50000")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgCancel>();
    QVERIFY2(run.WaitFor(QStringLiteral("cancelled")), qPrintable(run.Report()));
    const QStringList totals = run.Lines(QStringLiteral("log Cancelled: "));
    QCOMPARE(totals.size(), 1);
    QVERIFY2(totals.first().endsWith(QStringLiteral(" not processed.")), qPrintable(totals.first()));
}

void tst_ServerControl::cancelled_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("before");
    QTest::newRow("in the middle of pictures") << QByteArray("hang") << "file [in/0.jpg]";
    QTest::newRow("with a stopped worker") << QByteArray("stop") << "file [in/0.jpg]";
    QTest::newRow("at once") << QByteArray("hang") << QString();
    QTest::newRow("paused") << QByteArray("hang") << "paused";
}

void tst_ServerControl::cancelled()
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
    // Nothing is left behind, and the server still works.
    QVERIFY2(run.Names(QStringLiteral("out")).isEmpty(),
             qPrintable(run.Names(QStringLiteral("out")).join(QLatin1Char(' '))));
    run.Send<ZTBatchMessage::MsgCloseSession>();
    run.session = QStringLiteral("next");
    run.Send<ZTBatchMessage::MsgCreateSession>();
    run.Process(run.Job({run.Write(QStringLiteral("in/good.jpg"), "good")}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("good.jpg")});
}

QTEST_GUILESS_MAIN(tst_ServerControl)
#include "tst_servercontrol.moc"
