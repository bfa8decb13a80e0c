// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourJudge.h"
#include "HdrAnchors.h"
#include "PngParts.h"
#include "Text.h"
#include "WorkerBench.h"

#include <QFile>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace ColourJudge;
using namespace HdrAnchors;

namespace {

QByteArray Stored(const char* name)
{
    QFile file(QStringLiteral(COLOURS_DATA) + Text(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the files without HDR show.
QVector<Colour> Patches()
{
    return {{0.8, 0.2, 0.2}, {0.2, 0.7, 0.3}, {0.2, 0.3, 0.8}, {0.5, 0.5, 0.5}, {0.9, 0.8, 0.2}, {1, 1, 1}};
}

QByteArray Numbers(int transfer)
{
    constexpr char rec2100 = 9;
    return PngParts::Chunk("cICP", QByteArray(1, rec2100) + char(transfer) + '\0' + '\1');
}

constexpr int perceptualQuantizer = 16;
constexpr int hybridLogGamma = 18;

} // namespace

/// Pictures that say by numbers (ITU-T H.273) what their colours are: nclx of HEIF and AVIF, and HDR of any kind.
class tst_CodedColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void givesAProfile_data();
    void givesAProfile();
    void prefersTheEmbeddedProfile();
    void ignoresNumbersOfSrgb();
    void warnsOfUnknownNumbers();
    void mapsHdr_data();
    void mapsHdr();
    void mapsHdrOfHeif_data();
    void mapsHdrOfHeif();
    void keepsWhiteOfDeepHeif();

private:
    Report Made(const char* input, const char* output = "out.png", const char* format = "PNG",
                const QJsonObject& options = {});

    std::unique_ptr<WorkerBench> bench;
};

void tst_CodedColours::initTestCase()
{
    StartPictures();
}

void tst_CodedColours::init()
{
    bench = std::make_unique<WorkerBench>();
}

Report tst_CodedColours::Made(const char* input, const char* output, const char* format, const QJsonObject& options)
{
    return bench->Make(Text(input), Text(output), Text(format), options);
}

void tst_CodedColours::givesAProfile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("profile");
    QTest::newRow("Display P3, 8 bits, of a grid") << Text("p3-8.heic") << RgbProfile(displayP3, SrgbLight);
    QTest::newRow("Rec. 2020, 10 bits") << Text("rec2020-10.avif") << RgbProfile(rec2020, TelevisionLight);
    QTest::newRow("BT.601, 8 bits") << Text("bt601-8.avif") << RgbProfile(bt601, TelevisionLight);
}

void tst_CodedColours::givesAProfile()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, profile);

    bench->WriteBytes(name, Stored(qPrintable(name)));
    const Report report = Made(qPrintable(name));
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray found = PngParts::ProfileOf(bench->Bytes(Text("out.png")));
    QCOMPARE(SpaceOf(found), QByteArray("RGB "));
    const double difference =
        LargestDeltaE(profile, Patches(), found, PatchesOf(bench->Path(Text("out.png")), Patches().size()));
    QVERIFY2(difference < 1.5, qPrintable(QString::number(difference)));
}

/// Both in one file: an ICC profile counts.
void tst_CodedColours::prefersTheEmbeddedProfile()
{
    const QByteArray file = Stored("icc-and-nclx.avif");
    QVERIFY(file.contains("nclx"));
    bench->WriteBytes(Text("in.avif"), file);
    const Report report = Made("in.avif");
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray found = PngParts::ProfileOf(bench->Bytes(Text("out.png")));
    QVERIFY(!found.isEmpty());
    QVERIFY(file.contains(found));
}

void tst_CodedColours::ignoresNumbersOfSrgb()
{
    QByteArray file = Stored("p3-8.heic");
    const int place = file.indexOf("nclx");
    QVERIFY(place > 0);
    file[place + 5] = 1; // primaries
    bench->WriteBytes(Text("in.heic"), file);
    const Report report = Made("in.heic");
    QCOMPARE(report.reason, QString());
    QCOMPARE(TextsOf(report.warnings), QStringList());
    QVERIFY(PngParts::ProfileOf(bench->Bytes(Text("out.png"))).isEmpty());
}

void tst_CodedColours::warnsOfUnknownNumbers()
{
    QByteArray file = Stored("p3-8.heic");
    const int place = file.indexOf("nclx");
    QVERIFY(place > 0);
    file[place + 7] = 9; // transfer: logarithmic
    bench->WriteBytes(Text("in.heic"), file);
    const Report report = Made("in.heic");
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QVERIFY(report.warnings.first().kind == WarningKind::ProfileUnused);
}

void tst_CodedColours::mapsHdr_data()
{
    QTest::addColumn<int>("transfer");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("channels");
    QTest::newRow("PQ, 16 bits") << perceptualQuantizer << 16 << 3;
    QTest::newRow("PQ, 8 bits") << perceptualQuantizer << 8 << 3;
    QTest::newRow("PQ, grey") << perceptualQuantizer << 16 << 1;
    QTest::newRow("HLG, 16 bits") << hybridLogGamma << 16 << 3;
    QTest::newRow("HLG, 8 bits") << hybridLogGamma << 8 << 3;
}

void tst_CodedColours::mapsHdr()
{
    QFETCH(const int, transfer);
    QFETCH(const int, bits);
    QFETCH(const int, channels);

    const QVector<Anchor> anchors = transfer == perceptualQuantizer ? OfPq() : OfHlg();
    bench->WriteBytes(Text("in.png"), PngParts::File(HdrOf(anchors), Numbers(transfer), bits, channels));
    const Report report = Made("in.png");
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QVERIFY(report.warnings.first().kind == WarningKind::ColoursConverted);
    const QByteArray result = bench->Bytes(Text("out.png"));
    QVERIFY(PngParts::ContentOf(result, "cICP").isEmpty());
    const QByteArray profile = PngParts::ProfileOf(result);
    const double ofProfile = LargestDeltaE(channels == 1 ? GreyProfile(SrgbLight) : RgbProfile(rec2020, SrgbLight),
                                           Patches(), profile, Patches());
    QVERIFY2(ofProfile < 0.5, qPrintable(QString::number(ofProfile)));
    const QVector<Colour> found = PatchesOf(bench->Path(Text("out.png")), anchors.size());
    const double tolerance = bits == 16 ? 0.0005 : 0.012; // a step of PQ at 8 bits is that wide
    QVERIFY2(LargestDifference(anchors, found) < tolerance,
             qPrintable(QString::number(LargestDifference(anchors, found))));
}

void tst_CodedColours::mapsHdrOfHeif_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVector<double>>("greens"); // of the result, patch by patch
    QTest::newRow("PQ, 10 bits") << Text("pq-10.avif") << QVector<double>{0.5334, 0.8980, 0.9964, 1.0};
    QTest::newRow("PQ, 12 bits") << Text("pq-12.avif") << QVector<double>{0.5334, 0.8980, 0.9964, 1.0};
    QTest::newRow("HLG, 10 bits, of a grid")
        << Text("hlg-10.heic") << QVector<double>{0.2409, 0.5368, 0.8981, 1.0, 0.4983, 0.2556};
}

void tst_CodedColours::mapsHdrOfHeif()
{
    QFETCH(const QString, name);
    QFETCH(const QVector<double>, greens);

    bench->WriteBytes(name, Stored(qPrintable(name)));
    const Report report = Made(qPrintable(name));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QVERIFY(report.warnings.first().kind == WarningKind::ColoursConverted);
    constexpr int patches = 6;
    const QVector<Colour> found = PatchesOf(bench->Path(Text("out.png")), patches);
    for (int i = 0; i < greens.size(); ++i) {
        QVERIFY2(qAbs(found[i][1] - greens[i]) < 0.006,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(found[i][1]).arg(greens[i])));
    }
}

void tst_CodedColours::keepsWhiteOfDeepHeif()
{
    bench->WriteBytes(Text("in.avif"), Stored("rec2020-10.avif"));
    QCOMPARE(Made("in.avif").reason, QString());
    QCOMPARE(PatchesOf(bench->Path(Text("out.png")), Patches().size()).last()[1], 1.0);
}

QTEST_GUILESS_MAIN(tst_CodedColours)
#include "tst_codedcolours.moc"
