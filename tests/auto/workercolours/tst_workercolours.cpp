// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/colour/ColourProfile.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QJsonArray>
#include <QTest>

#include <cmath>

Q_DECLARE_METATYPE(std::vector<double>)

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

QByteArray BuiltIn(const char* name)
{
    VipsBlob* blob = nullptr;
    if (vips_profile_load(name, &blob, nullptr) != 0) {
        return {};
    }
    const QByteArray bytes(static_cast<const char*>(VIPS_AREA(blob)->data), int(VIPS_AREA(blob)->length));
    vips_area_unref(VIPS_AREA(blob));
    return bytes;
}

Picture Plain(const std::vector<double>& colour, VipsInterpretation interpretation = VIPS_INTERPRETATION_sRGB)
{
    return Picture::black(32, 32, Picture::option()->set("bands", int(colour.size())))
        .linear(std::vector<double>(colour.size(), 1.0), colour)
        .cast(VIPS_FORMAT_UCHAR)
        .copy(Picture::option()->set("interpretation", interpretation));
}

std::vector<double> Middle(const Picture& picture)
{
    return picture.getpoint(16, 16);
}

// Saturated and pale colours in a chart of patches, away from the limits of either space.
Picture Patches()
{
    return (Chart(64, 64, 16) * 0.6 + 40)
        .cast(VIPS_FORMAT_UCHAR)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
}

// The value of sRGB for one of linear light; source: IEC 61966-2-1.
double SrgbOf(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

} // namespace

/// Colours of results: profiles of sources, profiles of jobs, inks.
class tst_WorkerColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void knowsKindsOfProfiles();
    void keepsTheProfileAndTheNumbers();
    void readsFloatingPoint_data();
    void readsFloatingPoint();
    void convertsToTheProfileOfTheJob_data();
    void convertsToTheProfileOfTheJob();
    void convertsWithoutProfileToSrgb();
    void fallsBackFromBrokenProfiles_data();
    void fallsBackFromBrokenProfiles();
    void keepsInks_data();
    void keepsInks();
    void writesInksBackAfterEffects();
    void turnsInksIntoSrgb();
    void refusesInksWhereThereIsNoPlace();

private:
    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerColours::initTestCase()
{
    StartPictures();
}

void tst_WorkerColours::init()
{
    bench = std::make_unique<WorkerBench>();
}

void tst_WorkerColours::knowsKindsOfProfiles()
{
    QVERIFY(KindOfProfile(BuiltIn("srgb")) == ColourKind::Rgb);
    QVERIFY(KindOfProfile(BuiltIn("p3")) == ColourKind::Rgb);
    QVERIFY(KindOfProfile(BuiltIn("cmyk")) == ColourKind::Cmyk);
    QVERIFY(!KindOfProfile({}));
    QVERIFY(!KindOfProfile("no profile"));
    QVERIFY(!KindOfProfile(BuiltIn("srgb").left(200)));
    QVERIFY(IsSrgb(BuiltIn("srgb")));
    QVERIFY(!IsSrgb(BuiltIn("p3")));
    QVERIFY(!IsSrgb(BuiltIn("cmyk")));
}

void tst_WorkerColours::keepsTheProfileAndTheNumbers()
{
    const QByteArray profile = BuiltIn("p3");
    WritePicture(WithProfile(Patches(), profile), bench->Path(Text("in.png")));
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG")).reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(ProfileOf(result), profile);
    QCOMPARE(LargestDifference(result, Patches()), 0.0);
}

void tst_WorkerColours::readsFloatingPoint_data()
{
    QTest::addColumn<std::vector<double>>("values");
    QTest::addColumn<int>("colours");
    QTest::addColumn<bool>("hasProfile");
    QTest::newRow("RGB") << std::vector<double>{0.1, 0.25, 0.8} << 3 << false;
    QTest::newRow("RGB with alpha") << std::vector<double>{0.1, 0.25, 0.8, 0.4} << 3 << false;
    QTest::newRow("grey") << std::vector<double>{0.25} << 1 << false;
    QTest::newRow("grey with alpha") << std::vector<double>{0.25, 0.4} << 1 << false;
    QTest::newRow("outside of the range") << std::vector<double>{-0.5, 0, 7.5} << 3 << false;
    QTest::newRow("RGB with a profile") << std::vector<double>{0.1, 0.25, 0.8} << 3 << true;
    QTest::newRow("RGB with alpha and a profile") << std::vector<double>{0.1, 0.25, 0.8, 0.4} << 3 << true;
}

/// Light without a profile, the values of the profile with one.
void tst_WorkerColours::readsFloatingPoint()
{
    QFETCH(const std::vector<double>, values);
    QFETCH(const int, colours);
    QFETCH(const bool, hasProfile);

    const Picture plain = (Picture::black(32, 32, Picture::option()->set("bands", int(values.size()))) + values)
                              .cast(VIPS_FORMAT_FLOAT)
                              .copy(Picture::option()->set("interpretation", colours == 1 ? VIPS_INTERPRETATION_B_W
                                                                                          : VIPS_INTERPRETATION_scRGB));
    WritePicture(hasProfile ? WithProfile(plain, BuiltIn("p3")) : plain, bench->Path(Text("in.tif")));
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings), QStringList());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(result.format(), VIPS_FORMAT_USHORT);
    QCOMPARE(ProfileOf(result).isEmpty(), !hasProfile);
    const std::vector<double> found = Middle(result);
    QCOMPARE(found.size(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isAlpha = int(i) >= colours;
        const double bounded = std::min(1.0, std::max(0.0, values[i]));
        const double expected = 65535 * (isAlpha || hasProfile ? bounded : SrgbOf(bounded));
        QVERIFY2(std::abs(found[i] - expected) <= 40,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(found[i]).arg(expected)));
    }
}

void tst_WorkerColours::convertsToTheProfileOfTheJob_data()
{
    QTest::addColumn<bool>("hasProfile");
    QTest::addColumn<bool>("isDeep");
    QTest::addColumn<bool>("hasAlpha");
    QTest::newRow("from sRGB without a profile") << false << false << false;
    QTest::newRow("from an embedded profile") << true << false << false;
    QTest::newRow("16 bits") << false << true << false;
    QTest::newRow("with alpha") << false << false << true;
}

void tst_WorkerColours::convertsToTheProfileOfTheJob()
{
    QFETCH(const bool, hasProfile);
    QFETCH(const bool, isDeep);
    QFETCH(const bool, hasAlpha);

    const QByteArray own = BuiltIn(hasProfile ? "p3" : "srgb");
    const QByteArray wanted = BuiltIn(hasProfile ? "srgb" : "p3");
    Picture source = hasProfile ? WithProfile(Patches(), own) : Patches();
    if (isDeep) {
        source = source.linear(257, 0)
                     .cast(VIPS_FORMAT_USHORT)
                     .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    }
    if (hasAlpha) {
        source = source.bandjoin(100)
                     .cast(VIPS_FORMAT_UCHAR)
                     .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    }
    WritePicture(source, bench->Path(Text("in.png")));
    const Report report = bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), {},
                                      [&wanted](ZTBatchOutputSettings& output) { output.SetICCProfile(wanted); });
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings), QStringList());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(ProfileOf(result), wanted);
    QCOMPARE(result.format(), isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    QCOMPARE(result.bands(), hasAlpha ? 4 : 3);
    const Picture colours = hasAlpha ? result.extract_band(0, Picture::option()->set("n", 3)) : result;
    if (hasAlpha) {
        QCOMPARE(result.extract_band(3).min(), 100.0);
        QCOMPARE(result.extract_band(3).max(), 100.0);
    }

    // By way of the numbers: linear light, the primaries' matrices, and back. P3 and sRGB share their curve.
    const double toP3[9] = {0.8224621, 0.1775380, 0.0, 0.0331941, 0.9668058, 0.0, 0.0170827, 0.0723974, 0.9105199};
    const double toSrgb[9] = {1.2249401, -0.2249402, 0.0,        -0.0420569, 1.0420571,
                              0.0,       -0.0196376, -0.0786361, 1.0982735};
    const Picture matrix =
        Picture::new_matrix(3, 3, hasProfile ? const_cast<double*>(toSrgb) : const_cast<double*>(toP3), 9);
    const Picture light = (Patches() / 255.0);
    const Picture linear = (light <= 0.04045).ifthenelse(light / 12.92, ((light + 0.055) / 1.055).pow(2.4));
    const Picture moved = linear.recomb(matrix);
    const Picture clipped = (moved < 0).ifthenelse(0, (moved > 1).ifthenelse(1, moved));
    const Picture encoded = (clipped <= 0.0031308).ifthenelse(clipped * 12.92, clipped.pow(1 / 2.4) * 1.055 - 0.055);
    const double depth = isDeep ? 257.0 : 1.0;
    const double difference = LargestDifference(colours / depth, encoded * 255.0);
    // The profile's primaries are rounded: 0.6787 instead of 0.68, for one.
    QVERIFY2(difference < 3.5, qPrintable(QString::number(difference)));
}

void tst_WorkerColours::convertsWithoutProfileToSrgb()
{
    // A format that holds no profile, and a job that keeps none, both get sRGB: the colours stay right.
    WritePicture(WithProfile(Plain({200, 80, 60}), BuiltIn("p3")), bench->Path(Text("in.png")));
    const Picture expected =
        WithProfile(Plain({200, 80, 60}), BuiltIn("p3"))
            .icc_transform("srgb", Picture::option()->set("embedded", true)->set("intent", VIPS_INTENT_RELATIVE));
    const QJsonObject options{{Text("keep"), QJsonArray{Text("exif")}}};
    QCOMPARE(bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), options).reason, QString());
    const Picture png = ReadPicture(bench->Path(Text("out.png")));
    QVERIFY(ProfileOf(png).isEmpty());
    QVERIFY(LargestDifference(png, expected) <= 1.0);
    QCOMPARE(bench->Make(Text("in.png"), Text("out.gif"), Text("GIF")).reason, QString());
    const Picture gif = ReadPicture(bench->Path(Text("out.gif")));
    QVERIFY(LargestDifference(gif.extract_band(0, Picture::option()->set("n", 3)), expected) <= 4.0);
}

void tst_WorkerColours::fallsBackFromBrokenProfiles_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<bool>("isOfJob");
    QByteArray cut = BuiltIn("p3");
    cut.truncate(300);
    QTest::newRow("embedded nonsense") << QByteArray("no profile at all") << false;
    QTest::newRow("embedded, of inks") << BuiltIn("cmyk") << false;
    QTest::newRow("embedded, cut off") << cut << false;
    QTest::newRow("of the job, nonsense") << QByteArray("no profile at all") << true;
    QTest::newRow("of the job, cut off") << cut << true;
}

void tst_WorkerColours::fallsBackFromBrokenProfiles()
{
    QFETCH(const QByteArray, profile);
    QFETCH(const bool, isOfJob);

    WriteTiff(Patches(), isOfJob ? QByteArray() : profile, bench->Path(Text("in.tif")));
    const Report report =
        bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"), {}, [&](ZTBatchOutputSettings& output) {
            if (isOfJob) {
                output.SetICCProfile(profile);
            }
        });
    QCOMPARE(report.reason, QString());
    QVERIFY(!report.warnings.isEmpty());
    QVERIFY2(BatchJob::TextsOf(report.warnings).join(QLatin1Char('\n')).contains(Text("profile")),
             qPrintable(report.warnings.first().text));
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QVERIFY(ProfileOf(result).isEmpty());
    QCOMPARE(LargestDifference(result, Patches()), 0.0);
}

void tst_WorkerColours::keepsInks_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasProfile");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<QJsonObject>("options");
    const QJsonObject none;
    const QJsonObject onlyProfile{{Text("keep"), QJsonArray{Text("icc")}}};
    QTest::newRow("TIFF") << Text("TIFF") << Text("out.tif") << true << 0.0 << none;
    QTest::newRow("TIFF without profile") << Text("TIFF") << Text("out.tif") << false << 0.0 << none;
    QTest::newRow("JPEG") << Text("JPEG") << Text("out.jpg") << true << 2.0 << none;
    QTest::newRow("JPEG with nothing but the profile") << Text("JPEG") << Text("out.jpg") << true << 2.0 << onlyProfile;
}

void tst_WorkerColours::keepsInks()
{
    QFETCH(const QString, format);
    QFETCH(const QString, name);
    QFETCH(const bool, hasProfile);
    QFETCH(const double, tolerance);
    QFETCH(const QJsonObject, options);

    // Black ink alone must stay black ink alone.
    const Picture black = Plain({0, 0, 0, 240}, VIPS_INTERPRETATION_CMYK);
    WritePicture(hasProfile ? WithProfile(black, BuiltIn("cmyk")) : black, bench->Path(Text("in.tif")));
    const Report report = bench->Make(Text("in.tif"), name, format, options);
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings), QStringList());
    const Picture result = ReadPicture(bench->Path(name));
    QCOMPARE(result.interpretation(), VIPS_INTERPRETATION_CMYK);
    QCOMPARE(ProfileOf(result), hasProfile ? BuiltIn("cmyk") : QByteArray());
    QVERIFY(LargestDifference(result, black) <= tolerance);
}

void tst_WorkerColours::writesInksBackAfterEffects()
{
    const Picture inks = WithProfile(Plain({120, 60, 40, 10}, VIPS_INTERPRETATION_CMYK), BuiltIn("cmyk"));
    WritePicture(inks, bench->Path(Text("in.tif")));
    const Job job = JobOf([](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(Text("TIFF"), {});
        document.GetStyle()->AppendEffect(Text("exposure"), "{\"stops\":0}", true);
    });
    const Report report = bench->Make(Text("in.tif"), Text("out.tif"), Text("TIFF"), job);
    QCOMPARE(report.reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.tif")));
    QCOMPARE(result.interpretation(), VIPS_INTERPRETATION_CMYK);
    QCOMPARE(ProfileOf(result), BuiltIn("cmyk"));
    // The mix of inks may differ, the colour may not.
    const auto seen = [](const Picture& picture) {
        return picture.icc_transform("srgb", Picture::option()->set("embedded", true));
    };
    const double difference = LargestDifference(seen(result), seen(inks));
    QVERIFY2(difference <= 6.0, qPrintable(QString::number(difference)));
}

void tst_WorkerColours::turnsInksIntoSrgb()
{
    const Picture inks = WithProfile(Plain({0, 200, 200, 0}, VIPS_INTERPRETATION_CMYK), BuiltIn("cmyk"));
    WritePicture(inks, bench->Path(Text("in.tif")));
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(result.bands(), 3);
    const std::vector<double> expected = Middle(
        inks.icc_transform("srgb", Picture::option()->set("embedded", true)->set("black_point_compensation", true)));
    const std::vector<double> pixel = Middle(result);
    for (std::size_t i = 0; i < 3; ++i) {
        QVERIFY(std::abs(pixel[i] - expected[i]) <= 1);
    }
    QVERIFY(pixel[0] > pixel[1] + 60);
}

void tst_WorkerColours::refusesInksWhereThereIsNoPlace()
{
    WritePicture(Patches(), bench->Path(Text("in.png")));
    const auto edit = [](ZTBatchOutputSettings& output) { output.SetICCProfile(BuiltIn("cmyk")); };
    const Report png = bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), {}, edit);
    QCOMPARE(png.failure, PolicyKind::WriteToFormat);
    QCOMPARE(png.errorCode, qint32(ZTBatchMessage::UnsupportedOutputFormat));
    QCOMPARE(png.nearestFormat, Text("JPEG"));
    const Report jpeg = bench->Make(Text("in.png"), Text("out.jpg"), Text("JPEG"), {}, edit);
    QCOMPARE(jpeg.reason, QString());
    QCOMPARE(ReadPicture(bench->Path(Text("out.jpg"))).interpretation(), VIPS_INTERPRETATION_CMYK);
}

QTEST_GUILESS_MAIN(tst_WorkerColours)
#include "tst_workercolours.moc"
