// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"
#include "TestPictures.h"

#include "ZTBatchOutputSettings.h"

#include <QTest>

/// Framed pictures by the real server, from the job's text to the file.
class TestFramedRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StartPictures(); }

    void thePictureStandsInItsFrame();
    void transparencyBecomesWhiteWhereItMust();
    void aDamagedBackgroundIsNotThePicturesFault();
};

namespace {

using Settings = ZTBatchOutputSettings;

QString PictureFile(ServerRun& run)
{
    run.Write(QStringLiteral("in/.keep"), {}); // makes the folder
    const QString file = run.Path(QStringLiteral("in/chart.png"));
    WritePicture(Chart(120, 80), file);
    return file;
}

Settings::Transformation Turned()
{
    Settings::Transformation framing;
    framing.state = true;
    framing.angle = 30;
    framing.backgroundCustomOutput = true;
    framing.backgroundCustomSize = QSize(200, 150);
    return framing;
}

QString FramedJob(ServerRun& run, const QString& format, const Settings::Transformation& framing)
{
    return run.Job({PictureFile(run)}, [&](ZTBatchDocument& job) {
        job.GetOutputSettings()->SetFormat(format, {});
        job.GetOutputSettings()->SetTransformationSettings(framing);
    });
}

} // namespace

void TestFramedRun::thePictureStandsInItsFrame()
{
    ServerRun run(ServerRun::Worker::Real);
    Settings::Transformation framing = Turned();
    framing.backgroundType = 1;
    framing.backgroundColor = QColor(10, 200, 30);
    QVERIFY(run.Start());
    run.Process(FramedJob(run, QStringLiteral("PNG"), framing));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    const BatchWorker::Picture framed = ReadPicture(run.Path(QStringLiteral("out/chart.png")));
    QCOMPARE(framed.width(), 200);
    QCOMPARE(framed.height(), 150);
    QCOMPARE(framed.bands(), 3);
    QCOMPARE(framed.getpoint(1, 1), (std::vector<double>{10, 200, 30}));
    QVERIFY(framed.getpoint(100, 75) != framed.getpoint(1, 1));
}

void TestFramedRun::transparencyBecomesWhiteWhereItMust()
{
    ServerRun run(ServerRun::Worker::Real);
    QVERIFY(run.Start());
    run.Process(FramedJob(run, QStringLiteral("JPEG"), Turned()));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    const BatchWorker::Picture framed = ReadPicture(run.Path(QStringLiteral("out/chart.jpg")));
    QCOMPARE(framed.bands(), 3);
    QVERIFY(framed.getpoint(1, 1)[0] >= 253);
}

void TestFramedRun::aDamagedBackgroundIsNotThePicturesFault()
{
    ServerRun run(ServerRun::Worker::Real);
    Settings::Transformation framing = Turned();
    framing.backgroundType = 3;
    framing.backgroundImage = run.Write(QStringLiteral("paper.png"), "\x89PNG\r\n\x1A\nno more");
    QVERIFY(run.Start());
    run.Process(FramedJob(run, QStringLiteral("PNG"), framing));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")),
             QStringList(QStringLiteral("error [in/chart.png] [out/chart.png] 1 9")));
    QVERIFY2(!run.Lines(QStringLiteral("log in/chart.png")).filter(QStringLiteral("paper.png")).isEmpty(),
             qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList());
}

QTEST_GUILESS_MAIN(TestFramedRun)

#include "tst_framedrun.moc"
