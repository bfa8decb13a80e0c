// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourJudge.h"
#include "PngParts.h"
#include "Text.h"
#include "WorkerBench.h"

#include "server/worker/pixels/EmbeddedProfile.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <ctime>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace ColourJudge;

namespace {

// Exact in 8 bits.
QVector<Colour> Patches()
{
    return {{0.8, 0.2, 0.2}, {0.2, 0.6, 0.4}, {0.2, 0.4, 0.8}, {0.6, 0.6, 0.6}, {1.0, 0.8, 0.2}, {0.0, 0.2, 0.0}};
}

// One more byte at the end, which makes the length odd.
QByteArray WithOddLength(const QByteArray& profile)
{
    const QByteArray longer = profile + '\0';
    return PngParts::BigEndian(quint32(longer.size())) + longer.mid(4);
}

QByteArray With(QByteArray profile, int place, char byte)
{
    profile[place] = byte;
    return profile;
}

constexpr int lastOfSize = 3;
constexpr int firstOfIntent = 64;
constexpr int lastOfIlluminant = 79;

void AddOddProfiles()
{
    QTest::addColumn<QByteArray>("profile");
    const QByteArray p3 = RgbProfile(displayP3, SrgbLight);
    QTest::newRow("Display P3") << p3;
    QTest::newRow("Display P3 of an odd length") << WithOddLength(p3);
    QTest::newRow("Rec. 2020, longer than its header says")
        << RgbProfile(rec2020, TelevisionLight) + QByteArray(3, '\0');
    QTest::newRow("ProPhoto with an intent that does not exist")
        << With(RgbProfile(proPhoto, Power(1.8)), firstOfIntent, '\x7f');
    QTest::newRow("ProPhoto with a rounded white") << With(RgbProfile(proPhoto, Power(1.8)), lastOfIlluminant, '\x2e');
}

QByteArray Chromaticities(const Points& points)
{
    QByteArray content;
    for (const double number : points) {
        content += PngParts::BigEndian(quint32(std::lround(number * 100'000)));
    }
    return PngParts::Chunk("cHRM", content);
}

QByteArray Gamma(quint32 number)
{
    return PngParts::Chunk("gAMA", PngParts::BigEndian(number));
}

QByteArray Numbers(int primaries, int transfer, int matrix = 0, int range = 1)
{
    return PngParts::Chunk("cICP", QByteArray(1, char(primaries)) + char(transfer) + char(matrix) + char(range));
}

QByteArray Srgb()
{
    return PngParts::Chunk("sRGB", QByteArray(1, '\0'));
}

} // namespace

/// The colours of PNG files: what their chunks say, and profiles that the PNG library finds out of form.
class tst_PngColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void keepsProfilesOfSources_data();
    void keepsProfilesOfSources();
    void writesProfiles_data();
    void writesProfiles();
    void keepsGreyWithAProfileOfRgb_data();
    void keepsGreyWithAProfileOfRgb();
    void warnsOfDamagedProfiles_data();
    void warnsOfDamagedProfiles();
    void usesChunks_data();
    void usesChunks();
    void ignoresNonsense_data();
    void ignoresNonsense();
    void expandsNarrowRange();
    void generatesTheSameBytesTwice();

private:
    QByteArray Made(const QByteArray& input, const char* name = "in.png");

    std::unique_ptr<WorkerBench> bench;
    Report report;
};

void tst_PngColours::initTestCase()
{
    StartPictures();
}

void tst_PngColours::init()
{
    bench = std::make_unique<WorkerBench>();
}

// The PNG result of the file `input`.
QByteArray tst_PngColours::Made(const QByteArray& input, const char* name)
{
    bench->WriteBytes(Text(name), input);
    report = bench->Make(Text(name), Text("out.png"), Text("PNG"));
    return bench->Bytes(Text("out.png"));
}

void tst_PngColours::keepsProfilesOfSources_data()
{
    AddOddProfiles();
}

void tst_PngColours::keepsProfilesOfSources()
{
    QFETCH(const QByteArray, profile);

    const QByteArray result = Made(PngParts::File(Patches(), PngParts::ProfileChunk(profile)));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    QCOMPARE(PngParts::ProfileOf(result), profile);
    const double difference =
        LargestDeltaE(profile, Patches(), profile, PatchesOf(bench->Path(Text("out.png")), Patches().size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));

    // In a job with a profile, too, the source's own counts.
    const QByteArray wide = RgbProfile(proPhoto, Power(1.8));
    report = bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), {{Text("bitDepth"), 16}},
                         [&wide](ZTBatchOutputSettings& output) { output.SetICCProfile(wide); });
    QCOMPARE(report.reason, QString());
    const QByteArray converted = bench->Bytes(Text("out.png"));
    QCOMPARE(PngParts::ProfileOf(converted), wide);
    const double afterwards =
        LargestDeltaE(profile, Patches(), wide, PatchesOf(bench->Path(Text("out.png")), Patches().size()));
    QVERIFY2(afterwards < 2.5, qPrintable(QString::number(afterwards)));
}

void tst_PngColours::writesProfiles_data()
{
    AddOddProfiles();
}

void tst_PngColours::writesProfiles()
{
    QFETCH(const QByteArray, profile);

    bench->WriteBytes(Text("plain.png"), PngParts::File(Patches(), {}));
    WritePicture(BatchWorker::WithProfile(ReadPicture(bench->Path(Text("plain.png"))), profile),
                 bench->Path(Text("in.tif")));
    report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    QCOMPARE(PngParts::ProfileOf(bench->Bytes(Text("out.png"))), profile);
}

void tst_PngColours::keepsGreyWithAProfileOfRgb_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::newRow("curve of sRGB") << RgbProfile(displayP3, SrgbLight);
    QTest::newRow("exponent 1.8") << RgbProfile(proPhoto, Power(1.8));
    QTest::newRow("exponent 2.4") << RgbProfile(rec2020, Power(2.4));
}

void tst_PngColours::keepsGreyWithAProfileOfRgb()
{
    QFETCH(const QByteArray, profile);

    const QVector<Colour> greys{{0.1, 0.1, 0.1}, {0.4, 0.4, 0.4}, {0.6, 0.6, 0.6}, {0.9, 0.9, 0.9}};
    const QByteArray result = Made(PngParts::File(greys, PngParts::ProfileChunk(profile), 8, 1));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray found = PngParts::ProfileOf(result);
    QCOMPARE(SpaceOf(found), QByteArray("GRAY"));
    const double difference =
        LargestDeltaE(profile, greys, found, PatchesOf(bench->Path(Text("out.png")), greys.size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));
}

void tst_PngColours::warnsOfDamagedProfiles_data()
{
    QTest::addColumn<QByteArray>("chunk");
    const QByteArray profile = RgbProfile(displayP3, SrgbLight);
    const QByteArray whole = PngParts::ProfileChunk(profile);
    QTest::newRow("not packed") << PngParts::Chunk("iCCP", QByteArray("name\0\0", 6) + profile);
    QTest::newRow("cut off") << PngParts::Chunk("iCCP", whole.mid(8, whole.size() / 2));
    QTest::newRow("a name only") << PngParts::Chunk("iCCP", "name");
    QTest::newRow("no profile") << PngParts::ProfileChunk(QByteArray(200, 'x'));
    QTest::newRow("a bomb") << PngParts::ProfileChunk(QByteArray(64 << 20, '\0'));
}

void tst_PngColours::warnsOfDamagedProfiles()
{
    QFETCH(const QByteArray, chunk);

    const QByteArray result = Made(PngParts::File(Patches(), chunk));
    QCOMPARE(report.reason, QString());
    const auto isOfProfile = [](const Warning& warning) { return warning.kind == WarningKind::ProfileUnused; };
    QCOMPARE(int(std::count_if(report.warnings.begin(), report.warnings.end(), isOfProfile)), 1);
    QVERIFY(PngParts::ProfileOf(result).isEmpty());
}

void tst_PngColours::usesChunks_data()
{
    QTest::addColumn<QByteArray>("chunks");
    QTest::addColumn<QByteArray>("profile"); // empty: sRGB, and the result has none
    const QByteArray none;
    const QByteArray embedded = PngParts::ProfileChunk(RgbProfile(adobe, Power(2.2)));
    QTest::newRow("cICP: Display P3") << Numbers(12, 13) << RgbProfile(displayP3, SrgbLight);
    QTest::newRow("cICP: Rec. 2020") << Numbers(9, 14) << RgbProfile(rec2020, TelevisionLight);
    QTest::newRow("cICP: BT.601, exponent 2.8") << Numbers(5, 5) << RgbProfile(bt601, Power(2.8));
    QTest::newRow("cICP: linear") << Numbers(1, 8) << RgbProfile(srgb, Power(1.0));
    QTest::newRow("cICP: sRGB") << Numbers(1, 13) << none;
    QTest::newRow("cICP before iCCP") << Numbers(12, 13) + embedded << RgbProfile(displayP3, SrgbLight);
    QTest::newRow("cICP of sRGB before iCCP") << Numbers(1, 13) + embedded << none;
    QTest::newRow("iCCP before gAMA") << Gamma(100'000) + embedded << RgbProfile(adobe, Power(2.2));
    QTest::newRow("sRGB before gAMA") << Srgb() + Gamma(100'000) + Chromaticities(rec2020) << none;
    QTest::newRow("gAMA and cHRM of sRGB") << Gamma(45'455) + Chromaticities(srgb) << none;
    QTest::newRow("gAMA of sRGB") << Gamma(45'455) << none;
    QTest::newRow("gAMA 1") << Gamma(100'000) << RgbProfile(srgb, Power(1.0));
    QTest::newRow("gAMA 1/1.8") << Gamma(55'556) << RgbProfile(srgb, Power(1.8));
    QTest::newRow("gAMA and cHRM of Adobe RGB")
        << Gamma(45'455) + Chromaticities(adobe) << RgbProfile(adobe, Power(2.2));
    QTest::newRow("cHRM of P3 alone") << Chromaticities(displayP3) << RgbProfile(displayP3, SrgbLight);
    QTest::newRow("gAMA and cHRM of ProPhoto")
        << Gamma(55'556) + Chromaticities(proPhoto) << RgbProfile(proPhoto, Power(1.8));
}

void tst_PngColours::usesChunks()
{
    QFETCH(const QByteArray, chunks);
    QFETCH(const QByteArray, profile);

    const QByteArray result = Made(PngParts::File(Patches(), chunks));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray found = PngParts::ProfileOf(result);
    QCOMPARE(found.isEmpty(), profile.isEmpty());
    const double difference =
        LargestDeltaE(profile, Patches(), found, PatchesOf(bench->Path(Text("out.png")), Patches().size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));
}

void tst_PngColours::ignoresNonsense_data()
{
    QTest::addColumn<QByteArray>("chunks");
    QTest::newRow("gAMA 0") << Gamma(0);
    QTest::newRow("gAMA nearly 0") << Gamma(1);
    QTest::newRow("gAMA of 42950") << Gamma(0xffffffffU);
    QTest::newRow("gAMA too short") << PngParts::Chunk("gAMA", "x");
    QTest::newRow("cHRM of zeros") << PngParts::Chunk("cHRM", QByteArray(32, '\0'));
    QTest::newRow("cHRM too short") << PngParts::Chunk("cHRM", QByteArray(16, '\x01'));
    QTest::newRow("cHRM on one line") << Chromaticities({0.3127, 0.3290, 0.1, 0.1, 0.2, 0.2, 0.3, 0.3});
    QTest::newRow("cHRM, white outside") << Chromaticities({0.7, 0.1, 0.64, 0.33, 0.30, 0.60, 0.15, 0.06});
    QTest::newRow("cICP, reserved numbers") << Numbers(3, 13);
    QTest::newRow("cICP with a matrix") << Numbers(9, 14, 9);
    QTest::newRow("cICP too short") << PngParts::Chunk("cICP", "\x09");
}

void tst_PngColours::ignoresNonsense()
{
    QFETCH(const QByteArray, chunks);

    const QByteArray result = Made(PngParts::File(Patches(), chunks));
    QCOMPARE(report.reason, QString());
    QVERIFY(PngParts::ProfileOf(result).isEmpty());
    const double difference =
        LargestDeltaE({}, Patches(), {}, PatchesOf(bench->Path(Text("out.png")), Patches().size()));
    QVERIFY2(difference < 0.5, qPrintable(QString::number(difference)));
}

void tst_PngColours::expandsNarrowRange()
{
    QVector<Colour> narrow;
    for (const Colour& patch : Patches()) {
        const auto within = [](double value) { return (16 + 219 * value) / 255; };
        narrow.append({within(patch[0]), within(patch[1]), within(patch[2])});
    }
    const QByteArray result = Made(PngParts::File(narrow, Numbers(12, 13, 0, 0)));
    QCOMPARE(report.reason, QString());
    const double difference = LargestDeltaE(RgbProfile(displayP3, SrgbLight), Patches(), PngParts::ProfileOf(result),
                                            PatchesOf(bench->Path(Text("out.png")), Patches().size()));
    QVERIFY2(difference < 1.0, qPrintable(QString::number(difference)));
}

void tst_PngColours::generatesTheSameBytesTwice()
{
    const QByteArray source = PngParts::File(Patches(), Numbers(12, 13));
    const QByteArray first = Made(source);
    QVERIFY(!PngParts::ProfileOf(first).isEmpty());
    // lcms writes into a profile in which second it was made.
    const std::time_t then = std::time(nullptr);
    QTRY_VERIFY(std::time(nullptr) != then);
    QCOMPARE(Made(source), first);
}

QTEST_GUILESS_MAIN(tst_PngColours)
#include "tst_pngcolours.moc"
