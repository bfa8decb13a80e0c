// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "TiffDirectory.h"
#include "TiffPicture.h"
#include "WorkerBench.h"

#include "job/values/Warning.h"

#include <QTest>

#include <cmath>
#include <lcms2.h>

Q_DECLARE_METATYPE(TiffPicture)

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

// Numbers of the format.
constexpr int minIsWhite = 0;
constexpr int minIsBlack = 1;
constexpr int rgb = 2;
constexpr int palette = 3;
constexpr int separated = 5;
constexpr int differences = 6; // YCbCr
constexpr int cieLab = 8;
constexpr int iccLab = 9;
constexpr int ituLab = 10;
constexpr int lzw = 5;
constexpr int oldJpeg = 6;
constexpr int jpeg = 7;
constexpr int deflate = 8;
constexpr quint16 unspecified = 0;
constexpr quint16 premultiplied = 1;
constexpr quint16 straight = 2;

// Every place differs: red grows to the right, green downwards, blue is a chequerboard.
double ChartAt(int x, int y, int s)
{
    switch (s) {
    case 0:
        return x / 44.0;
    case 1:
        return y / 36.0;
    default:
        return (x / 8 + y / 8) % 2 ? 0.9 : 0.1;
    }
}

// The same in blocks, which subsampling does not change.
double BlocksAt(int x, int y, int s)
{
    return ChartAt(x / 8 * 8, y / 8 * 8, s);
}

// Source: ITU-T T.871, 7.
double DifferencesOf(double red, double green, double blue, int s)
{
    switch (s) {
    case 0:
        return 0.299 * red + 0.587 * green + 0.114 * blue;
    case 1:
        return 128 / 255.0 - 0.168736 * red - 0.331264 * green + 0.5 * blue;
    default:
        return 128 / 255.0 + 0.5 * red - 0.418688 * green - 0.081312 * blue;
    }
}

double BlocksAsDifferences(int x, int y, int s)
{
    return std::clamp(DifferencesOf(BlocksAt(x, y, 0), BlocksAt(x, y, 1), BlocksAt(x, y, 2), s), 0.0, 1.0);
}

double ToSrgb(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

// What another library makes of a colour of Lab, 0 to 1.
std::vector<double> SrgbOfLab(double l, double a, double b)
{
    const cmsHPROFILE lab = cmsCreateLab4Profile(nullptr);
    const cmsHPROFILE srgb = cmsCreate_sRGBProfile();
    const cmsHTRANSFORM transform =
        cmsCreateTransform(lab, TYPE_Lab_DBL, srgb, TYPE_RGB_DBL, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE);
    const double from[] = {l, a, b};
    std::vector<double> to(3);
    cmsDoTransform(transform, from, to.data(), 1);
    cmsDeleteTransform(transform);
    cmsCloseProfile(lab);
    cmsCloseProfile(srgb);
    return to;
}

// The largest difference to what `expected` gives of 0 to 1 for every channel, as a part of the whole range.
double LargestDifferenceTo(const Picture& picture, const std::function<double(int x, int y, int s)>& expected)
{
    const double largest = picture.format() == VIPS_FORMAT_USHORT ? 65535 : 255;
    const QVector<int> values = ValuesOf(picture);
    double difference = 0;
    int i = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            for (int s = 0; s < picture.bands(); ++s) {
                difference = std::max(difference, std::abs(values[i++] / largest - expected(x, y, s)));
            }
        }
    }
    return difference;
}

} // namespace

/// TIFF files in all their layouts.
class tst_WorkerTiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void readsDepths_data();
    void readsDepths();
    void readsLayouts_data();
    void readsLayouts();
    void readsColourDifferences_data();
    void readsColourDifferences();
    void readsOldJpeg();
    void readsLab_data();
    void readsLab();
    void readsLight();
    void readsGreyThatBeginsWithWhite_data();
    void readsGreyThatBeginsWithWhite();
    void readsPalettes_data();
    void readsPalettes();
    void readsAlpha_data();
    void readsAlpha();
    void readsInksWithAlpha();
    void turnsPicturesUpright();
    void readsPartsOfPictures();
    void refusesWithAReason_data();
    void refusesWithAReason();
    void namesChannelsThatAreLeftOut();

private:
    Picture Made(const TiffPicture& picture, const std::function<double(int x, int y, int s)>& value);

    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerTiff::initTestCase()
{
    StartPictures();
}

void tst_WorkerTiff::init()
{
    if (!bench) {
        bench = std::make_unique<WorkerBench>();
    }
    QFile::remove(bench->Path(Text("out.png")));
}

// A failure may have ended the worker.
void tst_WorkerTiff::cleanup()
{
    if (QTest::currentTestFailed()) {
        bench.reset();
    }
}

// What the worker makes of a file; an empty picture when it fails.
Picture tst_WorkerTiff::Made(const TiffPicture& picture, const std::function<double(int x, int y, int s)>& value)
{
    picture.Write(bench->Path(Text("in.tif")), value);
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    if (!report.reason.isEmpty()) {
        qWarning("%s", qUtf8Printable(report.reason));
        return Picture::black(1, 1);
    }
    return ReadPicture(bench->Path(Text("out.png")));
}

void tst_WorkerTiff::readsDepths_data()
{
    QTest::addColumn<TiffPicture>("picture");
    const auto row = [](int bits, TiffPicture::Numbers numbers, const char* name) {
        for (const int samples : {1, 3}) {
            TiffPicture picture;
            picture.bits = bits;
            picture.numbers = numbers;
            picture.samples = samples;
            picture.photometric = samples == 1 ? minIsBlack : rgb;
            QTest::addRow("%d bits, %s, %s", bits, name, samples == 1 ? "grey" : "RGB") << picture;
            picture.isBigEndian = true;
            picture.tile = 16;
            QTest::addRow("%d bits, %s, %s, tiles, big-endian", bits, name, samples == 1 ? "grey" : "RGB") << picture;
        }
    };
    for (const int bits : {1, 2, 4, 6, 8, 10, 12, 14, 16, 24, 32, 64}) {
        row(bits, TiffPicture::Unsigned, "unsigned");
    }
    for (const int bits : {8, 12, 16, 32}) {
        row(bits, TiffPicture::Signed, "signed");
    }
    for (const int bits : {16, 24, 32, 64}) {
        row(bits, TiffPicture::Floating, "floating point");
    }
}

void tst_WorkerTiff::readsDepths()
{
    QFETCH(const TiffPicture, picture);

    const Picture result = Made(picture, ChartAt);
    QCOMPARE(result.width(), 45);
    QCOMPARE(result.bands(), picture.samples);
    QCOMPARE(result.format(), picture.bits > 8 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    const bool isFloating = picture.numbers == TiffPicture::Floating;
    const double levels = std::ldexp(1.0, picture.bits) - 1;
    const auto expected = [&](int x, int y, int s) {
        const double value = ChartAt(x, y, s);
        return isFloating ? ToSrgb(value) : std::floor(value * levels + 0.5) / levels;
    };
    // Linear light is converted by a table.
    const double tolerance = isFloating ? 0.004 : picture.bits > 8 ? 1.1 / 65535 : 0.51 / 255;
    const double difference = LargestDifferenceTo(result, expected);
    QVERIFY2(difference <= tolerance, qPrintable(QString::number(difference)));
}

void tst_WorkerTiff::readsLayouts_data()
{
    QTest::addColumn<TiffPicture>("picture");
    for (const int bits : {8, 12, 16}) {
        for (const int compression : {1, lzw, deflate}) {
            for (const bool isPlanar : {false, true}) {
                for (const int tile : {0, 16, 64}) {
                    TiffPicture picture;
                    picture.bits = bits;
                    picture.compression = compression;
                    picture.predictor = compression == 1 || bits == 12 ? 1 : 2;
                    picture.isPlanar = isPlanar;
                    picture.tile = tile;
                    QTest::addRow("%d bits, compression %d, %s, tiles of %d", bits, compression,
                                  isPlanar ? "planar" : "together", tile)
                        << picture;
                }
            }
        }
    }
    TiffPicture one;
    one.compression = lzw;
    one.rowsOfStrip = one.height;
    QTest::newRow("a single strip") << one;
    one.isPlanar = true;
    QTest::newRow("a single strip for each plane") << one;
    one.rowsOfStrip = 1;
    QTest::newRow("a strip for each row") << one;
}

void tst_WorkerTiff::readsLayouts()
{
    QFETCH(const TiffPicture, picture);

    const Picture result = Made(picture, ChartAt);
    QCOMPARE(result.height(), 37);
    QVERIFY(LargestDifferenceTo(result, ChartAt) <= 0.51 / 255);
}

void tst_WorkerTiff::readsColourDifferences_data()
{
    QTest::addColumn<TiffPicture>("picture");
    const auto row = [](int across, int down, int compression, int tile) {
        TiffPicture picture;
        picture.photometric = differences;
        picture.compression = compression;
        picture.across = across;
        picture.down = down;
        picture.rowsOfStrip = 16;
        picture.tile = tile;
        QTest::addRow("%d x %d, compression %d, tiles of %d", across, down, compression, tile) << picture;
    };
    for (const int compression : {1, lzw, deflate}) {
        for (const int tile : {0, 16}) {
            if (compression == 1 && tile > 0) {
                continue; // refused
            }
            row(1, 1, compression, tile);
            row(2, 1, compression, tile);
            row(2, 2, compression, tile);
            row(4, 2, compression, tile);
        }
    }
    row(1, 1, jpeg, 0);
    row(1, 1, jpeg, 16);
    TiffPicture planar;
    planar.photometric = differences;
    planar.isPlanar = true;
    QTest::newRow("planar") << planar;
    planar.compression = lzw;
    planar.tile = 16;
    QTest::newRow("planar, compressed, tiles") << planar;
}

void tst_WorkerTiff::readsColourDifferences()
{
    QFETCH(const TiffPicture, picture);

    const Picture result = Made(picture, BlocksAsDifferences);
    QCOMPARE(result.width(), 45);
    QCOMPARE(result.bands(), 3);
    const double difference = LargestDifferenceTo(result, BlocksAt);
    // Rounding of three values; JPEG loses more.
    QVERIFY2(difference <= (picture.compression == jpeg ? 0.06 : 0.012), qPrintable(QString::number(difference)));
}

// The JPEG stream as a whole, as writers of old put it into TIFF files.
void tst_WorkerTiff::readsOldJpeg()
{
    const Picture chart = Chart(48, 32, 64); // without edges, where decoders differ
    WritePicture(chart, bench->Path(Text("whole.jpg")), "[Q=95,subsample_mode=on]");
    const QByteArray stream = bench->Bytes(Text("whole.jpg"));
    TiffDirectory directory;
    directory.AddLong(256, 48);
    directory.AddLong(257, 32);
    directory.AddShorts(258, {8, 8, 8});
    directory.AddShort(259, oldJpeg);
    directory.AddShort(262, differences);
    constexpr quint32 header = 8;
    directory.AddLong(273, header);
    directory.AddShort(277, 3);
    directory.AddLong(278, 32);
    directory.AddLong(279, quint32(stream.size()));
    directory.AddShort(512, 1);
    directory.AddLong(513, header);
    directory.AddLong(514, quint32(stream.size()));
    directory.AddShorts(530, {2, 2});
    const quint32 start = header + quint32(stream.size() + stream.size() % 2);
    bench->WriteBytes(Text("in.tif"), QByteArray("II*\0", 4) + LittleEndian(start) +
                                          stream.leftJustified(int(start - header), '\0') + directory.Bytes(start));
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings, Warnings());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QVERIFY(MeanDifference(result, ReadPicture(bench->Path(Text("whole.jpg")))) < 3);
}

void tst_WorkerTiff::readsLab_data()
{
    QTest::addColumn<TiffPicture>("picture");
    QTest::addColumn<QVector<double>>("codes");
    QTest::addColumn<QVector<double>>("lab");
    TiffPicture picture;
    const QVector<double> colour{60, 40, -30};
    const auto row = [&](const char* name, int photometric, int bits, const QVector<double>& codes,
                         const QVector<double>& lab) {
        picture.photometric = photometric;
        picture.bits = bits;
        picture.samples = 3;
        picture.extraSamples.clear();
        picture.isPlanar = false;
        QTest::newRow(name) << picture << codes << lab;
        picture.isPlanar = true;
        QTest::newRow(QByteArray(name) + ", planar") << picture << codes << lab;
        picture.samples = 4;
        picture.isPlanar = false;
        picture.extraSamples = {straight};
        QTest::newRow(QByteArray(name) + ", with alpha") << picture << codes << lab;
    };
    row("CIE Lab, 8 bits", cieLab, 8, {153 / 255.0, 40 / 255.0, 226 / 255.0}, colour);
    row("CIE Lab, 16 bits", cieLab, 16, {0.6, 40 * 256 / 65535.0, (65536 - 30 * 256) / 65535.0}, colour);
    row("ICC Lab, 8 bits", iccLab, 8, {153 / 255.0, 168 / 255.0, 98 / 255.0}, colour);
    row("ICC Lab, 16 bits", iccLab, 16, {0.6 * 65280 / 65535.0, 168 * 256 / 65535.0, 98 * 256 / 65535.0}, colour);
    row("ITU Lab, 8 bits", ituLab, 8, {153 / 255.0, 188 / 255.0, 57.75 / 255.0}, {60, 40, (58 - 96) * 200 / 255.0});
    row("white", cieLab, 8, {1, 0, 0}, {100, 0, 0});
}

void tst_WorkerTiff::readsLab()
{
    QFETCH(const TiffPicture, picture);
    QFETCH(const QVector<double>, codes);
    QFETCH(const QVector<double>, lab);

    const double alpha = 51 / 255.0;
    const Picture result = Made(picture, [&](int, int, int s) { return s == 3 ? alpha : codes[s]; });
    QCOMPARE(result.bands(), picture.samples);
    const std::vector<double> expected = SrgbOfLab(lab[0], lab[1], lab[2]);
    const double difference =
        LargestDifferenceTo(result, [&](int, int, int s) { return s == 3 ? alpha : expected[std::size_t(s)]; });
    QVERIFY2(difference <= 0.006, qPrintable(QString::number(difference)));
}

// Compressed as the logarithm of light.
void tst_WorkerTiff::readsLight()
{
    TiffPicture picture;
    picture.bits = 32;
    picture.numbers = TiffPicture::Floating;
    picture.compression = 34676;
    const auto lightAt = [](int x, int, int) { return 0.05 + x / 50.0; };
    for (const bool isGrey : {false, true}) {
        picture.samples = isGrey ? 1 : 3;
        picture.photometric = isGrey ? 32844 : 32845; // brightness; X, Y and Z, of which white has the same
        const Picture result = Made(picture, lightAt);
        QCOMPARE(result.bands(), picture.samples);
        const double difference =
            LargestDifferenceTo(result, [&](int x, int y, int s) { return ToSrgb(lightAt(x, y, s)); });
        QVERIFY2(difference < 0.01, qPrintable(QString::number(difference)));
    }
}

void tst_WorkerTiff::readsGreyThatBeginsWithWhite_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("numbers");
    for (const int bits : {1, 4, 8, 12, 16}) {
        QTest::addRow("%d bits", bits) << bits << int(TiffPicture::Unsigned);
    }
    QTest::newRow("32 bits, floating point") << 32 << int(TiffPicture::Floating);
}

void tst_WorkerTiff::readsGreyThatBeginsWithWhite()
{
    QFETCH(const int, bits);
    QFETCH(const int, numbers);

    TiffPicture picture;
    picture.samples = 1;
    picture.photometric = minIsWhite;
    picture.bits = bits;
    picture.numbers = TiffPicture::Numbers(numbers);
    const Picture result = Made(picture, [](int x, int, int) { return x < 20 ? 0.0 : 1.0; });
    QCOMPARE(result.bands(), 1);
    QVERIFY(LargestDifferenceTo(result, [](int x, int, int) { return x < 20 ? 1.0 : 0.0; }) < 0.002);
}

void tst_WorkerTiff::readsPalettes_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("factor");
    QTest::addColumn<int>("depth");
    for (const int bits : {1, 2, 4, 8, 16}) {
        QTest::addRow("%d bits", bits) << bits << 257 << 8;
        QTest::addRow("%d bits, values with zeros", bits) << bits << 256 << 8;
    }
    QTest::newRow("8 bits, values of bytes") << 8 << 1 << 8;
    QTest::newRow("8 bits, deep values") << 8 << 255 << 16;
}

void tst_WorkerTiff::readsPalettes()
{
    QFETCH(const int, bits);
    QFETCH(const int, factor);
    QFETCH(const int, depth);

    TiffPicture picture;
    picture.samples = 1;
    picture.photometric = palette;
    picture.bits = bits;
    const int entries = 1 << bits;
    for (int s = 0; s < 3; ++s) {
        for (int i = 0; i < entries; ++i) {
            picture.palette.append(quint16((i * (7 + 2 * s) + 40 * s) % 256 * factor));
        }
    }
    const auto indexAt = [&](int x, int y) { return (x + 3 * y) % entries; };
    const Picture result = Made(picture, [&](int x, int y, int) { return indexAt(x, y) / (entries - 1.0); });
    QCOMPARE(result.bands(), 3);
    QCOMPARE(result.format(), depth == 16 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    const double largest = depth == 16 ? 65535 : 255;
    const double perByte = depth == 16 ? factor : 1;
    QVERIFY(LargestDifferenceTo(result, [&](int x, int y, int s) {
                return (indexAt(x, y) * (7 + 2 * s) + 40 * s) % 256 * perByte / largest;
            }) < 1e-9);
}

void tst_WorkerTiff::readsAlpha_data()
{
    QTest::addColumn<int>("colours");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QVector<quint16>>("extraSamples");
    for (const int colours : {1, 3}) {
        for (const int bits : {8, 16}) {
            const char* const name = colours == 1 ? "grey" : "RGB";
            QTest::addRow("%s, %d bits, straight", name, bits) << colours << bits << QVector<quint16>{straight};
            QTest::addRow("%s, %d bits, premultiplied", name, bits)
                << colours << bits << QVector<quint16>{premultiplied};
            QTest::addRow("%s, %d bits, not stated", name, bits) << colours << bits << QVector<quint16>{unspecified};
            QTest::addRow("%s, %d bits, behind another channel", name, bits)
                << colours << bits << QVector<quint16>{unspecified, straight};
        }
    }
}

void tst_WorkerTiff::readsAlpha()
{
    QFETCH(const int, colours);
    QFETCH(const int, bits);
    QFETCH(const QVector<quint16>, extraSamples);

    TiffPicture picture;
    picture.photometric = colours == 1 ? minIsBlack : rgb;
    picture.samples = colours + extraSamples.size();
    picture.bits = bits;
    picture.extraSamples = extraSamples;
    const int alpha = picture.samples - 1;
    const bool isPremultiplied = extraSamples.first() == premultiplied;
    const auto alphaAt = [](int x) { return x < 15 ? 1.0 : x < 30 ? 0.4 : 0.0; };
    const Picture result = Made(picture, [&](int x, int y, int s) {
        if (s >= colours) {
            return s == alpha ? alphaAt(x) : 0.3;
        }
        return ChartAt(x, y, s) * (isPremultiplied ? alphaAt(x) : 1.0);
    });
    QCOMPARE(result.bands(), colours + 1);
    QVERIFY(LargestDifferenceTo(result, [&](int x, int y, int s) {
                if (s == colours) {
                    return alphaAt(x);
                }
                return isPremultiplied && alphaAt(x) == 0.0 ? 0.0 : ChartAt(x, y, s);
            }) <= 1.5 / 255 / (isPremultiplied ? 0.4 : 1.0));
}

void tst_WorkerTiff::readsInksWithAlpha()
{
    TiffPicture picture;
    picture.photometric = separated;
    picture.samples = 5;
    picture.extraSamples = {straight};
    // No ink on the left, black on the right.
    const Picture result = Made(picture, [](int x, int, int s) { return s == 4 ? 0.6 : s == 3 && x > 20 ? 1.0 : 0.0; });
    QCOMPARE(result.bands(), 4);
    const std::vector<double> paper = result.getpoint(3, 3);
    QVERIFY(paper[0] > 245 && paper[1] > 245 && paper[2] > 245);
    const std::vector<double> black = result.getpoint(40, 3);
    QVERIFY(black[0] < 60 && black[1] < 60 && black[2] < 60);
    QCOMPARE(paper[3], 153.0);
}

void tst_WorkerTiff::turnsPicturesUpright()
{
    TiffPicture picture;
    picture.orientation = 6;
    for (const int photometric : {rgb, differences}) {
        picture.photometric = photometric;
        const Picture result = Made(picture, photometric == rgb ? BlocksAt : BlocksAsDifferences);
        QCOMPARE(result.width(), 37);
        // By a quarter to the right: what was at the bottom left is at the top left now.
        QVERIFY(LargestDifferenceTo(result, [](int x, int y, int s) { return BlocksAt(y, 36 - x, s); }) <= 0.012);
    }
}

// Rows that are skipped, of strips and of tiles.
void tst_WorkerTiff::readsPartsOfPictures()
{
    for (const int tile : {0, 16}) {
        TiffPicture picture;
        picture.compression = lzw;
        picture.tile = tile;
        picture.Write(bench->Path(Text("in.tif")), ChartAt);
        const auto edit = [](ZTBatchOutputSettings& output) {
            ZTBatchOutputSettings::Crop crop;
            crop.type = 5;
            crop.size = QSize(20, 10);
            crop.alignment = int(Qt::AlignRight | Qt::AlignBottom);
            output.SetCropSettings(crop);
        };
        QCOMPARE(bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"), {}, edit).reason, QString());
        const Picture result = ReadPicture(bench->Path(Text("out.png")));
        QCOMPARE(result.width(), 20);
        QVERIFY(LargestDifferenceTo(result, [](int x, int y, int s) { return ChartAt(x + 25, y + 27, s); }) <=
                0.51 / 255);
    }
}

void tst_WorkerTiff::refusesWithAReason_data()
{
    QTest::addColumn<TiffPicture>("picture");
    QTest::addColumn<QString>("reason");
    TiffPicture picture;
    picture.photometric = separated;
    picture.samples = 6;
    picture.inkSet = 2;
    QTest::newRow("six inks") << picture << Text("inks of its own");
    picture = {};
    picture.photometric = 32803;
    picture.samples = 1;
    QTest::newRow("sensor data") << picture << Text("undeveloped data of a camera");
    picture = {};
    picture.photometric = differences;
    picture.bits = 16;
    QTest::newRow("deep colour differences") << picture << Text("way of storing colours");
    picture = {};
    picture.photometric = differences;
    picture.isPlanar = true;
    picture.across = 2;
    QTest::newRow("colour differences, planar and subsampled") << picture << Text("way of storing colours");
    picture = {};
    picture.photometric = differences;
    picture.tile = 16;
    QTest::newRow("colour differences in uncompressed tiles") << picture << Text("uncompressed tiles");
    picture = {};
    picture.photometric = cieLab;
    picture.bits = 12;
    QTest::newRow("Lab of 12 bits") << picture << Text("Lab colours of 12 bits");
    picture = {};
    picture.bits = 40;
    QTest::newRow("40 bits") << picture << Text("40 bits");
}

void tst_WorkerTiff::refusesWithAReason()
{
    QFETCH(const TiffPicture, picture);
    QFETCH(const QString, reason);

    picture.Write(bench->Path(Text("in.tif")), ChartAt);
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QVERIFY2(report.reason.contains(reason), qPrintable(report.reason));
    QCOMPARE(report.failure, PolicyKind::Input);
    QCOMPARE(report.errorCode, ZTBatchMessage::UnsupportedInputFormat);
    QVERIFY(!QFile::exists(bench->Path(Text("out.png"))));
}

void tst_WorkerTiff::namesChannelsThatAreLeftOut()
{
    TiffPicture picture;
    picture.samples = 6;
    picture.extraSamples = {straight, unspecified, unspecified};
    picture.Write(bench->Path(Text("in.tif")), ChartAt);
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings),
             QStringList{Text("it has 2 channels beside its colours and its transparency, which are left out")});
}

QTEST_GUILESS_MAIN(tst_WorkerTiff)
#include "tst_workertiff.moc"
