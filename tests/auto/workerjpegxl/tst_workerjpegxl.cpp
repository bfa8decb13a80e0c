// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JxlFile.h"
#include "Sanitizers.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"
#include "server/worker/encode/JxlPlan.h"
#include "server/worker/geometry/Orientation.h"

#include <QFile>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

// Every place differs; channel by channel another slope. Floating point of few bits holds each value.
double Slope(int x, int y, int channel)
{
    switch (channel) {
    case 0:
        return x / 64.0;
    case 1:
        return y / 32.0;
    case 2:
        return (x + y) / 128.0;
    default:
        return 0.5;
    }
}

JxlFile FileOf(const JxlValues& values)
{
    JxlFile file;
    JxlLayer layer;
    layer.values = values;
    file.layers = {layer};
    return file;
}

// The same values by another way: lines from top to bottom in the library's memory.
Picture PictureOf(const QSize& size, int bands, int bits, const JxlValues& values)
{
    const PictureForm form{bands < 3 ? 1 : 3, bits, bands % 2 == 0};
    QVector<int> numbers;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            for (int channel = 0; channel < bands; ++channel) {
                numbers.append(qRound(values(x, y, channel) * form.Largest()));
            }
        }
    }
    return FromValues(form, size.width(), size.height(), numbers);
}

// Detail as in a photo that an encoder cannot pack small, with an edge here and there.
Picture Photo(int width, int height)
{
    const Picture tile =
        Picture::gaussnoise(500, 500, Picture::option()->set("mean", 128.0)->set("seed", 1)->set("sigma", 30.0))
            .gaussblur(1.5)
            .cast(VIPS_FORMAT_UCHAR);
    return tile.bandjoin(tile.invert())
        .bandjoin(tile.rot90())
        .replicate((width + 499) / 500, (height + 499) / 500)
        .crop(0, 0, width, height)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .copy_memory();
}

double PeakMemory(qint64 process) // MiB
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).simplified().split(' ').first().toDouble() / 1024;
        }
    }
    return 0;
}

Job JobWithin(const QByteArray& options, int mebibytes)
{
    Job job = JobOf(Text("JPEG XL"), options);
    job.limits.workerMemory = qint64(mebibytes) << 20;
    return job;
}

QByteArray InksProfile()
{
    VipsBlob* blob = nullptr;
    vips_profile_load("cmyk", &blob, nullptr);
    std::size_t size = 0;
    const void* const bytes = vips_blob_get(blob, &size);
    const QByteArray profile(static_cast<const char*>(bytes), int(size));
    vips_area_unref(VIPS_AREA(blob));
    return profile;
}

} // namespace

/// JPEG XL: what its files may hold besides plain pixels, and results of any size in little memory.
class tst_WorkerJpegXl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void readsEveryDepth_data();
    void readsEveryDepth();
    void readsInks();
    void convertsInks();
    void laysSpotColoursOverTheOthers();
    void leavesOutOtherChannels();
    void turnsPicturesUpright_data();
    void turnsPicturesUpright();
    void putsLayersTogether_data();
    void putsLayersTogether();
    void takesTheFirstOfAnAnimation();
    void refusesTruncatedFiles_data();
    void refusesTruncatedFiles();
    void refusesToReadWithoutMemory();

    void writesAtEveryEffort_data();
    void writesAtEveryEffort();
    void takesLittleMemory_data();
    void takesLittleMemory();
    void dividesWhatDoesNotFit_data();
    void dividesWhatDoesNotFit();
    void hidesTheSeams_data();
    void hidesTheSeams();
    void refusesWhatFitsInNoWay();
    void keepsMetadataInContainersOfItsOwn();
    void plansFrames_data();
    void plansFrames();

private:
    Picture Result(const QByteArray& bytes, const QString& format = QStringLiteral("TIFF"));

    std::unique_ptr<WorkerBench> bench;
    Report report;
};

void tst_WorkerJpegXl::initTestCase()
{
    StartPictures();
}

// What a new worker makes of the file.
Picture tst_WorkerJpegXl::Result(const QByteArray& bytes, const QString& format)
{
    bench = std::make_unique<WorkerBench>();
    bench->WriteBytes(Text("in.jxl"), bytes);
    report = bench->Make(Text("in.jxl"), Text("out.bin"), format);
    return report.reason.isEmpty() ? ReadPicture(bench->Path(Text("out.bin"))) : Picture();
}

void tst_WorkerJpegXl::readsEveryDepth_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("exponentBits");
    QTest::addColumn<bool>("isGrey");
    QTest::addColumn<bool>("isLossless");
    QTest::addColumn<int>("bitsOfResult");
    QTest::newRow("8 bits") << 8 << 0 << false << true << 8;
    QTest::newRow("8 bits, grey") << 8 << 0 << true << true << 8;
    QTest::newRow("8 bits, lossy") << 8 << 0 << false << false << 8;
    QTest::newRow("10 bits") << 10 << 0 << false << true << 16;
    QTest::newRow("12 bits") << 12 << 0 << false << true << 16;
    QTest::newRow("16 bits") << 16 << 0 << false << true << 16;
    QTest::newRow("16 bits, grey") << 16 << 0 << true << true << 16;
    QTest::newRow("16 bits, lossy") << 16 << 0 << false << false << 16;
    QTest::newRow("16-bit floating point") << 16 << 5 << false << true << 16;
    QTest::newRow("32-bit floating point") << 32 << 8 << false << true << 16;
    QTest::newRow("32-bit floating point, lossy") << 32 << 8 << false << false << 16;
}

void tst_WorkerJpegXl::readsEveryDepth()
{
    QFETCH(const int, bits);
    QFETCH(const int, exponentBits);
    QFETCH(const bool, isGrey);
    QFETCH(const bool, isLossless);
    QFETCH(const int, bitsOfResult);

    JxlFile file = FileOf(Slope);
    file.bits = bits;
    file.exponentBits = exponentBits;
    file.isGrey = isGrey;
    file.isLossless = isLossless;
    const Picture result = Result(file.Bytes());
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings, Warnings());
    const Picture expected = PictureOf(file.size, isGrey ? 1 : 3, bitsOfResult, Slope);
    QCOMPARE(result.format(), expected.format());
    const double largest = bitsOfResult == 16 ? 65'535 : 255;
    if (isLossless) {
        const double step = exponentBits > 0 ? 0 : largest / ((1 << bits) - 1);
        QVERIFY2(LargestDifference(result, expected) <= step + 1,
                 qPrintable(QString::number(LargestDifference(result, expected))));
    } else {
        QVERIFY2(MeanDifference(result, expected) <= largest * 0.01,
                 qPrintable(QString::number(MeanDifference(result, expected))));
    }
}

void tst_WorkerJpegXl::readsInks()
{
    JxlFile file = FileOf(Slope);
    file.profile = InksProfile();
    file.extras = {JXL_CHANNEL_BLACK};
    const Picture result = Result(file.Bytes());
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings, Warnings());
    QCOMPARE(result.interpretation(), VIPS_INTERPRETATION_CMYK);
    QCOMPARE(result.bands(), 4);
    for (int channel = 0; channel < 4; ++channel) {
        const double value = result.getpoint(40, 5)[std::size_t(channel)];
        QVERIFY2(qAbs(value - (1 - Slope(40, 5, channel)) * 255) <= 1, qPrintable(QString::number(value)));
    }
}

// A TIFF file of the same inks, converted by the same profile, has the same colours.
void tst_WorkerJpegXl::convertsInks()
{
    JxlFile file = FileOf(Slope);
    file.profile = InksProfile();
    file.extras = {JXL_CHANNEL_BLACK};
    const Picture result = Result(file.Bytes(), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QCOMPARE(report.warnings.first().kind, WarningKind::ColoursConverted);
    Result(file.Bytes());
    Picture inks = ReadPicture(bench->Path(Text("out.bin")));
    const Picture expected = inks.icc_transform("srgb", Picture::option()
                                                            ->set("embedded", true)
                                                            ->set("intent", VIPS_INTENT_RELATIVE)
                                                            ->set("black_point_compensation", true));
    QVERIFY(LargestDifference(result, expected) <= 2);
    // White paper is where no ink is.
    QVERIFY(result.avg() > 20);
}

void tst_WorkerJpegXl::laysSpotColoursOverTheOthers()
{
    JxlFile file =
        FileOf([](int x, int y, int channel) { return channel == 3 ? (x < 24 ? 0.0 : 0.5) : Slope(x, y, channel); });
    file.extras = {JXL_CHANNEL_SPOT_COLOR};
    const Picture result = Result(file.Bytes());
    QCOMPARE(report.reason, QString());
    QCOMPARE(result.bands(), 3);
    const JxlValues mixed = [](int x, int y, int channel) {
        const double below = Slope(x, y, channel);
        return x < 24 ? below : (below + (channel == 0 ? 1.0 : 0.0)) / 2;
    };
    const Picture expected = PictureOf(file.size, 3, 8, mixed);
    QVERIFY2(LargestDifference(result, expected) <= 2,
             qPrintable(QString::number(LargestDifference(result, expected))));
}

void tst_WorkerJpegXl::leavesOutOtherChannels()
{
    JxlFile file = FileOf(Slope);
    file.extras = {JXL_CHANNEL_DEPTH, JXL_CHANNEL_THERMAL};
    const Picture result = Result(file.Bytes());
    QCOMPARE(report.reason, QString());
    QVERIFY(LargestDifference(result, PictureOf(file.size, 3, 8, Slope)) <= 1);
    QCOMPARE(report.warnings, Warnings({{WarningKind::DepthLost, Text("it has a depth map, which the result lacks")}}));
    file.extras = {JXL_CHANNEL_THERMAL};
    Result(file.Bytes());
    QCOMPARE(report.warnings, Warnings());
}

void tst_WorkerJpegXl::turnsPicturesUpright_data()
{
    QTest::addColumn<int>("orientation");
    for (int orientation = 1; orientation <= 8; ++orientation) {
        QTest::newRow(qPrintable(QString::number(orientation))) << orientation;
    }
}

void tst_WorkerJpegXl::turnsPicturesUpright()
{
    QFETCH(const int, orientation);

    JxlFile file = FileOf(Slope);
    file.orientation = orientation;
    const Picture result = Result(file.Bytes(), Text("PNG"));
    QCOMPARE(report.reason, QString());
    Picture stored = PictureOf(file.size, 3, 8, Slope);
    stored.set(VIPS_META_ORIENTATION, orientation);
    const Picture upright = stored.autorot();
    QCOMPARE(result.width(), upright.width());
    QVERIFY(LargestDifference(result, upright) <= 1);
}

void tst_WorkerJpegXl::putsLayersTogether_data()
{
    QTest::addColumn<int>("blend");
    QTest::addColumn<int>("source");
    QTest::newRow("replaced") << int(JXL_BLEND_REPLACE) << 1;
    QTest::newRow("replaced, the rest empty") << int(JXL_BLEND_REPLACE) << 2;
    QTest::newRow("laid over") << int(JXL_BLEND_BLEND) << 1;
    QTest::newRow("added") << int(JXL_BLEND_ADD) << 1;
}

void tst_WorkerJpegXl::putsLayersTogether()
{
    QFETCH(const int, blend);
    QFETCH(const int, source);

    const QRect place(10, 6, 20, 12);
    const auto above = [](int, int, int channel) { return channel == 3 ? 0.5 : 0.25; };
    const auto below = [](int x, int y, int channel) { return channel == 3 ? 1.0 : Slope(x, y, channel) / 2; };
    JxlFile file;
    file.extras = {JXL_CHANNEL_ALPHA};
    file.layers.resize(2);
    file.layers[0].values = below;
    file.layers[0].keptAs = 1;
    file.layers[1].values = above;
    file.layers[1].place = place;
    file.layers[1].blend = JxlBlendMode(blend);
    file.layers[1].source = source;
    const Picture result = Result(file.Bytes(), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings, Warnings());
    const JxlValues expected = [&](int x, int y, int channel) {
        const double under = source == 1 ? below(x, y, channel) : 0.0;
        if (!place.contains(x, y)) {
            return under;
        }
        const double over = above(x, y, channel);
        switch (blend) {
        case JXL_BLEND_BLEND:
            return channel == 3 ? 1.0 : (over + under) / 2;
        case JXL_BLEND_ADD:
            return qMin(1.0, under + over);
        default:
            return over;
        }
    };
    const double difference = LargestDifference(result, PictureOf(file.size, 4, 8, expected));
    QVERIFY2(difference <= 2, qPrintable(QString::number(difference)));
}

void tst_WorkerJpegXl::takesTheFirstOfAnAnimation()
{
    JxlFile file;
    file.isAnimation = true;
    file.layers.resize(3);
    for (int frame = 0; frame < 3; ++frame) {
        file.layers[frame].duration = 2;
        file.layers[frame].values = [frame](int x, int y, int channel) {
            return frame == 0 ? Slope(x, y, channel) : 1.0;
        };
    }
    const Picture result = Result(file.Bytes(), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QVERIFY(LargestDifference(result, PictureOf(file.size, 3, 8, Slope)) <= 1);
    QCOMPARE(report.warnings.size(), 1);
    QCOMPARE(report.warnings.first().kind, WarningKind::OtherPages);
    QVERIFY(report.warnings.first().text.contains(Text("3 pages")));
}

void tst_WorkerJpegXl::refusesTruncatedFiles_data()
{
    QTest::addColumn<int>("percent");
    for (const int percent : {15, 20, 50, 90, 99}) {
        QTest::newRow(qPrintable(QString::number(percent))) << percent;
    }
}

void tst_WorkerJpegXl::refusesTruncatedFiles()
{
    QFETCH(const int, percent);

    const QByteArray bytes = FileOf(Slope).Bytes();
    QVERIFY(!bytes.isEmpty());
    Result(bytes.left(bytes.size() * percent / 100));
    QCOMPARE(report.failure, PolicyKind::Input);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::ReadFileError));
    QVERIFY2(report.reason.contains(Text("ends before")), qPrintable(report.reason));
    QVERIFY(!QFile::exists(bench->Path(Text("out.bin"))));
}

void tst_WorkerJpegXl::refusesToReadWithoutMemory()
{
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }
#ifdef Q_OS_WIN
    QSKIP("Wine does not enforce the limit.");
#endif
    JxlFile file = FileOf([](int, int, int) { return 0.5; });
    file.size = QSize(3000, 2000);
    bench = std::make_unique<WorkerBench>();
    bench->WriteBytes(Text("in.jxl"), file.Bytes());
    constexpr int mebibytes = 128;
    report = bench->Make(Text("in.jxl"), Text("out.png"), Text("PNG"), JobWithin({}, mebibytes));
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::ImageTooLarge));
    QVERIFY2(report.reason.contains(Text("3000 x 2000 pixels")), qPrintable(report.reason));
    QCOMPARE(bench->Names(), QStringList(Text("in.jxl")));
}

void tst_WorkerJpegXl::writesAtEveryEffort_data()
{
    QTest::addColumn<int>("effort");
    QTest::addColumn<bool>("isLossless");
    for (int effort = 0; effort <= 9; ++effort) {
        QTest::addRow("%d", effort) << effort << false;
        QTest::addRow("%d, lossless", effort) << effort << true;
    }
}

void tst_WorkerJpegXl::writesAtEveryEffort()
{
    QFETCH(const int, effort);
    QFETCH(const bool, isLossless);

    bench = std::make_unique<WorkerBench>();
    const Picture photo = Photo(301, 203);
    WritePicture(photo, bench->Path(Text("in.png")));
    report = bench->Make(Text("in.png"), Text("out.jxl"), Text("JPEG XL"),
                         {{Text("effort"), effort}, {Text("lossless"), isLossless}});
    QCOMPARE(report.reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.jxl")));
    const double difference = MeanDifference(result, photo);
    QVERIFY2(difference <= (isLossless ? 0.0 : 4.0), qPrintable(QString::number(difference)));
}

void tst_WorkerJpegXl::takesLittleMemory_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("hasAlpha");
    QTest::newRow("as it is") << QByteArray() << 8 << false;
    QTest::newRow("highest effort") << QByteArray("{\"effort\":9}") << 8 << false;
    QTest::newRow("lossless") << QByteArray("{\"lossless\":true}") << 8 << false;
    QTest::newRow("16 bits") << QByteArray() << 16 << false;
    QTest::newRow("16 bits, lossless") << QByteArray("{\"lossless\":true}") << 16 << false;
    QTest::newRow("with alpha") << QByteArray() << 8 << true;
}

// In proportion: 1.5 GiB for 24 megapixels, of which the worker itself takes 100 MiB.
void tst_WorkerJpegXl::takesLittleMemory()
{
    QFETCH(const QByteArray, options);
    QFETCH(const int, bits);
    QFETCH(const bool, hasAlpha);
#ifdef Q_OS_WIN
    QSKIP("Written for Linux.");
#endif
    if (isSanitized) {
        QSKIP("sanitizers take memory of their own");
    }

    bench = std::make_unique<WorkerBench>();
    constexpr int width = 2400; // above what gets the highest effort
    constexpr int height = 1800;
    Picture photo = Photo(width, height);
    if (bits == 16) {
        photo = photo.linear(257, 0)
                    .cast(VIPS_FORMAT_USHORT)
                    .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    }
    WritePicture(hasAlpha ? photo.bandjoin(photo.extract_band(0)) : photo, bench->Path(Text("in.tif")));
    report = bench->Make(Text("in.tif"), Text("out.jxl"), Text("JPEG XL"), JobOf(Text("JPEG XL"), options));
    QCOMPARE(report.reason, QString());
    const double peak = PeakMemory(bench->Worker().ProcessId());
    const double ofPixels = (1536 - 100) * (width * height / 24e6) * (hasAlpha ? 4.0 / 3 : 1);
    QVERIFY2(peak <= 100 + ofPixels, qPrintable(QString::number(peak)));
}

void tst_WorkerJpegXl::dividesWhatDoesNotFit_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("hasAlpha");
    QTest::newRow("8 bits") << 8 << false;
    QTest::newRow("8 bits with alpha") << 8 << true;
    QTest::newRow("16 bits") << 16 << false;
}

// Each value comes back, whether another decoder reads the strips or the worker does.
void tst_WorkerJpegXl::dividesWhatDoesNotFit()
{
    QFETCH(const int, bits);
    QFETCH(const bool, hasAlpha);
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }

    bench = std::make_unique<WorkerBench>();
    Picture photo = Photo(2000, 1900);
    if (bits == 16) {
        photo = photo.linear(257, 0)
                    .cast(VIPS_FORMAT_USHORT)
                    .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    }
    photo = hasAlpha ? photo.bandjoin(photo.extract_band(0)) : photo;
    WritePicture(photo, bench->Path(Text("in.tif")));
    const Job job = JobWithin("{\"lossless\":true}", 320);
    report = bench->Make(Text("in.tif"), Text("out.jxl"), Text("JPEG XL"), job);
    QCOMPARE(report.reason, QString());
    QCOMPARE(LargestDifference(ReadPicture(bench->Path(Text("out.jxl"))), photo), 0.0);
    report = bench->Make(Text("out.jxl"), Text("back.tif"), Text("TIFF"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings, Warnings());
    QCOMPARE(LargestDifference(ReadPicture(bench->Path(Text("back.tif"))), photo), 0.0);
}

void tst_WorkerJpegXl::hidesTheSeams_data()
{
    QTest::addColumn<bool>("isSmooth");
    QTest::newRow("detail") << false;
    QTest::newRow("sky") << true;
}

// Neither side of a seam is brighter than the other, and the lines there differ by less than one of 255, or not much
// more than at the blocks of the encoder.
void tst_WorkerJpegXl::hidesTheSeams()
{
    QFETCH(const bool, isSmooth);
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }
    constexpr int width = 2000;
    constexpr int height = 1900;
    constexpr int seam = 1024;
    constexpr int mebibytes = 300;
    bench = std::make_unique<WorkerBench>();
    const Picture detail = Photo(width, height);
    const Picture across = Picture::xyz(width, height);
    const Picture sky = (across.extract_band(0) * 0.02 + across.extract_band(1) * 0.03 + 100)
                            .bandjoin(across.extract_band(1) * 0.05 + 90)
                            .bandjoin(across.extract_band(1) * -0.02 + 230)
                            .rint()
                            .cast(VIPS_FORMAT_UCHAR)
                            .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    const Picture photo = isSmooth ? sky : detail;
    WritePicture(photo, bench->Path(Text("in.tif")));
    report = bench->Make(Text("in.tif"), Text("out.jxl"), Text("JPEG XL"), JobWithin({}, mebibytes));
    QCOMPARE(report.reason, QString());
    const Picture error = ReadPicture(bench->Path(Text("out.jxl"))).cast(VIPS_FORMAT_FLOAT) - photo;
    const Picture steps = error.crop(0, 1, width, height - 1) - error.crop(0, 0, width, height - 1);
    const Picture atSeam = steps.crop(0, seam - 1, width, 1);
    QVERIFY2(qAbs(atSeam.avg()) < 0.3, qPrintable(QString::number(atSeam.avg())));
    double atBlocks = 0;
    for (const int line : {256, 512, 768, 1280, 1536, 1792}) {
        atBlocks = std::max(atBlocks, steps.crop(0, line - 1, width, 1).abs().avg());
    }
    QVERIFY2(atSeam.abs().avg() <= std::max(1.0, atBlocks * 1.6),
             qPrintable(QStringLiteral("%1, at blocks %2").arg(atSeam.abs().avg()).arg(atBlocks)));
}

void tst_WorkerJpegXl::refusesWhatFitsInNoWay()
{
#ifdef Q_OS_WIN
    QSKIP("Wine does not enforce the limit.");
#endif
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }
    bench = std::make_unique<WorkerBench>();
    WritePicture(Photo(200'000, 60), bench->Path(Text("in.tif")));
    report = bench->Make(Text("in.tif"), Text("out.jxl"), Text("JPEG XL"), JobWithin({}, 200));
    QCOMPARE(report.failure, PolicyKind::Input);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::ImageTooLarge));
    QVERIFY2(report.reason.contains(Text("200000 x 60 pixels")), qPrintable(report.reason));
    QCOMPARE(bench->Names(), QStringList(Text("in.tif")));
}

// A decoder has to be told that it needs more than usual for 16 bits without loss.
void tst_WorkerJpegXl::keepsMetadataInContainersOfItsOwn()
{
    bench = std::make_unique<WorkerBench>();
    const Picture photo = Noise(PictureForm{3, 16, false}, 60, 40);
    WritePicture(photo, bench->Path(Text("in.tif")));
    report = bench->Make(Text("in.tif"), Text("out.jxl"), Text("JPEG XL"), {{Text("lossless"), true}});
    QCOMPARE(report.reason, QString());
    const QByteArray bytes = bench->Bytes(Text("out.jxl"));
    QCOMPARE(bytes.count("ftypjxl "), 1);
    QVERIFY(bytes.contains("Exif"));
    QCOMPARE(LargestDifference(ReadPicture(bench->Path(Text("out.jxl"))), photo), 0.0);
}

void tst_WorkerJpegXl::plansFrames_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bands");
    QTest::addColumn<int>("mebibytes");
    QTest::addColumn<int>("effort");
    QTest::addColumn<int>("plannedEffort");
    QTest::addColumn<int>("frameHeight"); // 0: none
    QTest::newRow("small") << QSize(1000, 800) << 3 << 2000 << 9 << 9 << 800;
    QTest::newRow("24 megapixels") << QSize(6000, 4000) << 3 << 2000 << 7 << 7 << 4000;
    QTest::newRow("24 megapixels at the highest effort") << QSize(6000, 4000) << 3 << 2000 << 9 << 7 << 4000;
    QTest::newRow("little effort") << QSize(6000, 4000) << 3 << 2000 << 0 << 1 << 4000;
    QTest::newRow("61 megapixels") << QSize(9504, 6336) << 3 << 2000 << 7 << 7 << 2304;
    // Detailed alpha takes twice the time from 5 to 7.
    QTest::newRow("alpha") << QSize(6000, 4000) << 4 << 2000 << 7 << 5 << 2048;
    QTest::newRow("grey with alpha") << QSize(6000, 4000) << 2 << 2000 << 9 << 5 << 2048;
    QTest::newRow("alpha with little effort") << QSize(6000, 4000) << 4 << 2000 << 3 << 3 << 2048;
    QTest::newRow("little alpha") << QSize(1600, 1200) << 4 << 2000 << 7 << 7 << 1200;
    QTest::newRow("little memory") << QSize(1000, 800) << 3 << 100 << 9 << 7 << 800;
    QTest::newRow("very little memory") << QSize(1000, 800) << 3 << 20 << 9 << 7 << 256;
    QTest::newRow("very wide") << QSize(1'000'000, 400) << 3 << 2000 << 7 << 7 << 24;
    QTest::newRow("very high") << QSize(400, 1'000'000) << 3 << 2000 << 7 << 7 << 62'720;
    QTest::newRow("no way") << QSize(1'000'000, 400) << 3 << 300 << 7 << 7 << 0;
}

void tst_WorkerJpegXl::plansFrames()
{
    QFETCH(const QSize, size);
    QFETCH(const int, bands);
    QFETCH(const int, mebibytes);
    QFETCH(const int, effort);
    QFETCH(const int, plannedEffort);
    QFETCH(const int, frameHeight);

    const JxlPicture picture{size.width(), size.height(), bands, 8, false};
    const std::optional<JxlPlan> plan = PlanJxl(picture, effort, qint64(mebibytes) << 20);
    QCOMPARE(plan ? plan->frameHeight : 0, frameHeight);
    if (plan) {
        QCOMPARE(plan->effort, plannedEffort);
    }
}

QTEST_GUILESS_MAIN(tst_WorkerJpegXl)

#include "tst_workerjpegxl.moc"
