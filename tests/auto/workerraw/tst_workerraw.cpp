// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawPicture.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/colour/ColourProfile.h"

#include <QDateTime>
#include <QTest>

#include <cmath>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;
using namespace RawPicture;

namespace {

double Encoded(double light)
{
    return 255 * (light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

} // namespace

/// Camera RAW files, which the test makes itself.
class tst_WorkerRaw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void developsPictures_data();
    void developsPictures();
    void turnsPicturesUpright_data();
    void turnsPicturesUpright();
    void keepsTheDepth();
    void reportsDamage();
    void refusesFilesWithoutTheirData_data();
    void refusesFilesWithoutTheirData();
    void readsCompressedFiles();
    void readsFilesWithWrongCounts();
    void readsPlainTiffFilesUnderTheName();
    void probes();
};

void tst_WorkerRaw::initTestCase()
{
    StartPictures();
}

void tst_WorkerRaw::developsPictures_data()
{
    QTest::addColumn<QVector<double>>("neutral");
    QTest::addColumn<int>("longSide");
    const QVector<double> even{1, 1, 1};
    const QVector<double> lamp{0.5, 1, 0.25};
    QTest::newRow("daylight") << even << width;
    QTest::newRow("under a lamp") << lamp << width;
    QTest::newRow("half the size, which needs half the decoding") << even << width / 2;
    QTest::newRow("a quarter, under a lamp") << lamp << width / 4;
}

void tst_WorkerRaw::developsPictures()
{
    QFETCH(const QVector<double>, neutral);
    QFETCH(const int, longSide);

    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(1, neutral));
    const auto edit = [longSide](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.size = longSide;
        output.SetImageSizeSettings(size);
    };
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.png"), Text("PNG"), {{Text("bitDepth"), 8}}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QCOMPARE(result.width(), longSide);
    QCOMPARE(result.height(), longSide * height / width);
    for (int patch = 0; patch < Patches().size(); ++patch) {
        const int x = result.width() * ((patch % 2) * 2 + 1) / 4;
        const int y = result.height() * ((patch / 2) * 2 + 1) / 4;
        const std::vector<double> pixel = result.getpoint(x, y);
        for (int channel = 0; channel < 3; ++channel) {
            const double expected = Encoded(Patches()[patch][channel]);
            QVERIFY2(std::abs(pixel[std::size_t(channel)] - expected) <= 2.0,
                     qPrintable(QStringLiteral("patch %1, channel %2: %3 instead of %4")
                                    .arg(patch)
                                    .arg(channel)
                                    .arg(pixel[std::size_t(channel)])
                                    .arg(expected)));
        }
    }
}

void tst_WorkerRaw::turnsPicturesUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QVector<int>>("patches"); // top left, top right, bottom left, bottom right
    using Patches = QVector<int>;
    // Source: CIPA DC-008 (EXIF), tag 274.
    QTest::newRow("as it is") << 1 << Patches{0, 1, 2, 3};
    QTest::newRow("mirrored") << 2 << Patches{1, 0, 3, 2};
    QTest::newRow("upside down") << 3 << Patches{3, 2, 1, 0};
    QTest::newRow("mirrored, upside down") << 4 << Patches{2, 3, 0, 1};
    QTest::newRow("mirrored at the diagonal") << 5 << Patches{0, 2, 1, 3};
    QTest::newRow("by a quarter to the right") << 6 << Patches{2, 0, 3, 1};
    QTest::newRow("mirrored at the other diagonal") << 7 << Patches{3, 1, 2, 0};
    QTest::newRow("by a quarter to the left") << 8 << Patches{1, 3, 0, 2};
}

void tst_WorkerRaw::turnsPicturesUpright()
{
    QFETCH(const int, orientation);
    QFETCH(const QVector<int>, patches);

    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(orientation, {1, 1, 1}));
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.png"), Text("PNG"), {{Text("bitDepth"), 8}}).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QCOMPARE(result.width(), orientation < 5 ? width : height);
    QCOMPARE(result.height(), orientation < 5 ? height : width);
    for (int place = 0; place < 4; ++place) {
        const int x = result.width() * ((place % 2) * 2 + 1) / 4;
        const int y = result.height() * ((place / 2) * 2 + 1) / 4;
        for (int channel = 0; channel < 3; ++channel) {
            const double expected = Encoded(Patches()[patches[place]][channel]);
            QVERIFY(std::abs(result.getpoint(x, y)[std::size_t(channel)] - expected) <= 2.0);
        }
    }
}

void tst_WorkerRaw::keepsTheDepth()
{
    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(1, {1, 1, 1}));
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.tif"), Text("TIFF")).reason, QString());
    QCOMPARE(ReadPicture(bench.Path(Text("out.tif"))).format(), VIPS_FORMAT_USHORT);
}

void tst_WorkerRaw::reportsDamage()
{
    WorkerBench bench;
    QByteArray dng = Dng(1, {1, 1, 1});
    // The directory in front, as cameras have it, so that the pixels are what is missing.
    bench.WriteBytes(Text("in.dng"), dng.left(dng.size() - 200));
    const Report cut = bench.Make(Text("in.dng"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(cut.failure, PolicyKind::Input);
    bench.WriteBytes(Text("in.cr2"), QByteArray("II*\0\x10\0\0\0CR\2\0", 12) + QByteArray(2000, 'x'));
    const Report nonsense = bench.Make(Text("in.cr2"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(nonsense.failure, PolicyKind::Input);
    QVERIFY(!nonsense.reason.isEmpty());
    QVERIFY(!QFile::exists(bench.Path(Text("out.tif"))));
}

void tst_WorkerRaw::refusesFilesWithoutTheirData_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = DngWithPixelsLast();
    const int pixels = width * height * 2;
    for (const int percent : {0, 30, 60, 90, 99}) {
        QTest::addRow("%d %% of the data", percent) << whole.left(whole.size() - pixels + pixels * percent / 100);
    }
    QTest::newRow("two bytes missing") << whole.left(whole.size() - 2);
    const auto edited = [](quint16 tag, quint32 value) {
        return DngWithPixelsLast(1, [tag, value](TiffDirectory& directory) { directory.AddLong(tag, value); });
    };
    QTest::newRow("the data behind the end") << edited(273, 1'000'000);
    QTest::newRow("the data at the very end") << edited(273, quint32(whole.size()));
    const QByteArray empty = edited(279, 0);
    QTest::newRow("no data") << empty.left(empty.size() - pixels);
    const QByteArray lossless = CompressedDng();
    const int front = whole.size() - pixels;
    for (const int percent : {0, 30, 60, 90, 99}) {
        QTest::addRow("%d %% of compressed data", percent)
            << lossless.left(front + (lossless.size() - front) * percent / 100);
    }
    const QByteArray compressed =
        DngWithPixelsLast(1, [](TiffDirectory& directory) { directory.AddShort(259, 7); }); // lossless JPEG
    QTest::newRow("compressed, cut off") << compressed.left(compressed.size() - pixels);
    QTest::newRow("nothing but zeros, compressed")
        << compressed.left(compressed.size() - pixels) + QByteArray(pixels, '\0');
}

void tst_WorkerRaw::refusesFilesWithoutTheirData()
{
    QFETCH(const QByteArray, bytes);

    WorkerBench bench;
    bench.WriteBytes(Text("whole.dng"), DngWithPixelsLast());
    QCOMPARE(bench.Make(Text("whole.dng"), Text("out.tif"), Text("TIFF")).reason, QString());
    bench.WriteBytes(Text("in.dng"), bytes);
    for (const double size : {1.0, 0.25}) {
        const auto edit = [size](ZTBatchOutputSettings& output) {
            ZTBatchOutputSettings::ImageSize reduced;
            reduced.restriction = int(BatchJob::SizeRestriction::Fit);
            reduced.size = int(width * size);
            output.SetImageSizeSettings(reduced);
        };
        const Report report = bench.Make(Text("in.dng"), Text("cut.tif"), Text("TIFF"), {}, edit);
        QCOMPARE(report.failure, PolicyKind::Input);
        QCOMPARE(report.errorCode, ZTBatchMessage::ReadFileError);
        QVERIFY(!report.reason.isEmpty());
        QVERIFY(!QFile::exists(bench.Path(Text("cut.tif"))));
    }
}

void tst_WorkerRaw::readsCompressedFiles()
{
    WorkerBench bench;
    bench.WriteBytes(Text("plain.dng"), DngWithPixelsLast());
    bench.WriteBytes(Text("in.dng"), CompressedDng());
    QCOMPARE(bench.Make(Text("plain.dng"), Text("plain.png"), Text("PNG")).reason, QString());
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.png"), Text("PNG")).reason, QString());
    QCOMPARE(LargestDifference(ReadPicture(bench.Path(Text("out.png"))), ReadPicture(bench.Path(Text("plain.png")))),
             0.0);
}

void tst_WorkerRaw::readsFilesWithWrongCounts()
{
    WorkerBench bench;
    bench.WriteBytes(Text("whole.dng"), DngWithPixelsLast());
    QCOMPARE(bench.Make(Text("whole.dng"), Text("whole.png"), Text("PNG")).reason, QString());
    for (const quint32 count : {0U, 100U, 100'000'000U}) {
        bench.WriteBytes(Text("in.dng"),
                         DngWithPixelsLast(1, [count](TiffDirectory& directory) { directory.AddLong(279, count); }));
        QCOMPARE(bench.Make(Text("in.dng"), Text("out.png"), Text("PNG")).reason, QString());
        QCOMPARE(
            LargestDifference(ReadPicture(bench.Path(Text("out.png"))), ReadPicture(bench.Path(Text("whole.png")))),
            0.0);
    }
}

void tst_WorkerRaw::readsPlainTiffFilesUnderTheName()
{
    WorkerBench bench;
    WritePicture(Chart(60, 40), bench.Path(Text("plain.tif")));
    QVERIFY(QFile::rename(bench.Path(Text("plain.tif")), bench.Path(Text("plain.dng"))));
    QCOMPARE(bench.Make(Text("plain.dng"), Text("out.png"), Text("PNG")).reason, QString());
    QCOMPARE(LargestDifference(ReadPicture(bench.Path(Text("out.png"))), Chart(60, 40)), 0.0);
}

void tst_WorkerRaw::probes()
{
    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(1, {1, 1, 1}));
    const Report probe = bench.Probe(Text("in.dng"));
    QCOMPARE(probe.reason, QString());
    QCOMPARE(probe.inputFormat, Text("RAW"));
    QCOMPARE(probe.nearestFormat, Text("TIFF"));
    QVERIFY(probe.captured.isValid());
}

QTEST_GUILESS_MAIN(tst_WorkerRaw)
#include "tst_workerraw.moc"
