// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/geometry/Geometry.h"
#include "job/values/JobValues.h"
#include "server/worker/geometry/Orientation.h"

#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(ZTBatchOutputSettings::ImageSize)
Q_DECLARE_METATYPE(ZTBatchOutputSettings::Crop)

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

ZTBatchOutputSettings::ImageSize Size(SizeRestriction restriction, SizeSide side, SizeUnit unit, double length,
                                      int resolution = 300)
{
    ZTBatchOutputSettings::ImageSize size;
    size.restriction = int(restriction);
    size.side = int(side);
    size.unit = int(unit);
    size.size = length;
    size.resolution = resolution;
    return size;
}

ZTBatchOutputSettings::Crop Crop(CropType type, const QSize& size, int alignment = Qt::AlignCenter)
{
    ZTBatchOutputSettings::Crop crop;
    crop.type = int(type);
    crop.size = size;
    crop.alignment = alignment;
    return crop;
}

} // namespace

/// Sizes and frames: the arithmetic by itself, and what it does to real pictures.
class tst_WorkerGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void turnsRatios_data();
    void turnsRatios();
    void countsSizes_data();
    void countsSizes();
    void plansCrops_data();
    void plansCrops();
    void findsStoredPlaces_data();
    void findsStoredPlaces();
    void cropsExactPixels_data();
    void cropsExactPixels();
    void fillsTheFrame();
    void loadsSmallerUnseen_data();
    void loadsSmallerUnseen();
    void keepsPlainValuesOfSixteenBits_data();
    void keepsPlainValuesOfSixteenBits();
    void trimsBorders_data();
    void trimsBorders();
    void trimsNoThinLines();
    void findsWhatDrawsTheEye();
    void writesTheResolution_data();
    void writesTheResolution();
};

void tst_WorkerGeometry::initTestCase()
{
    StartPictures();
}

void tst_WorkerGeometry::countsSizes_data()
{
    using R = SizeRestriction;
    using S = SizeSide;
    using U = SizeUnit;
    QTest::addColumn<QSize>("size");
    QTest::addColumn<ZTBatchOutputSettings::ImageSize>("settings");
    QTest::addColumn<QSize>("expected");
    const QSize wide(3000, 2000);
    const QSize tall(2000, 3000);
    const auto row = [](const char* name, const QSize& size, const ZTBatchOutputSettings::ImageSize& settings,
                        const QSize& expected) { QTest::newRow(name) << size << settings << expected; };
    row("none", wide, Size(R::None, S::Width, U::Pixels, 100), wide);
    row("width", wide, Size(R::Fit, S::Width, U::Pixels, 1500), {1500, 1000});
    row("height", wide, Size(R::Fit, S::Height, U::Pixels, 1500), {2250, 1500});
    row("long side of a wide picture", wide, Size(R::Fit, S::LongSide, U::Pixels, 600), {600, 400});
    row("long side of a tall picture", tall, Size(R::Fit, S::LongSide, U::Pixels, 600), {400, 600});
    row("short side of a wide picture", wide, Size(R::Fit, S::ShortSide, U::Pixels, 600), {900, 600});
    row("short side of a tall picture", tall, Size(R::Fit, S::ShortSide, U::Pixels, 600), {600, 900});
    row("enlarged", wide, Size(R::Fit, S::Width, U::Pixels, 6000), {6000, 4000});
    row("reduce only, smaller", wide, Size(R::ReduceOnly, S::Width, U::Pixels, 300), {300, 200});
    row("reduce only, larger", wide, Size(R::ReduceOnly, S::Width, U::Pixels, 6000), wide);
    row("reduce only, the same", wide, Size(R::ReduceOnly, S::Width, U::Pixels, 3000), wide);
    row("enlarge only, smaller", wide, Size(R::EnlargeOnly, S::Width, U::Pixels, 300), wide);
    row("enlarge only, larger", wide, Size(R::EnlargeOnly, S::Width, U::Pixels, 6000), {6000, 4000});
    row("percent", wide, Size(R::Fit, S::Height, U::Percent, 25), {750, 500});
    row("inches", wide, Size(R::Fit, S::Width, U::Inches, 5), {1500, 1000});
    row("inches at 72", wide, Size(R::Fit, S::Width, U::Inches, 10, 72), {720, 480});
    row("centimetres", wide, Size(R::Fit, S::Width, U::Centimetres, 12.7), {1500, 1000});
    row("millimetres", wide, Size(R::Fit, S::Width, U::Millimetres, 127), {1500, 1000});
    row("rounded", {1000, 333}, Size(R::Fit, S::Width, U::Pixels, 100), {100, 33});
    row("rounded up", {1000, 335}, Size(R::Fit, S::Width, U::Pixels, 100), {100, 34});
    row("a side never vanishes", {3000, 2}, Size(R::Fit, S::Width, U::Pixels, 10), {10, 1});
    row("no sense: zero", wide, Size(R::Fit, S::Width, U::Pixels, 0), wide);
    row("no sense: negative", wide, Size(R::Fit, S::Width, U::Pixels, -5), wide);
    row("no sense: not a number", wide, Size(R::Fit, S::Width, U::Pixels, std::numeric_limits<double>::quiet_NaN()),
        wide);
    row("no sense: infinite", wide, Size(R::Fit, S::Width, U::Pixels, std::numeric_limits<double>::infinity()), wide);
    row("no sense: resolution", wide, Size(R::Fit, S::Width, U::Inches, 5, 0), wide);
    row("a length beyond all pictures", {10, 10}, Size(R::Fit, S::Width, U::Pixels, 1e300), {10'000'000, 10'000'000});
}

void tst_WorkerGeometry::countsSizes()
{
    QFETCH(const QSize, size);
    QFETCH(const ZTBatchOutputSettings::ImageSize, settings);
    QFETCH(const QSize, expected);
    QCOMPARE(SizeAfter(size, settings), expected);
}

void tst_WorkerGeometry::turnsRatios_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("ratio");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("wanted");
    const auto row = [](const char* name, CropType type, const QSize& ratio, const QSize& size, const QSize& wanted) {
        QTest::newRow(name) << int(type) << ratio << size << wanted;
    };
    row("lying in a lying picture", CropType::TurningRatio, {3, 2}, {40, 30}, {3, 2});
    row("lying in an upright picture", CropType::TurningRatio, {3, 2}, {30, 40}, {2, 3});
    row("upright in a lying picture", CropType::TurningRatio, {2, 3}, {40, 30}, {3, 2});
    row("upright in an upright picture", CropType::TurningRatio, {2, 3}, {30, 40}, {2, 3});
    row("lying in a square picture", CropType::TurningRatio, {3, 2}, {30, 30}, {3, 2});
    row("upright in a square picture", CropType::TurningRatio, {2, 3}, {30, 30}, {2, 3});
    row("square", CropType::TurningRatio, {1, 1}, {30, 40}, {1, 1});
    row("almost square", CropType::TurningRatio, {1000, 999}, {999, 1000}, {999, 1000});
    row("interesting", CropType::TurningInteresting, {3, 2}, {30, 40}, {2, 3});
    row("fixed ratio", CropType::Ratio, {3, 2}, {30, 40}, {3, 2});
    row("fixed interesting", CropType::Interesting, {3, 2}, {30, 40}, {3, 2});
    row("fill", CropType::Fill, {3, 2}, {30, 40}, {3, 2});
}

void tst_WorkerGeometry::turnsRatios()
{
    QFETCH(const int, type);
    QFETCH(const QSize, ratio);
    QFETCH(const QSize, size);
    QFETCH(const QSize, wanted);
    QCOMPARE(RatioFor(size, Crop(CropType(type), ratio)), wanted);
}

void tst_WorkerGeometry::plansCrops_data()
{
    QTest::addColumn<ZTBatchOutputSettings::Crop>("crop");
    QTest::addColumn<ZTBatchOutputSettings::ImageSize>("imageSize");
    QTest::addColumn<QRect>("part");
    QTest::addColumn<QSize>("scaled");
    QTest::addColumn<QRect>("cut");
    const auto none = Size(SizeRestriction::None, SizeSide::Width, SizeUnit::Pixels, 1);
    const auto half = Size(SizeRestriction::Fit, SizeSide::Width, SizeUnit::Percent, 50);
    const auto unscaled = [&none](const char* name, const ZTBatchOutputSettings::Crop& crop, const QRect& part) {
        QTest::newRow(name) << crop << none << part << part.size() << QRect(QPoint(0, 0), part.size());
    };
    // Of a picture of 400 x 300.
    unscaled("none", Crop(CropType::None, {10, 10}), {0, 0, 400, 300});
    unscaled("square", Crop(CropType::Ratio, {7, 7}), {50, 0, 300, 300});
    unscaled("square at the left", Crop(CropType::Ratio, {7, 7}, Qt::AlignLeft | Qt::AlignVCenter), {0, 0, 300, 300});
    unscaled("square at the right", Crop(CropType::Ratio, {7, 7}, Qt::AlignRight | Qt::AlignTop), {100, 0, 300, 300});
    unscaled("wide", Crop(CropType::Ratio, {4, 1}), {0, 100, 400, 100});
    unscaled("wide at the top", Crop(CropType::Ratio, {4, 1}, Qt::AlignTop | Qt::AlignHCenter), {0, 0, 400, 100});
    unscaled("wide at the bottom", Crop(CropType::Ratio, {4, 1}, Qt::AlignBottom), {0, 200, 400, 100});
    unscaled("a ratio that is the picture's", Crop(CropType::Ratio, {4, 3}), {0, 0, 400, 300});
    unscaled("lying", Crop(CropType::TurningRatio, {2, 1}), {0, 50, 400, 200});
    unscaled("upright, turned", Crop(CropType::TurningRatio, {1, 2}), {0, 50, 400, 200});
    unscaled("upright, turned, at the top", Crop(CropType::TurningRatio, {1, 2}, Qt::AlignTop), {0, 0, 400, 200});
    unscaled("square that may turn", Crop(CropType::TurningRatio, {7, 7}), {50, 0, 300, 300});
    unscaled("upright, not turned", Crop(CropType::Ratio, {1, 2}), {125, 0, 150, 300});
    unscaled("exact", Crop(CropType::Exact, {100, 80}), {150, 110, 100, 80});
    unscaled("exact in a corner", Crop(CropType::Exact, {100, 80}, Qt::AlignRight | Qt::AlignBottom),
             {300, 220, 100, 80});
    unscaled("exact, wider than the picture", Crop(CropType::Exact, {1000, 80}), {0, 110, 400, 80});
    unscaled("exact, larger than the picture", Crop(CropType::Exact, {1000, 800}), {0, 0, 400, 300});
    QTest::newRow("half of a square") << Crop(CropType::Ratio, {1, 1}) << half << QRect(50, 0, 300, 300)
                                      << QSize(150, 150) << QRect(0, 0, 150, 150);
    QTest::newRow("fill a square") << Crop(CropType::Fill, {100, 100}) << none << QRect(0, 0, 400, 300)
                                   << QSize(133, 100) << QRect(16, 0, 100, 100);
    QTest::newRow("fill at the right") << Crop(CropType::Fill, {100, 100}, Qt::AlignRight) << none
                                       << QRect(0, 0, 400, 300) << QSize(133, 100) << QRect(33, 0, 100, 100);
    QTest::newRow("fill something larger") << Crop(CropType::Fill, {800, 400}) << none << QRect(0, 0, 400, 300)
                                           << QSize(800, 600) << QRect(0, 100, 800, 400);
    QTest::newRow("fill, then half") << Crop(CropType::Fill, {800, 400}) << half << QRect(0, 0, 400, 300)
                                     << QSize(400, 300) << QRect(0, 50, 400, 200);
}

void tst_WorkerGeometry::plansCrops()
{
    QFETCH(const ZTBatchOutputSettings::Crop, crop);
    QFETCH(const ZTBatchOutputSettings::ImageSize, imageSize);
    QFETCH(const QRect, part);
    QFETCH(const QSize, scaled);
    QFETCH(const QRect, cut);
    const Geometry geometry = PlanGeometry(QSize(400, 300), crop, imageSize);
    QCOMPARE(geometry.part, part);
    QCOMPARE(geometry.scaledSize, scaled);
    QCOMPARE(geometry.cut, cut);
}

void tst_WorkerGeometry::findsStoredPlaces_data()
{
    QTest::addColumn<int>("orientation");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        QTest::addRow("%d", orientation) << orientation;
    }
}

void tst_WorkerGeometry::findsStoredPlaces()
{
    QFETCH(const int, orientation);

    // A mark in the upright picture, found again in the stored one, must be where the turning brings it from.
    const QSize stored(50, 30);
    const QSize upright = TurnedSize(stored, orientation);
    const QRect mark(7, 4, 9, 5);
    const QRect place = StoredRect(mark, upright, orientation);
    QCOMPARE(UprightRect(place, stored, orientation), mark);
    const Picture canvas =
        Picture::black(stored.width(), stored.height())
            .insert(Picture::black(place.width(), place.height()).linear(1, 255), place.x(), place.y())
            .copy_memory();
    const Picture turned = TurnedUpright(canvas, orientation);
    QCOMPARE(QSize(turned.width(), turned.height()), upright);
    QCOMPARE(turned.crop(mark.x(), mark.y(), mark.width(), mark.height()).min(), 255.0);
    QCOMPARE(turned.avg() * upright.width() * upright.height(), 255.0 * mark.width() * mark.height());
}

void tst_WorkerGeometry::cropsExactPixels_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QPoint>("start");
    QTest::newRow("middle") << int(Qt::AlignCenter) << QPoint(30, 20);
    QTest::newRow("top left") << int(Qt::AlignTop | Qt::AlignLeft) << QPoint(0, 0);
    QTest::newRow("bottom right") << int(Qt::AlignBottom | Qt::AlignRight) << QPoint(60, 40);
    QTest::newRow("top") << int(Qt::AlignTop | Qt::AlignHCenter) << QPoint(30, 0);
}

void tst_WorkerGeometry::cropsExactPixels()
{
    QFETCH(const int, alignment);
    QFETCH(const QPoint, start);
    WorkerBench bench;
    const Picture chart = Chart(100, 80);
    WritePicture(chart, bench.Path(Text("in.png")));
    const auto edit = [alignment](ZTBatchOutputSettings& output) {
        output.SetCropSettings(Crop(CropType::Exact, {40, 40}, alignment));
    };
    QCOMPARE(bench.Make(Text("in.png"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    QCOMPARE(LargestDifference(ReadPicture(bench.Path(Text("out.png"))), chart.crop(start.x(), start.y(), 40, 40)),
             0.0);
}

void tst_WorkerGeometry::fillsTheFrame()
{
    WorkerBench bench;
    const Picture chart = Chart(300, 200, 32);
    WritePicture(chart, bench.Path(Text("in.png")));
    const auto edit = [](ZTBatchOutputSettings& output) { output.SetCropSettings(Crop(CropType::Fill, {100, 100})); };
    QCOMPARE(bench.Make(Text("in.png"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QVERIFY(MeanDifference(result, chart.resize(0.5).crop(25, 0, 100, 100)) < 0.5);
}

void tst_WorkerGeometry::loadsSmallerUnseen_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<int>("type");
    for (const QString& extension : {Text(".jpg"), Text(".webp")}) {
        for (const CropType type : {CropType::None, CropType::Ratio, CropType::Exact, CropType::Fill}) {
            QTest::addRow("%s, crop %d", qPrintable(extension), int(type)) << extension << int(type);
        }
    }
}

void tst_WorkerGeometry::loadsSmallerUnseen()
{
    QFETCH(const QString, extension);
    QFETCH(const int, type);

    // The same pixels as a file that is loaded smaller, and as one that is not.
    WorkerBench bench;
    WritePicture(Chart(1601, 1203, 100), bench.Path(Text("in") + extension));
    WritePicture(ReadPicture(bench.Path(Text("in") + extension)), bench.Path(Text("in.png")));
    const auto edit = [type](ZTBatchOutputSettings& output) {
        output.SetCropSettings(Crop(CropType(type), {1000, 1000}, Qt::AlignRight | Qt::AlignVCenter));
        output.SetImageSizeSettings(Size(SizeRestriction::Fit, SizeSide::Height, SizeUnit::Pixels, 120));
    };
    QCOMPARE(bench.Make(Text("in") + extension, Text("small.png"), Text("PNG"), {}, edit).reason, QString());
    QCOMPARE(bench.Make(Text("in.png"), Text("whole.png"), Text("PNG"), {}, edit).reason, QString());
    const double difference =
        MeanDifference(ReadPicture(bench.Path(Text("small.png"))), ReadPicture(bench.Path(Text("whole.png"))));
    // Colours of the smaller one are finer, for the formats store them at half size: some steps at the edges. Pictures
    // that are a pixel apart differ by more than 10.
    QVERIFY2(difference < 3.0, qPrintable(QString::number(difference)));
}

void tst_WorkerGeometry::keepsPlainValuesOfSixteenBits_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("hasAlpha");
    for (const int value : {1, 4711, 60003, 65535}) {
        QTest::addRow("%d", value) << value << false;
        QTest::addRow("%d, alpha", value) << value << true;
    }
}

// A resize of a picture of one colour gives that colour.
void tst_WorkerGeometry::keepsPlainValuesOfSixteenBits()
{
    QFETCH(const int, value);
    QFETCH(const bool, hasAlpha);

    WorkerBench bench;
    Picture plain = Picture::black(300, 200, Picture::option()->set("bands", 3)).linear(1, value);
    if (hasAlpha) {
        plain = plain.bandjoin(65535);
    }
    plain = plain.cast(VIPS_FORMAT_USHORT).copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    WritePicture(plain, bench.Path(Text("in.tif")));
    const auto edit = [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.size = 123;
        output.SetImageSizeSettings(size);
    };
    QCOMPARE(bench.Make(Text("in.tif"), Text("out.tif"), Text("TIFF"), {}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.tif")));
    QCOMPARE(QSize(result.width(), result.height()), QSize(123, 82));
    QCOMPARE(result.format(), VIPS_FORMAT_USHORT);
    for (int band = 0; band < 3; ++band) {
        QCOMPARE(result.extract_band(band).min(), double(value));
        QCOMPARE(result.extract_band(band).max(), double(value));
    }
}

void tst_WorkerGeometry::trimsBorders_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("kind");
    const char* kinds[] = {"white", "nearly white", "transparent", "16 bits"};
    for (int kind = 0; kind < 4; ++kind) {
        for (const int orientation : {1, 6, 8, 3}) {
            QTest::addRow("%s, orientation %d", kinds[kind], orientation) << orientation << kind;
        }
    }
}

void tst_WorkerGeometry::trimsBorders()
{
    QFETCH(const int, orientation);
    QFETCH(const int, kind);

    WorkerBench bench;
    const Picture dark = (Chart(70, 50) * 0.5).cast(VIPS_FORMAT_UCHAR);
    std::vector<double> border{255, 255, 255};
    Picture inner = dark;
    if (kind == 1) {
        border = {252, 250, 251};
    } else if (kind == 2) {
        border = {9, 9, 9, 0};
        inner = dark.bandjoin(255).cast(VIPS_FORMAT_UCHAR);
    }
    Picture framed = inner.embed(11, 23, 120, 90,
                                 Picture::option()->set("extend", VIPS_EXTEND_BACKGROUND)->set("background", border));
    if (kind == 3) {
        framed = framed.linear(257, 0).cast(VIPS_FORMAT_USHORT);
    }
    framed = framed.copy(
        Picture::option()->set("interpretation", kind == 3 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB));
    framed.set(VIPS_META_ORIENTATION, orientation);
    WritePicture(framed, bench.Path(Text("in.tif")));
    const auto edit = [](ZTBatchOutputSettings& output) { output.SetCropSettings(Crop(CropType::Trim, {1, 1})); };
    QCOMPARE(bench.Make(Text("in.tif"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    const Picture upright = TurnedUpright(inner.copy_memory(), orientation);
    // The chart's own corners are dark: they differ from the border.
    QCOMPARE(QSize(result.width(), result.height()), QSize(upright.width(), upright.height()));
    const Picture expected = kind == 3 ? upright.linear(257, 0).cast(VIPS_FORMAT_USHORT) : upright;
    QCOMPARE(LargestDifference(result, expected), 0.0);
}

void tst_WorkerGeometry::trimsNoThinLines()
{
    WorkerBench bench;
    Picture drawing = Picture::black(400, 300, Picture::option()->set("bands", 3)).linear(1, 255).copy_memory();
    drawing.draw_line({0, 0, 0}, 20, 50, 380, 50);
    drawing.draw_line({0, 0, 0}, 200, 20, 200, 280);
    drawing.draw_rect({0, 0, 200}, 390, 290, 1, 1);
    const Picture plain =
        drawing.cast(VIPS_FORMAT_UCHAR).copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    WritePicture(plain, bench.Path(Text("in.png")));
    const auto edit = [](ZTBatchOutputSettings& output) { output.SetCropSettings(Crop(CropType::Trim, {1, 1})); };
    QCOMPARE(bench.Make(Text("in.png"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QCOMPARE(LargestDifference(result, plain.crop(20, 20, 371, 271)), 0.0);
}

void tst_WorkerGeometry::findsWhatDrawsTheEye()
{
    WorkerBench bench;
    // A bright pattern on the right third of a plain grey picture.
    const Picture grey = Picture::black(600, 200, Picture::option()->set("bands", 3)).linear(1, 128);
    const Picture scene = grey.insert(Chart(80, 80), 480, 60)
                              .cast(VIPS_FORMAT_UCHAR)
                              .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    WritePicture(scene, bench.Path(Text("in.png")));
    const auto edit = [](ZTBatchOutputSettings& output) {
        output.SetCropSettings(Crop(CropType::Interesting, {1, 1}));
    };
    QCOMPARE(bench.Make(Text("in.png"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QCOMPARE(QSize(result.width(), result.height()), QSize(200, 200));
    // All of the pattern is in the frame: as much of it as the whole picture has.
    const auto amount = [](const Picture& picture) {
        return (picture - 128).abs().avg() * picture.width() * picture.height();
    };
    QVERIFY(std::abs(amount(result) - amount(scene)) < 1);
}

void tst_WorkerGeometry::writesTheResolution_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("name");
    QTest::newRow("JPEG") << Text("JPEG") << Text("out.jpg");
    QTest::newRow("PNG") << Text("PNG") << Text("out.png");
    QTest::newRow("TIFF") << Text("TIFF") << Text("out.tif");
}

void tst_WorkerGeometry::writesTheResolution()
{
    QFETCH(const QString, format);
    QFETCH(const QString, name);
    WorkerBench bench;
    WritePicture(Chart(40, 30), bench.Path(Text("in.png")));
    const auto edit = [](ZTBatchOutputSettings& output) {
        output.SetImageSizeSettings(Size(SizeRestriction::None, SizeSide::Width, SizeUnit::Pixels, 1, 240));
    };
    QCOMPARE(bench.Make(Text("in.png"), name, format, {}, edit).reason, QString());
    QVERIFY(std::abs(ReadPicture(bench.Path(name)).xres() * 25.4 - 240) < 0.1);
}

QTEST_GUILESS_MAIN(tst_WorkerGeometry)
#include "tst_workergeometry.moc"
