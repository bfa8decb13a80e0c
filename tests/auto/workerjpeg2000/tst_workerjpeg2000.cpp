// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Maker.h"
#include "Jpeg2000Patterns.h"
#include "Sanitizers.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"
#include "server/worker/decode/PictureSource.h"
#include "server/worker/metadata/BoxFile.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/VipsText.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <random>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;
using namespace Jpeg2000Maker;
using namespace Jpeg2000Patterns;

namespace {

constexpr int width = 61;
constexpr int height = 47;
constexpr int grey = 17;
constexpr int srgb = 16;
constexpr int sycc = 18;
constexpr int cmyk = 12;

QByteArray Data(const QString& name)
{
    QFile file(Text(DATA_FOLDER "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Coding CodingOf(const QVector<Plane>& planes, const QRect& image = QRect(0, 0, width, height))
{
    Coding coding;
    coding.image = image;
    coding.planes = planes;
    return coding;
}

Coding Tiled(Coding coding, const QSize& tile, const QPoint& origin = {})
{
    coding.tile = tile;
    coding.origin = origin;
    return coding;
}

// How far the picture is off what is expected; infinite for one of another shape.
double Difference(const Picture& picture, const QSize& size, int bands, const Pixel& expected)
{
    if (QSize(picture.width(), picture.height()) != size || picture.bands() != bands) {
        return std::numeric_limits<double>::infinity();
    }
    const QVector<int> values = ValuesOf(picture);
    double largest = 0;
    for (int i = 0; i < values.size(); ++i) {
        const int pixel = i / bands;
        const double wanted = expected(i % bands, pixel % size.width(), pixel / size.width());
        largest = std::max(largest, std::abs(wanted - values[i]));
    }
    return largest;
}

} // namespace

Q_DECLARE_METATYPE(Pixel)

/// Reading JPEG 2000 files: what their components mean, how they are coded, what is refused.
class tst_WorkerJpeg2000 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void readsEveryValue_data();
    void readsEveryValue();
    void readsSubsampledColours_data();
    void readsSubsampledColours();
    void agreesWithAnotherProgram_data();
    void agreesWithAnotherProgram();
    void keepsInks();
    void readsHighThroughputCoding_data();
    void readsHighThroughputCoding();
    void keepsTheProfile();
    void dependsOnNothingButTheFile_data();
    void dependsOnNothingButTheFile();
    void refuses_data();
    void refuses();
    void warns_data();
    void warns();
    void refusesWhatTakesTooMuchMemory();
    void decodesRowsOfTilesOnDemand();
    void survivesDamage_data();
    void survivesDamage();
    void writesSubsampledColoursOfEverySize_data();
    void writesSubsampledColoursOfEverySize();
    void refusesToWriteWithoutMemory();

private:
    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerJpeg2000::initTestCase()
{
    StartPictures();
}

void tst_WorkerJpeg2000::init()
{
    if (!bench) {
        bench = std::make_unique<WorkerBench>();
    }
}

// A failure may have ended the worker.
void tst_WorkerJpeg2000::cleanup()
{
    if (QTest::currentTestFailed()) {
        bench.reset();
    }
}

void tst_WorkerJpeg2000::readsEveryValue_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("bands");
    QTest::addColumn<Pixel>("expected");
    const auto add = [](const char* name, const QByteArray& file, int bands, const Pixel& expected) {
        QTest::newRow(name) << file << bands << expected;
    };
    for (const int bits : {1, 2, 4, 7, 8}) {
        const auto name = QStringLiteral("grey, %1 bits").arg(bits).toLatin1();
        add(name, File(Codestream(CodingOf(PatternPlanes(1, bits))), Colour(grey)), 1, PatternPixel(bits, 255));
    }
    for (const int bits : {9, 10, 12, 15, 16, 20}) {
        const auto name = QStringLiteral("RGB, %1 bits").arg(bits).toLatin1();
        add(name, File(Codestream(CodingOf(PatternPlanes(3, bits))), Colour(srgb)), 3, PatternPixel(bits, 65535));
    }
    const QByteArray rgb = Codestream(CodingOf(PatternPlanes(3, 8)));
    const Pixel plain = PatternPixel(8, 255);
    add("RGB", File(rgb, Colour(srgb)), 3, plain);
    add("without boxes", rgb, 3, plain);
    add("without a word on colours", File(rgb, {}), 3, plain);
    add("signed, 8 bits", File(Codestream(CodingOf(PatternPlanes(3, 8, true))), Colour(srgb)), 3, plain);
    add("signed, 16 bits", File(Codestream(CodingOf(PatternPlanes(1, 16, true))), Colour(grey)), 1,
        PatternPixel(16, 65535));
    add("signed, 12 bits, RGB", Codestream(CodingOf(PatternPlanes(3, 12, true))), 3, PatternPixel(12, 65535));
    add("signed and unsigned", Codestream(CodingOf({PatternPlane(0, 8), PatternPlane(1, 8, true), PatternPlane(2, 8)})),
        3, plain);
    add("depths mixed", Codestream(CodingOf({PatternPlane(0, 5), PatternPlane(1, 12), PatternPlane(2, 8)})), 3,
        [](int channel, int x, int y) {
            const int bits[] = {5, 12, 8};
            return PatternPixel(bits[channel], 65535)(channel, x, y);
        });
    Coding transformed = CodingOf(PatternPlanes(3, 8));
    transformed.hasColourTransform = true;
    add("colour transform", File(Codestream(transformed), Colour(srgb)), 3, plain);

    const Coding tiled = Tiled(transformed, QSize(16, 9));
    add("tiles", Codestream(tiled), 3, plain);
    add("one row of tiles", Codestream(Tiled(transformed, QSize(7, height))), 3, plain);
    add("a tile larger than the picture", Codestream(Tiled(transformed, QSize(500, 300))), 3, plain);
    const QRect moved(13, 9, width, height);
    add("picture away from the origin", Codestream(CodingOf(PatternPlanes(3, 8), moved)), 3,
        PatternPixel(8, 255, moved.topLeft()));
    add("tiles away from the origin",
        Codestream(Tiled(CodingOf(PatternPlanes(3, 8), moved), QSize(16, 13), QPoint(5, 3))), 3,
        PatternPixel(8, 255, moved.topLeft()));
    Coding inParts = Tiled(transformed, QSize(16, 16));
    inParts.hasPartForEachResolution = true;
    add("several parts of each tile", Codestream(inParts), 3, plain);
    add("tiles from the last to the first",
        Reordered(Codestream(tiled),
                  [](const QVector<int>& tiles) {
                      QVector<int> order;
                      for (int i = tiles.size() - 1; i >= 0; --i) {
                          order.append(i);
                      }
                      return order;
                  }),
        3, plain);
    add("parts of tiles mixed",
        Reordered(Codestream(inParts),
                  [](const QVector<int>& tiles) {
                      QVector<int> order;
                      for (int start = 0; start < 3; ++start) {
                          for (int i = start; i < tiles.size(); i += 3) {
                              order.append(i);
                          }
                      }
                      return order;
                  }),
        3, plain);

    const QByteArray entries = Bytes({255, 0, 0, 0, 250, 0, 1, 2, 245, 10, 20, 30});
    add("palette", File(Codestream(CodingOf(PatternPlanes(1, 2))), Colour(srgb) + Palette(3, entries)), 3,
        [entries](int channel, int x, int y) { return double(quint8(entries[Pattern(0, x, y, 3) * 3 + channel])); });
    add("palette shorter than its numbers",
        File(Codestream(CodingOf(PatternPlanes(1, 3))), Colour(srgb) + Palette(3, entries)), 3,
        [entries](int channel, int x, int y) {
            return double(quint8(entries[std::min(3, Pattern(0, x, y, 7)) * 3 + channel]));
        });
    const QByteArray four = Codestream(CodingOf(PatternPlanes(4, 8)));
    add("blue first, by definition",
        File(four, Colour(srgb) + Definitions({{0, 0, 3}, {1, 0, 2}, {2, 0, 1}, {3, 1, 0}})), 4,
        [plain](int channel, int x, int y) { return plain(channel < 3 ? 2 - channel : 3, x, y); });
    add("opacity first, by definition",
        File(four, Colour(srgb) + Definitions({{0, 1, 0}, {1, 0, 1}, {2, 0, 2}, {3, 0, 3}})), 4,
        [plain](int channel, int x, int y) { return plain((channel + 1) % 4, x, y); });
    add("grey and opacity", File(Codestream(CodingOf(PatternPlanes(2, 8))), Colour(grey)), 2, plain);
    add("colours multiplied with opacity",
        File(Codestream(CodingOf({{[](int x, int) { return x; }}, {[](int, int) { return 51; }}})),
             Colour(grey) + Definitions({{0, 0, 1}, {1, 2, 0}})),
        2, [](int channel, int x, int) { return channel == 0 ? std::min(255.0, x * 5.0) : 51.0; });
    const QByteArray fewer =
        Codestream(CodingOf({PatternPlane(0, 8), {[](int x, int) { return 16 * x; }, 8, false, 4, 1}}));
    add("opacity four times narrower", fewer, 2, [plain](int channel, int x, int y) {
        return channel == 0 ? plain(0, x, y) : std::clamp(4.0 * x - 6, 0.0, 240.0);
    });
    add("samples where the file says, not in the middle", WithSegment(fewer, Bytes({0xFF63, 10, 0, 0, 0, 0}, 2)), 2,
        [plain](int channel, int x, int y) { return channel == 0 ? plain(0, x, y) : 4.0 * x; });
    add("several kinds of colour, the first unknown", File(rgb, Colour(14) + Colour(srgb)), 3, plain);
    add("sYCC, as large as luma", File(Codestream(CodingOf(YccPlanes(1, 1))), Colour(sycc)), 3,
        [](int channel, int x, int y) {
            const double blue = std::lround(Blue(x, y)) - 128;
            const double red = std::lround(Red(x, y)) - 128;
            const double rgbOf[] = {Luma(x, y) + 1.402 * red, Luma(x, y) - 0.344136 * blue - 0.714136 * red,
                                    Luma(x, y) + 1.772 * blue};
            return std::round(std::clamp(rgbOf[channel], 0.0, 255.0));
        });
}

void tst_WorkerJpeg2000::readsEveryValue()
{
    QFETCH(const QByteArray, file);
    QFETCH(const int, bands);
    QFETCH(const Pixel, expected);

    bench->WriteBytes(Text("in.jp2"), file);
    const Report report = bench->Make(Text("in.jp2"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    const double difference = Difference(result, QSize(width, height), bands, expected);
    QVERIFY2(difference == 0.0, qPrintable(QString::number(difference)));
}

void tst_WorkerJpeg2000::readsSubsampledColours_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QPoint>("corner");
    const QRect moved(7, 5, width, height);
    const QRect whole(0, 0, width, height);
    const struct
    {
        const char* name;
        int dx;
        int dy;
    } ways[] = {{"4:2:2", 2, 1}, {"4:2:0", 2, 2}, {"4:1:1", 4, 1}, {"4:4:0", 1, 2}, {"a third", 3, 3}};
    for (const auto& way : ways) {
        const QByteArray name = way.name;
        const auto add = [&name](const char* place, const Coding& coding) {
            QTest::newRow(name + place) << File(Codestream(coding), Colour(sycc)) << coding.image.topLeft();
        };
        const QVector<Plane> planes = YccPlanes(way.dx, way.dy);
        add("", CodingOf(planes, whole));
        add(", tiles", Tiled(CodingOf(planes, whole), QSize(17, 11)));
        add(", away from the origin", CodingOf(planes, moved));
        add(", tiles, away from the origin", Tiled(CodingOf(planes, moved), QSize(17, 11), QPoint(5, 3)));
    }
    const Coding coding = CodingOf(YccPlanes(2, 2));
    QTest::newRow("signed chroma") << File(Codestream(CodingOf(YccPlanes(2, 2, true))), Colour(sycc)) << QPoint();
    QTest::newRow("without boxes") << Codestream(coding) << QPoint();
    QTest::newRow("said to be e-sYCC") << File(Codestream(coding), Colour(24)) << QPoint();
    QTest::newRow("said to be RGB") << File(Codestream(coding), Colour(srgb)) << QPoint();
}

void tst_WorkerJpeg2000::readsSubsampledColours()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QPoint, corner);

    bench->WriteBytes(Text("in.jp2"), file);
    QCOMPARE(bench->Make(Text("in.jp2"), Text("out.png"), Text("PNG")).reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    // The samples are rounded, and nothing is known of colours behind the samples at the edges.
    const double difference = Difference(result, QSize(width, height), 3, YccPixel(corner));
    QVERIFY2(difference <= 6.0, qPrintable(QString::number(difference)));
}

void tst_WorkerJpeg2000::agreesWithAnotherProgram_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<double>("tolerance");
    // The other program repeats samples of chroma instead of interpolating.
    constexpr double repeated = 1.0;
    QTest::newRow("RGB") << File(Codestream(CodingOf(PatternPlanes(3, 8))), Colour(srgb)) << 0.0;
    QTest::newRow("RGB and opacity") << File(Codestream(CodingOf(PatternPlanes(4, 8))), Colour(srgb)) << 0.0;
    QTest::newRow("12 bits") << File(Codestream(CodingOf(PatternPlanes(3, 12))), Colour(srgb)) << 0.0;
    QTest::newRow("signed, 16 bits") << File(Codestream(CodingOf(PatternPlanes(1, 16, true))), Colour(grey)) << 0.0;
    QTest::newRow("tiles") << Codestream(Tiled(CodingOf(PatternPlanes(3, 8)), QSize(16, 9))) << 0.0;
    QTest::newRow("4:2:2") << File(Codestream(CodingOf(YccPlanes(2, 1))), Colour(sycc)) << repeated;
    QTest::newRow("4:2:0") << File(Codestream(CodingOf(YccPlanes(2, 2))), Colour(sycc)) << repeated;
    QTest::newRow("4:2:0, tiles") << File(Codestream(Tiled(CodingOf(YccPlanes(2, 2)), QSize(16, 16))), Colour(sycc))
                                  << repeated;
}

void tst_WorkerJpeg2000::agreesWithAnotherProgram()
{
    QFETCH(const QByteArray, file);
    QFETCH(const double, tolerance);

    const QString program = QStandardPaths::findExecutable(Text("convert"));
    if (program.isEmpty()) {
        QSKIP("ImageMagick is not installed");
    }
    bench->WriteBytes(Text("in.jp2"), file);
    QCOMPARE(bench->Make(Text("in.jp2"), Text("out.png"), Text("PNG")).reason, QString());
    QCOMPARE(QProcess::execute(program, {bench->Path(Text("in.jp2")), bench->Path(Text("other.png"))}), 0);
    const double difference =
        MeanDifference(ReadPicture(bench->Path(Text("out.png"))), ReadPicture(bench->Path(Text("other.png"))));
    QVERIFY2(difference <= tolerance, qPrintable(QString::number(difference)));
}

void tst_WorkerJpeg2000::keepsInks()
{
    bench->WriteBytes(Text("in.jp2"), File(Codestream(CodingOf(PatternPlanes(4, 8))), Colour(cmyk)));
    QCOMPARE(bench->Make(Text("in.jp2"), Text("out.tif"), Text("TIFF")).reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.tif")));
    QCOMPARE(result.interpretation(), VIPS_INTERPRETATION_CMYK);
    QCOMPARE(Difference(result, QSize(width, height), 4, PatternPixel(8, 255)), 0.0);

    bench->WriteBytes(Text("in.jp2"), File(Codestream(CodingOf(PatternPlanes(5, 8))), Colour(cmyk)));
    const Report report = bench->Make(Text("in.jp2"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList{Text("the transparency of a CMYK picture is left out")});
    QCOMPARE(Difference(ReadPicture(bench->Path(Text("out.tif"))), QSize(width, height), 4, PatternPixel(8, 255)), 0.0);
}

void tst_WorkerJpeg2000::readsHighThroughputCoding_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("factor");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("without loss") << Text("ht-lossless.j2c") << 1 << 0.0;
    QTest::newRow("tiles") << Text("ht-tiles.j2c") << 1 << 0.0;
    QTest::newRow("16 bits") << Text("ht-deep.j2c") << 257 << 0.0;
    QTest::newRow("with loss") << Text("ht-lossy.j2c") << 1 << 2.0;
}

void tst_WorkerJpeg2000::readsHighThroughputCoding()
{
    QFETCH(const QString, name);
    QFETCH(const int, factor);
    QFETCH(const double, tolerance);

    bench->WriteBytes(Text("in.jph"), Data(name));
    QCOMPARE(bench->Make(Text("in.jph"), Text("out.png"), Text("PNG")).reason, QString());
    const double difference =
        LargestDifference(ReadPicture(bench->Path(Text("out.png"))), Chart(width, height) * double(factor));
    QVERIFY2(difference <= tolerance, qPrintable(QString::number(difference)));
}

void tst_WorkerJpeg2000::keepsTheProfile()
{
    VipsBlob* blob = nullptr;
    QCOMPARE(vips_profile_load("p3", &blob, nullptr), 0);
    std::size_t size = 0;
    const auto* const bytes = static_cast<const char*>(vips_blob_get(blob, &size));
    const QByteArray profile(bytes, int(size));
    vips_area_unref(VIPS_AREA(blob));

    bench->WriteBytes(Text("in.jp2"), File(Codestream(CodingOf(PatternPlanes(3, 8))), Colour(profile)));
    Report report = bench->Make(Text("in.jp2"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const Picture result = ReadPicture(bench->Path(Text("out.tif")));
    QCOMPARE(ProfileOf(result), profile);
    QCOMPARE(Difference(result, QSize(width, height), 3, PatternPixel(8, 255)), 0.0);

    // Luma and chroma under the profile of what they make, as encoders write them.
    bench->WriteBytes(Text("in.jp2"), File(Codestream(CodingOf(YccPlanes(2, 2))), Colour(profile)));
    report = bench->Make(Text("in.jp2"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(report.reason, QString());
    const Picture made = ReadPicture(bench->Path(Text("out.tif")));
    QCOMPARE(ProfileOf(made), profile);
    QVERIFY(Difference(made, QSize(width, height), 3, YccPixel()) <= 4.0);
}

void tst_WorkerJpeg2000::dependsOnNothingButTheFile_data()
{
    QTest::addColumn<QByteArray>("file");
    const Coding coding = CodingOf(YccPlanes(2, 2), QRect(7, 5, width, height));
    QTest::newRow("tiles, subsampled") << Codestream(Tiled(coding, QSize(16, 10), QPoint(3, 2)));
    QTest::newRow("high-throughput coding") << Data(Text("ht-tiles.j2c"));
    QByteArray oneRow = Codestream(Tiled(CodingOf(PatternPlanes(3, 8)), QSize(16, 9)));
    QTest::newRow("tiles") << oneRow;
}

/// The decoder's memory holds something else each time.
void tst_WorkerJpeg2000::dependsOnNothingButTheFile()
{
    QFETCH(const QByteArray, file);

    QTemporaryDir folder;
    QFile in(folder.filePath(Text("in.jp2")));
    QVERIFY(in.open(QIODevice::WriteOnly) && in.write(file) == file.size());
    in.close();
    QVector<QVector<int>> results;
    for (const char* fill : {"1", "85", "170", "254"}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(Text("MALLOC_PERTURB_"), Text(fill));
        WorkerProcess worker(environment);
        QVERIFY(worker.IsReady());
        worker.Send(JobOf(Text("PNG")));
        PictureTask task;
        task.number = 1;
        task.inputFile = in.fileName();
        task.outputFile = folder.filePath(Text(fill) + Text(".png"));
        task.format = Text("PNG");
        QCOMPARE(worker.Do(task).reason, QString());
        results.append(ValuesOf(ReadPicture(task.outputFile)));
    }
    QCOMPARE(results.count(results.first()), results.size());
}

void tst_WorkerJpeg2000::refuses_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("words");
    const auto add = [](const char* name, const QByteArray& file, const char* words) {
        QTest::newRow(name) << file << Text(words);
    };
    const QByteArray rgb = Codestream(CodingOf(PatternPlanes(3, 8)));
    const QByteArray tiles = Codestream(Tiled(CodingOf(PatternPlanes(3, 8)), QSize(16, 16)));
    const QByteArray boxed = File(rgb, Colour(srgb));
    add("cut in half", boxed.left(boxed.size() / 2), "the file ends after 4");
    add("cut in half, without boxes", rgb.left(rgb.size() / 2), "the file ends after 4");
    add("cut in half, tiles", tiles.left(tiles.size() / 2), "the file ends after 4");
    add("cut in the header", boxed.left(boxed.size() - rgb.size() + 60), "the file ends after 0 %");
    add("without picture data", boxed.left(boxed.size() - rgb.size() - 8), "no picture data");
    QByteArray lessTiles = Reordered(tiles, [](const QVector<int>& all) {
        QVector<int> order;
        for (int i = 0; i < all.size() * 3 / 4; ++i) {
            order.append(i);
        }
        return order;
    });
    add("a quarter of the tiles missing", lessTiles, "25 % of the picture are missing");
    add("nothing but its name", QByteArray("\xFF\x4F\xFF\x51", 4) + QByteArray(40'000, 'x'), "damaged");
    add("an extension", WithSegment(rgb, Bytes({0xFF76, 4, 0}, 2)), "extension of JPEG 2000 (marker ff76)");
    add("32 channels more", Codestream(CodingOf(PatternPlanes(40, 2))), "40 channels");
    add("five channels of nobody knows what", Codestream(CodingOf(PatternPlanes(5, 8))), "5 channels");
    add("colours that are not known", File(rgb, Colour(14)), "colour space 14");
    add("inks that are missing", File(rgb, Colour(cmyk)), "does not fit");
    QByteArray deep = rgb;
    deep[42] = 37;
    add("38 bits", deep, "38 bits");
    const QByteArray highThroughput = Data(Text("ht-lossless.j2c"));
    const int style = highThroughput.indexOf(QByteArray("\xFF\x52", 2)) + 12;
    QByteArray mixed = highThroughput;
    mixed[style] = char(0xC0);
    add("two ways of coding", mixed, "two kinds of coding");
    QByteArray relabelled = rgb;
    relabelled[relabelled.indexOf(QByteArray("\xFF\x52", 2)) + 12] = 0x40;
    add("high-throughput coding in the header alone", relabelled, "not supported");
    // Decoders that go on over a damaged block leave it grey.
    QByteArray damaged = highThroughput;
    constexpr int inBlock = 322;
    damaged[inBlock] = 0;
    damaged[inBlock + 1] = 0;
    add("a damaged block of high-throughput coding", damaged, "damaged");
    add("palette without its component",
        File(Codestream(CodingOf(PatternPlanes(1, 2))),
             Colour(srgb) + Palette(3, Bytes({1, 2, 3})).replace(QByteArray("\0\0\1\0", 4), QByteArray("\0\7\1\0", 4))),
        "does not fit");
    add("palette cut off",
        File(Codestream(CodingOf(PatternPlanes(1, 2))), Box("pclr", Bytes({0, 4, 3, 7, 7, 7, 1, 2}))), "damaged");
}

void tst_WorkerJpeg2000::refuses()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QString, words);

    bench->WriteBytes(Text("in.jp2"), file);
    const Report report = bench->Make(Text("in.jp2"), Text("refused.png"), Text("PNG"));
    QCOMPARE(report.failure, PolicyKind::Input);
    QVERIFY2(report.reason.contains(words), qPrintable(report.reason));
    QVERIFY(!bench->Names().contains(Text("refused.png")));
    QCOMPARE(bench->Worker().ErrorOutput(), QByteArray());
}

void tst_WorkerJpeg2000::warns_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("words");
    const QByteArray rgb = Codestream(CodingOf(PatternPlanes(3, 8)));
    const QByteArray boxed = File(rgb, Colour(srgb));
    QTest::newRow("the mark of the end is missing")
        << File(rgb.left(rgb.size() - 2), Colour(srgb)) << Text("lacks its last bytes");
    QTest::newRow("two pictures") << boxed + Box("jp2c", rgb) << Text("it has 2 pages; only the first is used");
    const QByteArray four = Codestream(CodingOf(PatternPlanes(4, 8)));
    QTest::newRow("a channel that is no opacity")
        << File(four, Colour(srgb) + Definitions({{0, 0, 1}, {1, 0, 2}, {2, 0, 3}, {3, 65535, 65535}}))
        << Text("it has 4 channels; only the first 3 are used");
}

void tst_WorkerJpeg2000::warns()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QString, words);

    bench->WriteBytes(Text("in.jp2"), file);
    const Report report = bench->Make(Text("in.jp2"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    const QString warnings = TextsOf(report.warnings).join(QLatin1Char('|'));
    QVERIFY2(warnings.contains(words), qPrintable(warnings));
    QCOMPARE(report.warnings.size(), 1);
    QCOMPARE(Difference(ReadPicture(bench->Path(Text("out.png"))), QSize(width, height), 3, PatternPixel(8, 255)), 0.0);
    // For this crop the file is read twice.
    const auto trim = [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::Crop crop;
        crop.type = int(BatchJob::CropType::Trim);
        output.SetCropSettings(crop);
    };
    const Report trimmed = bench->Make(Text("in.jp2"), Text("out.png"), Text("PNG"), {}, trim);
    QCOMPARE(trimmed.reason, QString());
    QCOMPARE(trimmed.warnings.size(), 1);
}

void tst_WorkerJpeg2000::refusesWhatTakesTooMuchMemory()
{
    QByteArray huge = Codestream(CodingOf(PatternPlanes(3, 8)));
    const QByteArray side = Bytes({20'000}, 4);
    for (const int place : {8, 12, 24, 28}) { // picture and tile
        huge.replace(place, 4, side);
    }
    bench->WriteBytes(Text("in.j2k"), huge);
    const Report report = bench->Make(Text("in.j2k"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.errorCode, int(ZTBatchMessage::ImageTooLarge));
    QVERIFY2(report.reason.contains(Text("MiB of memory, because the picture is not divided into tiles")),
             qPrintable(report.reason));
}

void tst_WorkerJpeg2000::decodesRowsOfTilesOnDemand()
{
    const Coding coding = Tiled(CodingOf(PatternPlanes(3, 8)), QSize(16, 16));
    QByteArray damaged = Codestream(coding);
    damaged.replace(damaged.size() - 400, 300, QByteArray(300, '\xFF'));
    bench->WriteBytes(Text("in.j2k"), damaged);
    PictureSource source(bench->Path(Text("in.j2k")), ServerLimits());
    const Picture picture = source.Load();
    const Picture top = picture.crop(0, 0, width, 32).copy_memory();
    QCOMPARE(Difference(top, QSize(width, 32), 3, PatternPixel(8, 255)), 0.0);
}

void tst_WorkerJpeg2000::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("file");
    const Coding coding = Tiled(CodingOf(YccPlanes(2, 2)), QSize(20, 20));
    QTest::newRow("without boxes") << Codestream(coding);
    QTest::newRow("sYCC") << File(Codestream(CodingOf(YccPlanes(2, 1))), Colour(sycc));
    QTest::newRow("palette") << File(Codestream(CodingOf(PatternPlanes(1, 2))),
                                     Colour(srgb) + Palette(3, QByteArray(12, 'x')) + Definitions({{0, 0, 1}}));
    QTest::newRow("high-throughput coding") << Data(Text("ht-tiles.j2c"));
}

/// Single bytes and runs of them changed by chance, half of them in the headers.
void tst_WorkerJpeg2000::survivesDamage()
{
    QFETCH(const QByteArray, file);

    constexpr int rounds = 250;
    std::mt19937 random(1);
    int read = 0;
    for (int round = 0; round < rounds; ++round) {
        QByteArray changed = file;
        const int changes = 1 + int(random() % 4);
        for (int i = 0; i < changes; ++i) {
            const int range = random() % 2 == 0 ? std::min(changed.size(), 200) : changed.size();
            changed[int(random() % unsigned(range))] = char(random());
        }
        bench->WriteBytes(Text("in.jp2"), changed);
        try {
            ServerLimits limits;
            limits.pixels = 1'000'000;
            PictureSource source(bench->Path(Text("in.jp2")), limits);
            source.Load().avg();
            ++read;
        } catch (const PictureFailure& problem) {
            QVERIFY(!problem.reason.isEmpty());
        } catch (const vips::VError& problem) {
            QVERIFY(!TextOf(problem).isEmpty());
        }
    }
    QVERIFY(read < rounds);
}

void tst_WorkerJpeg2000::writesSubsampledColoursOfEverySize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("even") << QSize(64, 48);
    QTest::newRow("odd width") << QSize(61, 48);
    QTest::newRow("odd height") << QSize(64, 47);
    QTest::newRow("both odd") << QSize(61, 47);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("one line") << QSize(9, 1);
    QTest::newRow("larger than a tile") << QSize(513, 515);
}

/// The last column and line of colours among them. Another program reads the result.
void tst_WorkerJpeg2000::writesSubsampledColoursOfEverySize()
{
    QFETCH(const QSize, size);
    const auto pixel = [](int channel, int, int y) {
        return channel == 0 ? 200.0 : channel == 1 ? 40.0 + y % 8 : 60.0;
    };
    QVector<int> values;
    for (int i = 0; i < size.width() * size.height() * 3; ++i) {
        values.append(int(pixel(i % 3, 0, i / 3 / size.width())));
    }
    WritePicture(FromValues({3, 8, false}, size.width(), size.height(), values), bench->Path(Text("in.png")));
    const Report report = bench->Make(Text("in.png"), Text("out.jp2"), Text("JPEG 2000"),
                                      {{Text("chromaSubsampling"), Text("4:2:0")}, {Text("lossless"), true}});
    QCOMPARE(report.reason, QString());
    QCOMPARE(bench->Make(Text("out.jp2"), Text("back.png"), Text("PNG")).reason, QString());
    const double own = Difference(ReadPicture(bench->Path(Text("back.png"))), size, 3, pixel);
    QVERIFY2(own <= 16.0, qPrintable(QString::number(own)));

    const QString program = QStandardPaths::findExecutable(Text("convert"));
    if (program.isEmpty()) {
        QSKIP("ImageMagick is not installed");
    }
    QCOMPARE(QProcess::execute(program, {bench->Path(Text("out.jp2")), bench->Path(Text("other.png"))}), 0);
    const double other = Difference(ReadPicture(bench->Path(Text("other.png"))), size, 3, pixel);
    QVERIFY2(other <= 16.0, qPrintable(QString::number(other)));
}

/// 512 lines take 300 MB.
void tst_WorkerJpeg2000::refusesToWriteWithoutMemory()
{
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }
#ifdef Q_OS_WIN
    QSKIP("Wine does not enforce the limit.");
#endif
    const Picture wide = Picture::black(200'000, 512, Picture::option()->set("bands", 3))
                             .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    const auto madeWithin = [this, &wide](qint64 mebibytes) {
        Job job = JobOf(Text("JPEG 2000"));
        job.limits.workerMemory = mebibytes << 20;
        bench = std::make_unique<WorkerBench>();
        WritePicture(wide, bench->Path(Text("in.png")));
        return bench->Make(Text("in.png"), Text("out.jp2"), Text("JPEG 2000"), job);
    };
    const Report refused = madeWithin(256);
    QCOMPARE(refused.failure, PolicyKind::Input);
    QCOMPARE(refused.errorCode, qint32(ZTBatchMessage::ImageTooLarge));
    QCOMPARE(refused.reason, Text("writing 200000 x 512 pixels as JPEG 2000 needs more memory than a worker may use"));
    QCOMPARE(bench->Names(), QStringList(Text("in.png")));
    QCOMPARE(madeWithin(512).reason, QString());
}

QTEST_GUILESS_MAIN(tst_WorkerJpeg2000)
#include "tst_workerjpeg2000.moc"
