// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"
#include "job/values/Warning.h"

#include <QRegularExpression>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

const char* const incomplete = "the file lacks its last bytes; the picture is whole";

Picture Photo(int colours)
{
    const Picture noise = Noise({colours, 8, false}, 120, 90);
    return noise.gaussblur(1.5).copy(Picture::option()->set("interpretation", noise.interpretation()));
}

// The place of the frame header; -1 without one.
int FrameAt(const QByteArray& jpeg)
{
    for (const char* marker : {"\xFF\xC0", "\xFF\xC1", "\xFF\xC2"}) {
        const int place = jpeg.indexOf(marker);
        if (place >= 0) {
            return place;
        }
    }
    return -1;
}

void AddKinds()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<int>("colours");
    QTest::newRow("plain") << QByteArray("[Q=80,subsample_mode=off]") << 3;
    QTest::newRow("subsampled") << QByteArray("[Q=80,subsample_mode=on]") << 3;
    QTest::newRow("grey") << QByteArray("[Q=80]") << 1;
    QTest::newRow("progressive") << QByteArray("[Q=80,interlace]") << 3;
    QTest::newRow("progressive, grey") << QByteArray("[Q=80,interlace]") << 1;
    QTest::newRow("with restart markers") << QByteArray("[Q=80,restart_interval=4]") << 3;
}

} // namespace

/// JPEG files that are cut off, and kinds that the decoder does not know.
class tst_WorkerJpeg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void opensFilesWithoutTheirEnd_data();
    void opensFilesWithoutTheirEnd();
    void givesAWholePictureOrNone_data();
    void givesAWholePictureOrNone();
    void saysHowMuchIsThere_data();
    void saysHowMuchIsThere();
    void refusesLessDetail();
    void opensFilesWithBytesBehind();
    void refusesKindsWithAReason_data();
    void refusesKindsWithAReason();
    void refusesFilesWithoutAPicture();

private:
    QByteArray Written(const QByteArray& options, int colours);
    Report Read(const QByteArray& bytes);

    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerJpeg::initTestCase()
{
    StartPictures();
    bench = std::make_unique<WorkerBench>();
}

QByteArray tst_WorkerJpeg::Written(const QByteArray& options, int colours)
{
    WritePicture(Photo(colours), bench->Path(Text("whole.jpg")), options.constData());
    return bench->Bytes(Text("whole.jpg"));
}

Report tst_WorkerJpeg::Read(const QByteArray& bytes)
{
    QFile::remove(bench->Path(Text("out.png")));
    bench->WriteBytes(Text("in.jpg"), bytes);
    return bench->Make(Text("in.jpg"), Text("out.png"), Text("PNG"));
}

void tst_WorkerJpeg::opensFilesWithoutTheirEnd_data()
{
    AddKinds();
}

void tst_WorkerJpeg::opensFilesWithoutTheirEnd()
{
    QFETCH(const QByteArray, options);
    QFETCH(const int, colours);

    const QByteArray whole = Written(options, colours);
    const Picture expected = ReadPicture(bench->Path(Text("whole.jpg")));
    QCOMPARE(Read(whole).warnings, Warnings());
    for (const int missing : {1, 2}) {
        const Report report = Read(whole.left(whole.size() - missing));
        QCOMPARE(report.reason, QString());
        QCOMPARE(report.warnings, (Warnings{{WarningKind::Incomplete, Text(incomplete)}}));
        QCOMPARE(LargestDifference(ReadPicture(bench->Path(Text("out.png"))), expected), 0.0);
    }
    // Decoded smaller, the file is read anew.
    const auto half = [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.size = 20;
        output.SetImageSizeSettings(size);
    };
    const Report small = bench->Make(Text("in.jpg"), Text("small.png"), Text("PNG"), {}, half);
    QCOMPARE(small.reason, QString());
    QCOMPARE(small.warnings.size(), 1);
}

void tst_WorkerJpeg::givesAWholePictureOrNone_data()
{
    AddKinds();
}

// Cut at each of the last bytes: what is opened is the same to the last pixel.
void tst_WorkerJpeg::givesAWholePictureOrNone()
{
    QFETCH(const QByteArray, options);
    QFETCH(const int, colours);

    const QByteArray whole = Written(options, colours);
    const Picture expected = ReadPicture(bench->Path(Text("whole.jpg")));
    int refused = 0;
    for (int missing = 3; missing < 40; ++missing) {
        const Report report = Read(whole.left(whole.size() - missing));
        if (report.reason.isEmpty()) {
            QCOMPARE(LargestDifference(ReadPicture(bench->Path(Text("out.png"))), expected), 0.0);
            QCOMPARE(TextsOf(report.warnings), QStringList{Text(incomplete)});
        } else {
            ++refused;
            QCOMPARE(report.failure, PolicyKind::Input);
            QCOMPARE(report.errorCode, ZTBatchMessage::ReadFileError);
            QVERIFY(!QFile::exists(bench->Path(Text("out.png"))));
        }
    }
    QVERIFY(refused > 30);
}

void tst_WorkerJpeg::saysHowMuchIsThere_data()
{
    QTest::addColumn<int>("percent");
    for (const int percent : {10, 43, 75, 95}) {
        QTest::addRow("%d %%", percent) << percent;
    }
}

void tst_WorkerJpeg::saysHowMuchIsThere()
{
    QFETCH(const int, percent);

    WritePicture(Noise({1, 8, false}, 160, 1600), bench->Path(Text("whole.jpg")), "[Q=90]");
    const QByteArray whole = bench->Bytes(Text("whole.jpg"));
    const int scan = whole.indexOf("\xFF\xDA") + 10;
    const Report report = Read(whole.left(scan + (whole.size() - scan) * percent / 100));
    QCOMPARE(report.errorCode, ZTBatchMessage::ReadFileError);
    const QRegularExpression expected(Text("^the file ends after (\\d+) % of the picture$"));
    const QRegularExpressionMatch match = expected.match(report.reason);
    QVERIFY2(match.hasMatch(), qPrintable(report.reason));
    // Noise takes the same number of bytes everywhere.
    QVERIFY2(std::abs(match.captured(1).toInt() - percent) <= 2, qPrintable(report.reason));
}

void tst_WorkerJpeg::refusesLessDetail()
{
    const QByteArray whole = Written("[Q=80,interlace]", 3);
    const int lastScan = whole.lastIndexOf("\xFF\xDA");
    for (const int size : {lastScan, lastScan + 20, whole.size() / 2}) {
        const Report report = Read(whole.left(size));
        QCOMPARE(report.errorCode, ZTBatchMessage::ReadFileError);
        QCOMPARE(report.reason, Text("the file ends before all details of the picture"));
    }
}

void tst_WorkerJpeg::opensFilesWithBytesBehind()
{
    const QByteArray whole = Written("[Q=80]", 3);
    const Report report = Read(whole + QByteArray(1000, 'x'));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings, Warnings());
}

void tst_WorkerJpeg::refusesKindsWithAReason_data()
{
    QTest::addColumn<char>("marker");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QString>("reason");
    QTest::newRow("12 bits") << char('\xC1') << 12 << Text("12 bits a channel");
    QTest::newRow("lossless") << char('\xC3') << 8 << Text("lossless or hierarchical");
    QTest::newRow("hierarchical") << char('\xC5') << 8 << Text("lossless or hierarchical");
}

void tst_WorkerJpeg::refusesKindsWithAReason()
{
    QFETCH(const char, marker);
    QFETCH(const int, bits);
    QFETCH(const QString, reason);

    QByteArray bytes = Written("[Q=80]", 3);
    const int frame = FrameAt(bytes);
    QVERIFY(frame > 0);
    bytes[frame + 1] = marker;
    bytes[frame + 4] = char(bits);
    const Report report = Read(bytes);
    QVERIFY2(report.reason.contains(reason), qPrintable(report.reason));
    QCOMPARE(report.failure, PolicyKind::Input);
    QCOMPARE(report.errorCode, ZTBatchMessage::UnsupportedInputFormat);
}

void tst_WorkerJpeg::refusesFilesWithoutAPicture()
{
    const QByteArray whole = Written("[Q=80]", 3);
    for (const int size : {3, 20, FrameAt(whole), FrameAt(whole) + 4, whole.indexOf("\xFF\xDA") + 3}) {
        const Report report = Read(whole.left(size));
        QCOMPARE(report.failure, PolicyKind::Input);
        QCOMPARE(report.errorCode, ZTBatchMessage::ReadFileError);
        QCOMPARE(report.reason, Text("the file ends before its picture begins"));
    }
}

QTEST_GUILESS_MAIN(tst_WorkerJpeg)
#include "tst_workerjpeg.moc"
