// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawPicture.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"

#include <QFileInfo>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;

/// Pixels that a worker keeps for the next result of the same picture.
class tst_KeptPixels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void resultsAreThoseOfTheirOwnDecoding_data();
    void resultsAreThoseOfTheirOwnDecoding();
    void warningsComeWithEachResult();
    void theProfileComesWithEachResult();
    void otherFilesAreDecoded_data();
    void otherFilesAreDecoded();
    void otherSizesOfCameraFilesAreDecoded();
    void pixelsThatTakeTooMuchAreNotKept();
    void damageIsReportedEachTime_data();
    void damageIsReportedEachTime();
    void quickFormatsAreNotKept();

private:
    struct Made
    {
        Report report;
        QByteArray bytes;
    };

    Made Make(WorkerBench& bench, const QString& input, int side, bool keeps, const ServerLimits& limits = {}) const;
    void WriteInput(const WorkerBench& bench, const QString& name) const;
};

void tst_KeptPixels::initTestCase()
{
    StartPictures();
}

/// A result of at most `side` pixels.
tst_KeptPixels::Made tst_KeptPixels::Make(WorkerBench& bench, const QString& input, int side, bool keeps,
                                          const ServerLimits& limits) const
{
    Job job = JobOf(Text("PNG"), {}, [side](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(SizeRestriction::Fit);
        size.size = side;
        output.SetImageSizeSettings(size);
    });
    job.limits.workerMemory = limits.workerMemory;
    bench.Worker().Send(job);
    PictureTask task;
    task.number = 1;
    task.inputFile = bench.Path(input);
    task.outputFile = bench.Path(Text("out.png"));
    task.format = Text("PNG");
    task.replaceExisting = true;
    task.keepsPixels = keeps;
    const Report report = bench.Worker().Do(task);
    return {report, report.failure == PolicyKind::None ? bench.Bytes(Text("out.png")) : QByteArray()};
}

void tst_KeptPixels::WriteInput(const WorkerBench& bench, const QString& name) const
{
    if (name.endsWith(Text(".dng"))) {
        bench.WriteBytes(name, RawPicture::CompressedDng());
    } else {
        WritePicture(Chart(96, 64), bench.Path(name));
    }
}

void tst_KeptPixels::resultsAreThoseOfTheirOwnDecoding_data()
{
    QTest::addColumn<QString>("input");
    for (const char* input : {"in.dng", "in.heic", "in.avif"}) {
        QTest::newRow(input) << Text(input);
    }
}

void tst_KeptPixels::resultsAreThoseOfTheirOwnDecoding()
{
    QFETCH(const QString, input);
    SKIP_WHERE(MissingEncoder(QFileInfo(input).suffix()));
    QVector<QByteArray> alone;
    const QVector<int> sides{96, 80, 80};
    for (const int side : sides) {
        WorkerBench bench;
        WriteInput(bench, input);
        const Made made = Make(bench, input, side, false);
        QVERIFY2(made.report.failure == PolicyKind::None, qPrintable(made.report.reason));
        QVERIFY(!made.report.usedKeptPixels);
        alone.append(made.bytes);
    }
    WorkerBench bench;
    WriteInput(bench, input);
    for (int i = 0; i < sides.size(); ++i) {
        const Made made = Make(bench, input, sides.at(i), i + 1 < sides.size());
        QVERIFY2(made.report.failure == PolicyKind::None, qPrintable(made.report.reason));
        QCOMPARE(made.report.usedKeptPixels, i > 0);
        QVERIFY(made.bytes == alone.at(i));
    }
    // The last one has not kept anything.
    QVERIFY(!Make(bench, input, 96, false).report.usedKeptPixels);
}

void tst_KeptPixels::warningsComeWithEachResult()
{
    const QString input = QStringLiteral(COLOURS_DATA "/pq-10.avif");
    WorkerBench bench;
    QFile file(input);
    QVERIFY(file.open(QIODevice::ReadOnly));
    bench.WriteBytes(Text("in.avif"), file.readAll());
    const Made first = Make(bench, Text("in.avif"), 96, true);
    const Made second = Make(bench, Text("in.avif"), 96, false);
    QVERIFY(second.report.usedKeptPixels);
    QVERIFY(!first.report.warnings.isEmpty());
    QCOMPARE(TextsOf(second.report.warnings), TextsOf(first.report.warnings));
    QVERIFY(second.bytes == first.bytes);
}

void tst_KeptPixels::theProfileComesWithEachResult()
{
    WorkerBench bench;
    QFile file(QStringLiteral(COLOURS_DATA "/icc-and-nclx.avif"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    bench.WriteBytes(Text("in.avif"), file.readAll());
    const Made first = Make(bench, Text("in.avif"), 96, true);
    const Made second = Make(bench, Text("in.avif"), 96, false);
    QVERIFY(second.report.usedKeptPixels);
    QVERIFY(first.bytes.contains("iCCP"));
    QCOMPARE(TextsOf(second.report.warnings), QStringList());
    QVERIFY(second.bytes == first.bytes);
}

void tst_KeptPixels::otherFilesAreDecoded_data()
{
    QTest::addColumn<bool>("isRenamedOver");
    QTest::newRow("written anew") << false;
    QTest::newRow("replaced by another file") << true;
}

/// A file that has changed under its name since its pixels were kept.
void tst_KeptPixels::otherFilesAreDecoded()
{
    QFETCH(const bool, isRenamedOver);
    SKIP_WHERE(MissingEncoder(Text("heic")));
    WorkerBench bench;
    WritePicture(Chart(96, 64, 8), bench.Path(Text("in.heic")));
    WritePicture(Chart(96, 64, 16), bench.Path(Text("other.heic")));
    const QByteArray expected = Make(bench, Text("other.heic"), 96, false).bytes;
    QVERIFY(Make(bench, Text("in.heic"), 96, true).bytes != expected);
    if (isRenamedOver) {
        QVERIFY(QFile::remove(bench.Path(Text("in.heic"))));
        QVERIFY(QFile::rename(bench.Path(Text("other.heic")), bench.Path(Text("in.heic"))));
    } else {
        bench.WriteBytes(Text("in.heic"), bench.Bytes(Text("other.heic")));
    }
    const Made second = Make(bench, Text("in.heic"), 96, false);
    QVERIFY(!second.report.usedKeptPixels);
    QVERIFY(second.bytes == expected);
}

/// Small results are developed in half size, which gives other pixels.
void tst_KeptPixels::otherSizesOfCameraFilesAreDecoded()
{
    WorkerBench fresh;
    WriteInput(fresh, Text("in.dng"));
    const QByteArray expected = Make(fresh, Text("in.dng"), 32, false).bytes;
    WorkerBench bench;
    WriteInput(bench, Text("in.dng"));
    QVERIFY(!Make(bench, Text("in.dng"), 96, true).report.usedKeptPixels);
    const Made small = Make(bench, Text("in.dng"), 32, true);
    QVERIFY(!small.report.usedKeptPixels);
    QVERIFY(small.bytes == expected);
    const Made again = Make(bench, Text("in.dng"), 32, false);
    QVERIFY(again.report.usedKeptPixels);
    QVERIFY(again.bytes == expected);
}

void tst_KeptPixels::pixelsThatTakeTooMuchAreNotKept()
{
    constexpr int side = 4000; // 48 MB of pixels
    ServerLimits limits;
    limits.workerMemory = qint64(160) << 20;
    WorkerBench bench;
    WritePicture(Chart(side, side), bench.Path(Text("in.avif")), "[effort=0]");
    const Made first = Make(bench, Text("in.avif"), 64, true);
    QVERIFY2(first.report.failure == PolicyKind::None, qPrintable(first.report.reason));
    QVERIFY(Make(bench, Text("in.avif"), 64, true).report.usedKeptPixels);
    QVERIFY(Make(bench, Text("in.avif"), 64, false).report.usedKeptPixels);

    // The limits of the process are those of its first job; what is kept follows those of the last.
    const Made limited = Make(bench, Text("in.avif"), 64, true, limits);
    QVERIFY2(limited.report.failure == PolicyKind::None, qPrintable(limited.report.reason));
    const Made again = Make(bench, Text("in.avif"), 64, false, limits);
    QVERIFY(!again.report.usedKeptPixels);
    QVERIFY(again.bytes == first.bytes);
}

void tst_KeptPixels::damageIsReportedEachTime_data()
{
    resultsAreThoseOfTheirOwnDecoding_data();
}

void tst_KeptPixels::damageIsReportedEachTime()
{
    QFETCH(const QString, input);
    SKIP_WHERE(MissingEncoder(QFileInfo(input).suffix()));
    WorkerBench bench;
    WriteInput(bench, input);
    QByteArray bytes = bench.Bytes(input);
    bytes.truncate(bytes.size() * 3 / 4);
    bench.WriteBytes(input, bytes);
    WorkerBench fresh;
    fresh.WriteBytes(input, bytes);
    const Report alone = Make(fresh, input, 96, false).report;
    QCOMPARE(alone.failure, PolicyKind::Input);
    for (const bool keeps : {true, true, false}) {
        const Report report = Make(bench, input, 96, keeps).report;
        QCOMPARE(report.failure, PolicyKind::Input);
        QCOMPARE(report.reason, alone.reason);
        QCOMPARE(report.errorCode, alone.errorCode);
    }
}

void tst_KeptPixels::quickFormatsAreNotKept()
{
    WorkerBench bench;
    WritePicture(Chart(96, 64), bench.Path(Text("in.jpg")));
    const Made first = Make(bench, Text("in.jpg"), 96, true);
    const Made second = Make(bench, Text("in.jpg"), 96, false);
    QCOMPARE(second.report.failure, PolicyKind::None);
    QVERIFY(!second.report.usedKeptPixels);
    QVERIFY(second.bytes == first.bytes);
}

QTEST_GUILESS_MAIN(tst_KeptPixels)
#include "tst_keptpixels.moc"
