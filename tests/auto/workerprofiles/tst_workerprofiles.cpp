// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourJudge.h"
#include "PngParts.h"
#include "Text.h"
#include "WorkerBench.h"

#include "server/worker/pixels/EmbeddedProfile.h"

#include <QJsonArray>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace ColourJudge;

namespace {

// Away from the limits of sRGB when they are read as Display P3.
QVector<Colour> Patches()
{
    return {{0.7, 0.4, 0.35}, {0.4, 0.6, 0.45}, {0.35, 0.4, 0.65}, {0.5, 0.5, 0.5}, {0.8, 0.7, 0.5}, {0.2, 0.25, 0.3}};
}

QVector<Colour> Greys()
{
    return {{0.05, 0.05, 0.05}, {0.3, 0.3, 0.3}, {0.6, 0.6, 0.6}, {0.95, 0.95, 0.95}};
}

// The profile in a file of any format that stores it as it is: from its size to its end, found by its signature.
QByteArray ProfileIn(const QByteArray& file)
{
    constexpr int placeOfSignature = 36;
    for (int found = file.indexOf("acsp"); found >= 0; found = file.indexOf("acsp", found + 1)) {
        const QByteArray rest = file.mid(found - placeOfSignature);
        const int size = int(quint8(rest[1])) << 16 | int(quint8(rest[2])) << 8 | int(quint8(rest[3]));
        if (found >= placeOfSignature && size <= rest.size()) {
            return rest.left(size);
        }
    }
    return {};
}

} // namespace

/// Profiles that need care: tables without the usual intent, curves and kinds that a result cannot keep, profiles that
/// do not fit into a file.
class tst_WorkerProfiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void readsTablesForPerceptualUse();
    void convertsScrambledColours();
    void takesColoursNotNamesForSrgb();
    void writesGreyWithAProfile_data();
    void writesGreyWithAProfile();
    void writesGreyInTheProfileOfTheJob();
    void readsRgbWithAProfileOfGrey();
    void bendsLightForEightBits_data();
    void bendsLightForEightBits();
    void keepsLightInSixteenBits();
    void writesTheProfileIntoEachFormat_data();
    void writesTheProfileIntoEachFormat();
    void convertsWhatAFileCannotCarry();
    void readsInksOfAnyForm_data();
    void readsInksOfAnyForm();

private:
    void WriteTiff(const QVector<Colour>& patches, const QByteArray& profile, int bits = 8, int channels = 3);
    QVector<Colour> Found(const char* name, int count) const { return PatchesOf(bench->Path(Text(name)), count); }

    std::unique_ptr<WorkerBench> bench;
    Report report;
};

void tst_WorkerProfiles::initTestCase()
{
    StartPictures();
}

void tst_WorkerProfiles::init()
{
    bench = std::make_unique<WorkerBench>();
}

// The file in.tif.
void tst_WorkerProfiles::WriteTiff(const QVector<Colour>& patches, const QByteArray& profile, int bits, int channels)
{
    bench->WriteBytes(Text("plain.png"), PngParts::File(patches, {}, bits, channels));
    ::WriteTiff(ReadPicture(bench->Path(Text("plain.png"))), profile, bench->Path(Text("in.tif")));
}

void tst_WorkerProfiles::readsTablesForPerceptualUse()
{
    const QByteArray profile = TableProfile(false);
    WriteTiff(Patches(), profile);
    report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"), {{Text("keep"), QJsonArray{}}});
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray result = bench->Bytes(Text("out.png"));
    QVERIFY(PngParts::ProfileOf(result).isEmpty());
    const double converted = LargestDeltaE(profile, Patches(), {}, Found("out.png", Patches().size()));
    QVERIFY2(converted < 1.5, qPrintable(QString::number(converted)));

    report = bench->Make(Text("in.tif"), Text("kept.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(PngParts::ProfileOf(bench->Bytes(Text("kept.png"))), profile);
}

void tst_WorkerProfiles::convertsScrambledColours()
{
    const QByteArray profile = TableProfile(true);
    QVector<Colour> stored;
    for (const Colour& patch : Patches()) {
        stored.append(Scrambled(patch));
    }
    WriteTiff(stored, profile);
    report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    const QByteArray found = PngParts::ProfileOf(bench->Bytes(Text("out.png")));
    const double difference = LargestDeltaE(profile, stored, found, Found("out.png", stored.size()));
    QVERIFY2(difference < 2.0, qPrintable(QString::number(difference)));
    const double ofOriginal =
        LargestDeltaE(RgbProfile(displayP3, Power(2.2)), Patches(), found, Found("out.png", stored.size()));
    QVERIFY2(ofOriginal < 3.0, qPrintable(QString::number(ofOriginal)));
    QCOMPARE(report.warnings.size(), 1);
    QVERIFY(report.warnings.first().kind == WarningKind::ColoursConverted);
}

/// Linear light in the primaries of sRGB has "sRGB" in its name, too.
void tst_WorkerProfiles::takesColoursNotNamesForSrgb()
{
    QByteArray linear = RgbProfile(srgb, Power(1.0));
    const QByteArray old("R\0G\0B\0 \0b\0u\0i\0l\0t", 15);
    QByteArray named = linear;
    const int place = named.indexOf(old);
    QVERIFY(place > 0);
    named.replace(place, old.size(), QByteArray("s\0R\0G\0B\0 \0l\0i\0n", 15));
    WriteTiff(Patches(), named, 16);
    report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"), {{Text("keep"), QJsonArray{}}});
    QCOMPARE(report.reason, QString());
    const double difference = LargestDeltaE(linear, Patches(), {}, Found("out.png", Patches().size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));
}

void tst_WorkerProfiles::writesGreyWithAProfile_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("space");
    const QByteArray grey("GRAY");
    const QByteArray rgb("RGB ");
    QTest::newRow("JPEG") << Text("JPEG") << grey;
    QTest::newRow("PNG") << Text("PNG") << grey;
    QTest::newRow("TIFF") << Text("TIFF") << grey;
    QTest::newRow("WebP") << Text("WebP") << rgb;
    QTest::newRow("HEIF") << Text("HEIF") << rgb;
    QTest::newRow("AVIF") << Text("AVIF") << rgb;
    QTest::newRow("JPEG XL") << Text("JPEG XL") << grey;
    QTest::newRow("JPEG 2000") << Text("JPEG 2000") << grey;
}

void tst_WorkerProfiles::writesGreyWithAProfile()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, space);
    SKIP_WHERE(MissingEncoder(format));

    const QByteArray profile = GreyProfile(Power(1.6));
    WriteTiff(Greys(), profile, 8, 1);
    report = bench->Make(Text("in.tif"), Text("out"), format);
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray file = bench->Bytes(Text("out"));
    const QByteArray stored = format == Text("PNG") ? PngParts::ProfileOf(file) : ProfileIn(file);
    const bool isPacked = format == Text("JPEG XL");
    const QByteArray found = isPacked ? BatchWorker::ProfileOf(ReadPicture(bench->Path(Text("out")))) : stored;
    QCOMPARE(SpaceOf(found), space);
    QCOMPARE(space == "GRAY", ReadPicture(bench->Path(Text("out"))).bands() == 1);
    const double difference = LargestDeltaE(profile, Greys(), found, Found("out", Greys().size()));
    QVERIFY2(difference < 2.0, qPrintable(QString::number(difference)));
}

void tst_WorkerProfiles::writesGreyInTheProfileOfTheJob()
{
    const QByteArray own = GreyProfile(Power(1.6));
    const QByteArray wanted = GreyProfile(Power(2.4));
    WriteTiff(Greys(), own, 8, 1);
    report = bench->Make(Text("in.tif"), Text("out.webp"), Text("WebP"), {{Text("lossless"), true}},
                         [&wanted](ZTBatchOutputSettings& output) { output.SetICCProfile(wanted); });
    QCOMPARE(report.reason, QString());
    const QByteArray found = ProfileIn(bench->Bytes(Text("out.webp")));
    QCOMPARE(SpaceOf(found), QByteArray("RGB "));
    const double difference = LargestDeltaE(own, Greys(), found, Found("out.webp", Greys().size()));
    QVERIFY2(difference < 1.0, qPrintable(QString::number(difference)));
}

void tst_WorkerProfiles::readsRgbWithAProfileOfGrey()
{
    const QByteArray profile = GreyProfile(Power(1.6));
    WriteTiff(Greys(), profile);
    report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray found = PngParts::ProfileOf(bench->Bytes(Text("out.png")));
    QCOMPARE(SpaceOf(found), QByteArray("RGB "));
    const double difference = LargestDeltaE(profile, Greys(), found, Found("out.png", Greys().size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));
}

void tst_WorkerProfiles::bendsLightForEightBits_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<int>("channels");
    QTest::addColumn<QString>("format");
    QTest::newRow("linear Rec. 2020") << RgbProfile(rec2020, Power(1.0)) << 3 << Text("PNG");
    QTest::newRow("linear sRGB to JPEG") << RgbProfile(srgb, Power(1.0)) << 3 << Text("JPEG");
    QTest::newRow("exponent 1.2") << RgbProfile(displayP3, Power(1.2)) << 3 << Text("PNG");
    QTest::newRow("linear grey") << GreyProfile(Power(1.0)) << 1 << Text("PNG");
}

/// In 8 bits of linear light, the darkest of these steps would be the same value.
void tst_WorkerProfiles::bendsLightForEightBits()
{
    QFETCH(const QByteArray, profile);
    QFETCH(const int, channels);
    QFETCH(const QString, format);

    const QVector<Colour> shadows{{0.0040, 0.0040, 0.0040}, {0.0046, 0.0046, 0.0046}, {0.0052, 0.0052, 0.0052},
                                  {0.02, 0.02, 0.02},       {0.5, 0.5, 0.5},          {1.0, 1.0, 1.0}};
    WriteTiff(shadows, profile, 16, channels);
    report =
        bench->Make(Text("in.tif"), Text("out"), format,
                    format == Text("PNG") ? QJsonObject{{Text("bitDepth"), 8}} : QJsonObject{{Text("quality"), 100}});
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray file = bench->Bytes(Text("out"));
    const QByteArray found = format == Text("PNG") ? PngParts::ProfileOf(file) : ProfileIn(file);
    const double difference = LargestDeltaE(profile, shadows, found, Found("out", shadows.size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));
}

void tst_WorkerProfiles::keepsLightInSixteenBits()
{
    const QByteArray profile = RgbProfile(rec2020, Power(1.0));
    WriteTiff(Patches(), profile, 16);
    QCOMPARE(bench->Make(Text("in.tif"), Text("out.png"), Text("PNG")).reason, QString());
    QCOMPARE(PngParts::ProfileOf(bench->Bytes(Text("out.png"))), profile);
}

void tst_WorkerProfiles::writesTheProfileIntoEachFormat_data()
{
    QTest::addColumn<QString>("format");
    for (const char* const format : {"JPEG", "TIFF", "WebP", "HEIF", "AVIF", "JPEG 2000"}) {
        QTest::newRow(format) << Text(format);
    }
}

void tst_WorkerProfiles::writesTheProfileIntoEachFormat()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    const QByteArray profile = RgbProfile(displayP3, SrgbLight);
    WriteTiff(Patches(), profile);
    report = bench->Make(Text("in.tif"), Text("out"), format);
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    QVERIFY(bench->Bytes(Text("out")).contains(profile));
}

/// A JPEG file has room for 255 pieces of a profile of 64 KiB each.
void tst_WorkerProfiles::convertsWhatAFileCannotCarry()
{
    constexpr int tooLarge = 17 << 20;
    const QByteArray own = RgbProfile(displayP3, SrgbLight);
    const QByteArray longer = PngParts::BigEndian(tooLarge) + own.mid(4) + QByteArray(tooLarge - own.size(), '\0');
    WriteTiff(Patches(), longer);
    report = bench->Make(Text("in.tif"), Text("out.jpg"), Text("JPEG"), {{Text("quality"), 100}});
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QVERIFY(report.warnings.first().kind == WarningKind::ColoursConverted);
    QVERIFY(!bench->Bytes(Text("out.jpg")).contains("acsp"));
    const double difference = LargestDeltaE(own, Patches(), {}, Found("out.jpg", Patches().size()));
    QVERIFY2(difference < 2.0, qPrintable(QString::number(difference)));
}

void tst_WorkerProfiles::readsInksOfAnyForm_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("vipsFormat");
    QTest::newRow("8 bits") << 4 << int(VIPS_FORMAT_UCHAR);
    QTest::newRow("8 bits with alpha") << 5 << int(VIPS_FORMAT_UCHAR);
    QTest::newRow("8 bits with two spot colours") << 6 << int(VIPS_FORMAT_UCHAR);
    QTest::newRow("16 bits") << 4 << int(VIPS_FORMAT_USHORT);
    QTest::newRow("32 bits") << 4 << int(VIPS_FORMAT_UINT);
    QTest::newRow("floating point") << 4 << int(VIPS_FORMAT_FLOAT);
}

void tst_WorkerProfiles::readsInksOfAnyForm()
{
    QFETCH(const int, channels);
    QFETCH(const int, vipsFormat);

    const std::vector<double> inks{0.0, 0.8, 0.6, 0.2, 1.0, 0.5};
    const QHash<int, double> largest{{VIPS_FORMAT_UCHAR, 255.0},
                                     {VIPS_FORMAT_USHORT, 65'535.0},
                                     {VIPS_FORMAT_UINT, 4'294'967'295.0},
                                     {VIPS_FORMAT_FLOAT, 1.0}};
    std::vector<double> values(inks.begin(), inks.begin() + channels);
    for (double& value : values) {
        value *= largest[vipsFormat];
    }
    using BatchWorker::Picture;
    const Picture picture = (Picture::black(16, 16, Picture::option()->set("bands", channels)) + values)
                                .cast(VipsBandFormat(vipsFormat))
                                .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_CMYK));
    WritePicture(picture, bench->Path(Text("in.tif")));
    report = bench->Make(Text("in.tif"), Text("out.jpg"), Text("JPEG"), {{Text("quality"), 100}});
    QCOMPARE(report.reason, QString());
    report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    const Colour found = Found("out.png", 1).first();
    const Picture plain =
        picture.extract_band(0, Picture::option()->set("n", 4)).linear(255 / largest[vipsFormat], 0.5);
    const std::vector<double> expected = plain.cast(VIPS_FORMAT_UCHAR)
                                             .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_CMYK))
                                             .icc_transform("srgb", Picture::option()
                                                                        ->set("input_profile", "cmyk")
                                                                        ->set("intent", VIPS_INTENT_RELATIVE)
                                                                        ->set("black_point_compensation", true))
                                             .getpoint(8, 8);
    for (std::size_t channel = 0; channel < 3; ++channel) {
        QVERIFY2(qAbs(found[channel] * 255 - expected[channel]) < 3,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(found[channel] * 255).arg(expected[channel])));
    }
}

QTEST_GUILESS_MAIN(tst_WorkerProfiles)
#include "tst_workerprofiles.moc"
