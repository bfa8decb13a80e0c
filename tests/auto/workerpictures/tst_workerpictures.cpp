// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"
#include "job/values/JobValues.h"
#include "server/worker/geometry/Orientation.h"

#include <QJsonArray>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <libheif/heif.h>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

const FormatSchema& Format(const QString& name)
{
    return *FindFormat(name);
}

QString NameIn(const QString& format)
{
    return QStringLiteral("out.") + Format(format).extensions.first();
}

// Options that keep pixels as well as the format can.
// How far the decoder of the worker may be from that of this test, which is another one of AVIF on Windows.
double MostInReading(const QString& format)
{
#ifdef Q_OS_WIN
    return format.toUpper() == Text("AVIF") ? 1.0 : 0.0;
#else
    Q_UNUSED(format)
    return 0.0;
#endif
}

QJsonObject Finest(const QString& format)
{
    QJsonObject options;
    for (const ParameterSchema& option : Format(format).options) {
        if (option.name == QLatin1String("quality")) {
            options.insert(option.name, 100);
        } else if (option.name == QLatin1String("lossless")) {
            options.insert(option.name, true);
        } else if (option.name == QLatin1String("effort")) {
            options.insert(option.name, 4);
        } else if (option.name == QLatin1String("chromaSubsampling")) {
            options.insert(option.name, Text("4:4:4"));
        }
    }
    return options;
}

// How far a value may be off that went through a format at its finest.
double Tolerance(const QString& format)
{
    const QHash<QString, double> tolerances{{Text("JPEG"), 6},    {Text("HEIF"), 6},
                                            {Text("AVIF"), 4},    {Text("GIF"), 255}, // 256 colours only, see the mean
                                            {Text("JPEG XL"), 0}, {Text("JPEG 2000"), 0}};
    return tolerances.value(format, 0.0);
}

Picture Colours(const Picture& picture)
{
    return picture.bands() == 4 ? picture.extract_band(0, Picture::option()->set("n", 3)) : picture;
}

Picture Deep(const Picture& picture)
{
    return picture.linear(257, 0)
        .cast(VIPS_FORMAT_USHORT)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
}

// The library moves values of 10 and 12 bits to the upper end of 16, which leaves white short of the largest value.
Picture WithWholeRange(const Picture& picture)
{
    constexpr const char* bitsOfFile = "heif-bitdepth";
    const bool isMoved = picture.format() == VIPS_FORMAT_USHORT && picture.get_typeof(bitsOfFile) != 0;
    return isMoved ? picture | (picture >> picture.get_int(bitsOfFile)) : picture;
}

Picture Grey(const Picture& picture)
{
    return picture.extract_band(0).copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_B_W));
}

// Opaque on the left, half in the middle, transparent on the right; what cannot be seen is red.
Picture WithAlpha(const Picture& picture)
{
    const Picture across = Picture::xyz(picture.width(), picture.height()).extract_band(0);
    const Picture alpha = ((across < picture.width() / 3) & 255).bandor() |
                          (((across >= picture.width() / 3) & (across < picture.width() * 2 / 3)) & 128);
    return picture.bandjoin(alpha.cast(VIPS_FORMAT_UCHAR));
}

} // namespace

/// Pixels of results: formats, depths, orientations, alpha, options, comparison with another program.
class tst_WorkerPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void writesEveryFormat_data();
    void writesEveryFormat();
    void readsEveryFormat_data();
    void readsEveryFormat();
    void turnsPicturesUpright_data();
    void turnsPicturesUpright();
    void keepsDepth_data();
    void keepsDepth();
    void losesNothingWithoutLoss_data();
    void losesNothingWithoutLoss();
    void keepsGrey_data();
    void keepsGrey();
    void takesEveryKind_data();
    void takesEveryKind();
    void tellsOfFurtherPages_data();
    void tellsOfFurtherPages();
    void keepsTransparency_data();
    void keepsTransparency();
    void laysTransparencyOnTheBackground();
    void mixesNoHiddenColourIntoEdges();
    void obeysOptions_data();
    void obeysOptions();
    void refusesWhatTheFormatCannotHold();
    void obeysThePixelLimit();
    void scalesLikeAnotherProgram_data();
    void scalesLikeAnotherProgram();

private:
    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerPictures::initTestCase()
{
    StartPictures();
}

// One worker makes the pictures of all rows, as in a run; after a failure the next row gets a new one.
void tst_WorkerPictures::init()
{
    if (!bench) {
        bench = std::make_unique<WorkerBench>();
        // The trial of the HEIF encoders takes 20 s longer in a worker that has made another picture just before.
        WritePicture(Chart(8, 8), bench->Path(Text("in.png")));
        const QString reason = bench->Make(Text("in.png"), NameIn(Text("HEIF")), Text("HEIF")).reason;
        QCOMPARE(reason.isEmpty(), MissingEncoder(Text("HEIF")) == nullptr);
        cleanup();
    }
}

void tst_WorkerPictures::cleanup()
{
    if (QTest::currentTestFailed()) {
        bench.reset();
        return;
    }
    const QStringList names = bench->Names();
    for (const QString& name : names) {
        QVERIFY(QFile::remove(bench->Path(name)));
    }
}

void tst_WorkerPictures::writesEveryFormat_data()
{
    QTest::addColumn<QString>("format");
    for (const FormatSchema& format : Formats()) {
        QTest::newRow(qPrintable(format.name)) << format.name;
    }
}

void tst_WorkerPictures::writesEveryFormat()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    const Picture chart = Chart(61, 47);
    WritePicture(chart, bench->Path(Text("in.png")), "[strip]");
    const Report report = bench->Make(Text("in.png"), NameIn(format), format, Finest(format));
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings).join(Text("; ")), QString());
    const Picture result = ReadPicture(bench->Path(NameIn(format)));
    const double difference = LargestDifference(Colours(result), chart);
    QVERIFY2(difference <= Tolerance(format), qPrintable(QString::number(difference)));
    QVERIFY(MeanDifference(Colours(result), chart) < 5.0);
    QFile file(bench->Path(NameIn(format)));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(FormatOfFile(file.read(64), {}), format);
    QCOMPARE(bench->Names(), (QStringList{Text("in.png"), NameIn(format)}));
}

void tst_WorkerPictures::readsEveryFormat_data()
{
    writesEveryFormat_data();
}

void tst_WorkerPictures::readsEveryFormat()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    // Under a wrong extension: the bytes decide.
    WritePicture(Chart(61, 47), bench->Path(NameIn(format)));
    const Picture expected = ReadPicture(bench->Path(NameIn(format)));
    QVERIFY(QFile::rename(bench->Path(NameIn(format)), bench->Path(Text("in.txt"))));
    QCOMPARE(bench->Make(Text("in.txt"), Text("out.png"), Text("PNG")).reason, QString());
    QVERIFY(LargestDifference(ReadPicture(bench->Path(Text("out.png"))), expected) <= MostInReading(format));
    const Report probe = bench->Probe(Text("in.txt"));
    QCOMPARE(probe.inputFormat, format);
}

void tst_WorkerPictures::turnsPicturesUpright_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("orientation");
    for (const QString& format : {Text("JPEG"), Text("TIFF"), Text("WebP"), Text("PNG")}) {
        for (int orientation = 1; orientation <= 8; ++orientation) {
            QTest::addRow("%s %d", qPrintable(format), orientation) << format << orientation;
        }
    }
}

void tst_WorkerPictures::turnsPicturesUpright()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));
    QFETCH(const int, orientation);

    // Crop and size are those of the upright picture: the reference turns first, by plain loops over the pixels.
    Picture stored = Chart(80, 60, 16);
    stored.set(VIPS_META_ORIENTATION, orientation);
    if (format == QLatin1String("PNG")) {
        // The library writes the orientation into PNG files only together with an EXIF block: this one has nothing
        // else.
        QByteArray exif("Exif\0\0II\x2a\0\x08\0\0\0\1\0\x12\x01\3\0\1\0\0\0o\0\0\0\0\0\0\0", 32);
        exif[24] = char(orientation);
        vips_image_set_blob_copy(stored.get_image(), VIPS_META_EXIF_NAME, exif.constData(), std::size_t(exif.size()));
    }
    WritePicture(stored, bench->Path(NameIn(format)), format == QLatin1String("JPEG") ? "[Q=100]" : "");
    const Picture pixels = ReadPicture(bench->Path(NameIn(format)));
    std::size_t size = 0;
    const std::unique_ptr<uchar, decltype(&g_free)> source(static_cast<uchar*>(pixels.write_to_memory(&size)), g_free);
    const bool isSideways = orientation >= 5;
    const int width = isSideways ? 60 : 80;
    const int height = isSideways ? 80 : 60;
    std::vector<uchar> turned(std::size_t(width) * height * 3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int fromLeft = isSideways ? y : x;
            const int fromTop = isSideways ? x : y;
            const bool isMirroredX = orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
            const bool isMirroredY = orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
            const int sourceX = isMirroredX ? 79 - fromLeft : fromLeft;
            const int sourceY = isMirroredY ? 59 - fromTop : fromTop;
            for (int band = 0; band < 3; ++band) {
                turned[(std::size_t(y) * width + x) * 3 + band] =
                    source.get()[(std::size_t(sourceY) * 80 + sourceX) * 3 + band];
            }
        }
    }
    const Picture upright = Picture::new_from_memory(turned.data(), turned.size(), width, height, 3, VIPS_FORMAT_UCHAR);

    QCOMPARE(bench->Make(NameIn(format), Text("whole.png"), Text("PNG")).reason, QString());
    const Picture whole = ReadPicture(bench->Path(Text("whole.png")));
    QCOMPARE(LargestDifference(whole, upright), 0.0);
    QCOMPARE(OrientationOf(whole), 1);

    const auto edit = [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::Crop crop;
        crop.type = int(BatchJob::CropType::Exact);
        crop.size = QSize(40, 24);
        crop.alignment = Qt::AlignRight | Qt::AlignTop;
        output.SetCropSettings(crop);
        ZTBatchOutputSettings::ImageSize imageSize;
        imageSize.restriction = int(BatchJob::SizeRestriction::Fit);
        imageSize.side = int(BatchJob::SizeSide::Width);
        imageSize.size = 20;
        output.SetImageSizeSettings(imageSize);
    };
    QCOMPARE(bench->Make(NameIn(format), Text("part.png"), Text("PNG"), {}, edit).reason, QString());
    const Picture part = ReadPicture(bench->Path(Text("part.png")));
    const Picture expected = upright.crop(width - 40, 0, 40, 24).resize(0.5);
    // The filter starts at the other end of a mirrored picture.
    QVERIFY2(MeanDifference(part, expected) < 3.0, qPrintable(QString::number(MeanDifference(part, expected))));
}

void tst_WorkerPictures::keepsDepth_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<bool>("isDeep");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("PNG as it is") << Text("PNG") << 0 << true << 0.0;
    QTest::newRow("PNG 8") << Text("PNG") << 8 << false << 0.0;
    QTest::newRow("TIFF as it is") << Text("TIFF") << 0 << true << 0.0;
    QTest::newRow("TIFF 8") << Text("TIFF") << 8 << false << 0.0;
    QTest::newRow("JPEG XL as it is") << Text("JPEG XL") << 0 << true << 0.0;
    QTest::newRow("JPEG 2000 as it is") << Text("JPEG 2000") << 0 << true << 0.0;
    QTest::newRow("AVIF as it is") << Text("AVIF") << 0 << true << 257.0 * 4;
    QTest::newRow("AVIF 10") << Text("AVIF") << 10 << true << 257.0 * 6;
    QTest::newRow("AVIF 8") << Text("AVIF") << 8 << false << 4.0;
    QTest::newRow("JPEG") << Text("JPEG") << 0 << false << 6.0;
    QTest::newRow("WebP") << Text("WebP") << 0 << false << 0.0;
}

void tst_WorkerPictures::keepsDepth()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));
    QFETCH(const int, wanted);
    QFETCH(const bool, isDeep);
    QFETCH(const double, tolerance);

    const Picture chart = Chart(64, 40);
    WritePicture(Deep(chart), bench->Path(Text("in.png")));
    QJsonObject options = Finest(format);
    if (wanted > 0) {
        options.insert(Text("bitDepth"), wanted);
    }
    const Report report = bench->Make(Text("in.png"), NameIn(format), format, options);
    constexpr quint32 brokenVersion = 0x010f; // libheif 1.15, whose AVIF of 10 bits ends the process
    if (format == Text("AVIF") && wanted == 10 && heif_get_version_number() >> 16U == brokenVersion) {
        QVERIFY(report.failure == PolicyKind::WriteToFormat);
        QVERIFY(report.reason.contains(Text("depth")));
        QCOMPARE(report.nearestFormat, Text("TIFF"));
        return;
    }
    QCOMPARE(report.reason, QString());
    const Picture result = Colours(ReadPicture(bench->Path(NameIn(format))));
    QCOMPARE(result.format(), isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    const double difference = LargestDifference(result, isDeep ? Deep(chart) : chart);
    QVERIFY2(difference <= tolerance, qPrintable(QString::number(difference)));
}

void tst_WorkerPictures::losesNothingWithoutLoss_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("isDeep");
    QTest::addColumn<double>("tolerance");
    // HEIF and AVIF hold luma and chroma, which are rounded: 1 of 255, 2 of 4095.
    constexpr double deepStep = 65535.0 / 4095;
    QTest::newRow("WebP") << Text("WebP") << false << 0.0;
    QTest::newRow("HEIF") << Text("HEIF") << false << 1.0;
    QTest::newRow("AVIF") << Text("AVIF") << false << 1.0;
    QTest::newRow("HEIF, 12 bits") << Text("HEIF") << true << 2 * deepStep;
    QTest::newRow("AVIF, 12 bits") << Text("AVIF") << true << 2 * deepStep;
    QTest::newRow("JPEG XL") << Text("JPEG XL") << false << 0.0;
    QTest::newRow("JPEG XL, 16 bits") << Text("JPEG XL") << true << 0.0;
    QTest::newRow("JPEG 2000") << Text("JPEG 2000") << false << 0.0;
    QTest::newRow("JPEG 2000, 16 bits") << Text("JPEG 2000") << true << 0.0;
}

/// Noise of every colour, with pixels that are opaque, half transparent, and cannot be seen: what can be seen stays.
void tst_WorkerPictures::losesNothingWithoutLoss()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));
    QFETCH(const bool, isDeep);
    QFETCH(const double, tolerance);

    const auto noise = [](int seed) {
        return Picture::gaussnoise(96, 64, Picture::option()->set("mean", 128)->set("sigma", 90)->set("seed", seed));
    };
    const Picture colours = Picture::bandjoin({noise(1), noise(2), noise(3)})
                                .cast(VIPS_FORMAT_UCHAR)
                                .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
                                .copy_memory();
    const Picture whole = isDeep ? Deep(colours) : WithAlpha(colours);
    WritePicture(whole, bench->Path(Text("in.png")));
    const Report report = bench->Make(Text("in.png"), NameIn(format), format, {{Text("lossless"), true}});
    QCOMPARE(report.reason, QString());
    const Picture result = WithWholeRange(ReadPicture(bench->Path(NameIn(format))));
    QCOMPARE(result.bands(), whole.bands());
    const int seen = isDeep ? 96 : 64; // what is right of that cannot be seen
    const auto visible = [seen](const Picture& picture) { return picture.crop(0, 0, seen, picture.height()); };
    const double difference = LargestDifference(visible(Colours(result)), visible(Colours(whole)));
    QVERIFY2(difference <= tolerance, qPrintable(QString::number(difference)));
    if (!isDeep) {
        QCOMPARE(LargestDifference(result.extract_band(3), whole.extract_band(3)), 0.0);
    }
}

void tst_WorkerPictures::keepsGrey_data()
{
    writesEveryFormat_data();
}

void tst_WorkerPictures::keepsGrey()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    const Picture grey = Grey(Chart(64, 40));
    WritePicture(grey, bench->Path(Text("in.png")));
    QCOMPARE(bench->Make(Text("in.png"), NameIn(format), format, Finest(format)).reason, QString());
    const Picture result = ReadPicture(bench->Path(NameIn(format)));
    QCOMPARE(result.bands() == 1, Format(format).holdsGrey);
    QVERIFY(LargestDifference(result.extract_band(0), grey) <= Tolerance(format));
}

void tst_WorkerPictures::takesEveryKind_data()
{
    QTest::addColumn<QString>("format");
    for (const FormatSchema& format : Formats()) {
        QTest::newRow(qPrintable(format.name)) << format.name;
    }
}

// With its default options, and with what those leave out.
void tst_WorkerPictures::takesEveryKind()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    const Picture chart = Chart(64, 40);
    const Picture grey = Grey(chart);
    int number = 0;
    for (const Picture& picture : {chart, grey, WithAlpha(chart), grey.bandjoin(128).cast(VIPS_FORMAT_UCHAR),
                                   Deep(chart), Deep(chart).extract_band(0)}) {
        const QString name = QStringLiteral("in%1.tif").arg(++number);
        WritePicture(picture, bench->Path(name));
        const QString reason = bench->Make(name, NameIn(format), format).reason;
        QVERIFY2(reason.isEmpty(), qPrintable(QStringLiteral("picture %1: %2").arg(number).arg(reason)));
        const Picture result = ReadPicture(bench->Path(NameIn(format)));
        QCOMPARE(QSize(result.width(), result.height()), QSize(64, 40));
        QVERIFY(QFile::remove(bench->Path(NameIn(format))));
    }
}

void tst_WorkerPictures::tellsOfFurtherPages_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QStringList>("warnings");
    const QStringList none;
    const QStringList first{Text("it has 3 pages; only the first is used")};
    const QStringList main{Text("it has 3 pages; only the main one is used")};
    QTest::newRow("TIFF") << Text("tif") << QByteArray("page-height=30") << first;
    QTest::newRow("TIFF, large") << Text("tif") << QByteArray("page-height=30,bigtiff") << first;
    QTest::newRow("GIF") << Text("gif") << QByteArray("page-height=30") << first;
    QTest::newRow("WebP") << Text("webp") << QByteArray("page-height=30") << first;
    QTest::newRow("HEIF") << Text("heic") << QByteArray("page-height=30") << main;
    QTest::newRow("AVIF") << Text("avif") << QByteArray("page-height=30") << main;
    QTest::newRow("TIFF, one page") << Text("tif") << QByteArray("page-height=90") << none;
    QTest::newRow("WebP, one page") << Text("webp") << QByteArray("page-height=90") << none;
    const QByteArray withSmaller("pyramid,tile,tile-width=16,tile-height=16");
    QTest::newRow("TIFF with smaller copies") << Text("tif") << withSmaller << none;
    QTest::newRow("TIFF with smaller copies, large") << Text("tif") << withSmaller + ",bigtiff" << none;
}

void tst_WorkerPictures::tellsOfFurtherPages()
{
    QFETCH(const QString, extension);
    QFETCH(const QByteArray, options);
    QFETCH(const QStringList, warnings);
    SKIP_WHERE(MissingEncoder(extension));

    const QString name = Text("in.") + extension;
    WritePicture(Chart(40, 90), bench->Path(name), '[' + options + ']');
    const Report report = bench->Make(name, Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    // Of large files the metadata cannot be read, which is said too.
    QCOMPARE(BatchJob::TextsOf(report.warnings).filter(Text("pages")), warnings);
    const Picture first = ReadPicture(bench->Path(name));
    QCOMPARE(first.height(), warnings.isEmpty() ? 90 : 30);
    QVERIFY(LargestDifference(ReadPicture(bench->Path(Text("out.png"))), first) <= MostInReading(extension));
}

void tst_WorkerPictures::keepsTransparency_data()
{
    writesEveryFormat_data();
}

void tst_WorkerPictures::keepsTransparency()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    WritePicture(WithAlpha(Chart(60, 40)), bench->Path(Text("in.png")));
    QCOMPARE(bench->Make(Text("in.png"), NameIn(format), format, Finest(format)).reason, QString());
    const Picture result = ReadPicture(bench->Path(NameIn(format)));
    QCOMPARE(result.has_alpha(), Format(format).holdsTransparency);
    if (Format(format).holdsTransparency) {
        const Picture alpha = result.extract_band(3);
        QCOMPARE(alpha.getpoint(5, 20)[0], 255.0);
        QCOMPARE(alpha.getpoint(55, 20)[0], 0.0);
        const double middle = alpha.getpoint(30, 20)[0];
        const bool isOnOrOff = format == QLatin1String("GIF");
        QVERIFY2(isOnOrOff || std::abs(middle - 128) <= 2, qPrintable(QString::number(middle)));
    }
}

void tst_WorkerPictures::laysTransparencyOnTheBackground()
{
    WritePicture(WithAlpha(Chart(60, 40)), bench->Path(Text("in.png")));
    QJsonObject options = Finest(Text("JPEG"));
    options.insert(Text("background"), Text("#10c080"));
    QCOMPARE(bench->Make(Text("in.png"), Text("out.jpg"), Text("JPEG"), options).reason, QString());
    const std::vector<double> hidden = ReadPicture(bench->Path(Text("out.jpg"))).getpoint(55, 20);
    QVERIFY(std::abs(hidden[0] - 0x10) <= 3);
    QVERIFY(std::abs(hidden[1] - 0xc0) <= 3);
    QVERIFY(std::abs(hidden[2] - 0x80) <= 3);
}

void tst_WorkerPictures::mixesNoHiddenColourIntoEdges()
{
    // White that can be seen beside red that cannot: a filter that forgets about alpha makes pink edges.
    const Picture white = Picture::black(40, 40, Picture::option()->set("bands", 3)).linear(1, 255);
    const Picture red =
        Picture::black(40, 40).linear(1, 255).bandjoin(Picture::black(40, 40, Picture::option()->set("bands", 2)));
    const Picture both = white.bandjoin(255.0)
                             .join(red.bandjoin(0.0), VIPS_DIRECTION_HORIZONTAL)
                             .cast(VIPS_FORMAT_UCHAR)
                             .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    WritePicture(both, bench->Path(Text("in.png")));
    const auto edit = [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.side = int(BatchJob::SizeSide::Width);
        size.size = 25;
        output.SetImageSizeSettings(size);
    };
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    for (int x = 0; x < result.width(); ++x) {
        const std::vector<double> pixel = result.getpoint(x, 6);
        if (pixel[3] >= 8) {
            QVERIFY2(pixel[1] > 250 && pixel[2] > 250, qPrintable(QStringLiteral("at %1").arg(x)));
        }
    }
}

void tst_WorkerPictures::obeysOptions_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QJsonObject>("larger");
    QTest::addColumn<QJsonObject>("smaller");
    const auto row = [](const char* name, const char* format, const QJsonObject& larger, const QJsonObject& smaller) {
        QTest::newRow(name) << Text(format) << larger << smaller;
    };
    const QString quality = Text("quality");
    const QString effort = Text("effort");
    const QString compression = Text("compression");
    row("JPEG quality", "JPEG", {{quality, 90}}, {{quality, 40}});
    row("JPEG subsampling", "JPEG", {{Text("chromaSubsampling"), Text("4:4:4")}},
        {{Text("chromaSubsampling"), Text("4:2:0")}});
    row("PNG level", "PNG", {{Text("compressionLevel"), 0}}, {{Text("compressionLevel"), 9}});
    row("TIFF none to LZW", "TIFF", {{compression, Text("none")}}, {{compression, Text("lzw")}});
#ifndef Q_OS_WIN // The imaging library there has no zstd.
    row("TIFF LZW to zstd", "TIFF", {{compression, Text("lzw")}}, {{compression, Text("zstd")}});
#endif
    row("TIFF LZW to deflate", "TIFF", {{compression, Text("lzw")}}, {{compression, Text("deflate")}});
    row("TIFF JPEG quality", "TIFF", {{compression, Text("jpeg")}, {quality, 95}},
        {{compression, Text("jpeg")}, {quality, 30}});
    row("WebP quality", "WebP", {{quality, 90}}, {{quality, 30}});
    row("WebP lossless", "WebP", {{Text("lossless"), true}}, {{quality, 60}});
    row("WebP effort", "WebP", {{effort, 0}}, {{effort, 9}});
    row("AVIF quality", "AVIF", {{quality, 90}, {effort, 1}}, {{quality, 30}, {effort, 1}});
    row("HEIF quality", "HEIF", {{quality, 90}}, {{quality, 30}});
    row("HEIF effort", "HEIF", {{effort, 0}}, {{effort, 9}});
    row("JPEG XL quality", "JPEG XL", {{quality, 95}}, {{quality, 40}});
    row("JPEG XL lossless", "JPEG XL", {{Text("lossless"), true}}, {{quality, 40}});
    row("JPEG 2000 quality", "JPEG 2000", {{quality, 95}}, {{quality, 30}});
}

void tst_WorkerPictures::obeysOptions()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));
    QFETCH(const QJsonObject, larger);
    QFETCH(const QJsonObject, smaller);

    const Picture noise =
        Picture::gaussnoise(200, 150, Picture::option()->set("sigma", 12.0)->set("mean", 0.0)->set("seed", 1));
    WritePicture((Chart(200, 150, 50) + noise).cast(VIPS_FORMAT_UCHAR), bench->Path(Text("in.png")));
    const Report large = bench->Make(Text("in.png"), Text("large"), format, larger);
    const Report small = bench->Make(Text("in.png"), Text("small"), format, smaller);
    QCOMPARE(large.reason, QString());
    QCOMPARE(small.reason, QString());
    const qint64 smallBytes = QFileInfo(bench->Path(Text("small"))).size();
    const qint64 largeBytes = QFileInfo(bench->Path(Text("large"))).size();
    QVERIFY2(smallBytes < largeBytes, qPrintable(QStringLiteral("%1 and %2 bytes").arg(smallBytes).arg(largeBytes)));
    // The quality that was used is reported, and that none was.
    const QString quality = Text("quality");
    if (larger.contains(quality) || larger.contains(Text("lossless"))) {
        QCOMPARE(large.facts.quality, larger[quality].toInt());
    }
    QCOMPARE(small.facts.quality > 0,
             smaller.contains(quality) || format == Text("JPEG") || (format != Text("PNG") && format != Text("TIFF")));
}

void tst_WorkerPictures::refusesWhatTheFormatCannotHold()
{
    WritePicture(Picture::black(17'000, 2), bench->Path(Text("in.png")));
    const Report report = bench->Make(Text("in.png"), Text("out.webp"), Text("WebP"));
    QCOMPARE(report.failure, PolicyKind::WriteToFormat);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::UnsupportedOutputFormat));
    QCOMPARE(report.nearestFormat, Text("JPEG"));
    QVERIFY(report.reason.contains(Text("16383")));
    QCOMPARE(bench->Names(), QStringList(Text("in.png")));

    WritePicture(Picture::black(70'000, 2), bench->Path(Text("in.png")));
    QCOMPARE(bench->Make(Text("in.png"), Text("out.jpg"), Text("JPEG")).nearestFormat, Text("TIFF"));
}

void tst_WorkerPictures::obeysThePixelLimit()
{
    // A header alone: 50,000 x 50,000 pixels that nobody has written.
    QByteArray header("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\xC3\x50\0\0\xC3\x50\x08\x02\0\0\0", 29);
    header += QByteArray::fromHex("c4cdaa9d"); // the checksum of the chunk
    bench->WriteBytes(Text("in.png"), header + QByteArray("\0\0\0\x10IDATxxxxxxxxxxxxxxxxcccc", 28));
    const Report report = bench->Make(Text("in.png"), Text("out.jpg"), Text("JPEG"));
    QCOMPARE(report.failure, PolicyKind::Input);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::ImageTooLarge));
    QVERIFY2(report.reason.contains(Text("50000")), qPrintable(report.reason));

    // Just at the limit, and just above.
    WritePicture(Picture::black(1000, 1000), bench->Path(Text("in.png")));
    Job job = JobOf(Text("PNG"));
    job.limits.pixels = 1'000'000;
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), job).reason, QString());
    WritePicture(Picture::black(1001, 1000), bench->Path(Text("in.png")));
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), job).errorCode,
             qint32(ZTBatchMessage::ImageTooLarge));

    // Enlarged beyond the limit.
    WritePicture(Picture::black(100, 100), bench->Path(Text("in.png")));
    job = JobOf(Text("PNG"), {}, [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.unit = int(BatchJob::SizeUnit::Percent);
        size.size = 2000;
        output.SetImageSizeSettings(size);
    });
    job.limits.pixels = 1'000'000;
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), job).errorCode,
             qint32(ZTBatchMessage::ImageTooLarge));
}

void tst_WorkerPictures::scalesLikeAnotherProgram_data()
{
    QTest::addColumn<int>("longSide");
    QTest::newRow("a little smaller") << 534;
    QTest::newRow("half") << 320;
    QTest::newRow("a quarter") << 160;
    QTest::newRow("a tenth") << 64;
    QTest::newRow("larger") << 800;
}

void tst_WorkerPictures::scalesLikeAnotherProgram()
{
    QFETCH(const int, longSide);

    const QString photo = Text("/usr/share/backgrounds/mate/nature/Blinds.jpg");
    const QString convert = QStandardPaths::findExecutable(Text("convert"));
    if (convert.isEmpty() || !QFile::exists(photo)) {
        QSKIP("imagemagick or mate-backgrounds is not installed");
    }
    // The middle of a photo, 640 x 400 pixels: the other program and a debug build take seconds for the whole.
    const Picture whole = ReadPicture(photo);
    const Picture middle = whole.crop((whole.width() - 640) / 2, (whole.height() - 400) / 2, 640, 400);
    WritePicture(middle, bench->Path(Text("in.jpg")), "[Q=95]");
    const auto edit = [longSide](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.size = longSide;
        output.SetImageSizeSettings(size);
    };
    QCOMPARE(bench->Make(Text("in.jpg"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
    QCOMPARE(QProcess::execute(convert, {bench->Path(Text("in.jpg")), Text("-filter"), Text("Lanczos"), Text("-resize"),
                                         QStringLiteral("%1x%1").arg(longSide), bench->Path(Text("other.png"))}),
             0);
    const Picture own = ReadPicture(bench->Path(Text("out.png")));
    const Picture other = ReadPicture(bench->Path(Text("other.png")));
    // Two decoders and two filters on a photo with fine lines: a hundredth of the range in the mean.
    const double difference = MeanDifference(Colours(own), Colours(other));
    QVERIFY2(difference < 2.5, qPrintable(QString::number(difference)));
}

QTEST_GUILESS_MAIN(tst_WorkerPictures)
#include "tst_workerpictures.moc"
