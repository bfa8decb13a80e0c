// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"
#include "Text.h"
#include "WorkerBench.h"

#include <QDateTime>
#include <QTest>

using namespace BatchProtocol;

namespace {

QByteArray ExifChunk(int orientation, const char* artist)
{
    Exiv2::ExifData exif;
    exif["Exif.Image.Orientation"] = std::uint16_t(orientation);
    exif["Exif.Image.Artist"] = artist;
    exif["Exif.Photo.DateTimeOriginal"] = "2019:07:06 05:04:03";
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    return PlantedMetadata::PngChunk("eXIf", {reinterpret_cast<const char*>(blob.data()), int(blob.size())});
}

QByteArray InFront(QByteArray png, const QByteArray& chunks)
{
    return png.insert(png.indexOf("IDAT") - 4, chunks);
}

QByteArray Behind(QByteArray png, const QByteArray& chunks)
{
    return png.insert(png.indexOf("IEND") - 4, chunks);
}

} // namespace

/// PNG files may have their EXIF block anywhere.
class tst_PngExif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void turnsPicturesUpright_data();
    void turnsPicturesUpright();
    void firstBlockCounts_data();
    void firstBlockCounts();
    void manyBlocksCostNothing();

private:
    std::unique_ptr<WorkerBench> bench;
    QByteArray png;
};

void tst_PngExif::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
    // Some versions of the library would write EXIF of their own.
    WritePicture(Chart(60, 40), bench->Path(Text("plain.png")), "[strip]");
    png = bench->Bytes(Text("plain.png"));
}

void tst_PngExif::turnsPicturesUpright_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("isBehind");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        QTest::addRow("%d, in front of the pixels", orientation) << orientation << false;
        QTest::addRow("%d, behind the pixels", orientation) << orientation << true;
    }
}

void tst_PngExif::turnsPicturesUpright()
{
    QFETCH(const int, orientation);
    QFETCH(const bool, isBehind);

    const QByteArray chunk = ExifChunk(orientation, "A. Photographer");
    bench->WriteBytes(Text("in.png"), isBehind ? Behind(png, chunk) : InFront(png, chunk));
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG")).reason, QString());
    // The imaging library's own way of turning is the measure.
    BatchWorker::Picture expected = ReadPicture(bench->Path(Text("plain.png"))).copy();
    expected.set(VIPS_META_ORIENTATION, orientation);
    const BatchWorker::Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(LargestDifference(result, expected.autorot()), 0.0);
    QVERIFY(bench->Bytes(Text("out.png")).contains("A. Photographer"));
    const Report probe = bench->Probe(Text("in.png"));
    QCOMPARE(probe.captured, QDateTime(QDate(2019, 7, 6), QTime(5, 4, 3)));
}

void tst_PngExif::firstBlockCounts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray first = ExifChunk(6, "First");
    const QByteArray second = ExifChunk(3, "Second");
    QTest::newRow("both in front") << InFront(png, first + second);
    QTest::newRow("both behind") << Behind(png, first + second);
    QTest::newRow("around the pixels") << InFront(Behind(png, second), first);
}

void tst_PngExif::firstBlockCounts()
{
    QFETCH(const QByteArray, bytes);

    bench->WriteBytes(Text("in.png"), bytes);
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG")).reason, QString());
    const BatchWorker::Picture plain = ReadPicture(bench->Path(Text("plain.png")));
    const BatchWorker::Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(LargestDifference(result, plain.rot90()), 0.0);
    const QByteArray file = bench->Bytes(Text("out.png"));
    QCOMPARE(file.count("First"), 1);
    QCOMPARE(file.count("Second"), 0);
    QCOMPARE(file.count("eXIf"), 1);
}

void tst_PngExif::manyBlocksCostNothing()
{
    bench->WriteBytes(Text("many.png"), Behind(png, ExifChunk(6, "First").repeated(50'000)));
    QCOMPARE(bench->Make(Text("many.png"), Text("many-out.png"), Text("PNG")).reason, QString());
    QCOMPARE(bench->Bytes(Text("many-out.png")).count("First"), 1);
}

QTEST_GUILESS_MAIN(tst_PngExif)
#include "tst_pngexif.moc"
