// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"
#include "TestPictures.h"

#include <QtTest>

using namespace BatchWorker;

/// The values that come out of effects, against values computed from the definitions by another program, and by hand.
class tst_Effects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void computes_data();
    void computes();
    void computesByHand_data();
    void computesByHand();
    void spreadsNothingWhereThereIsOneValue();
    void countsNoHiddenColours();
    void blursColoursByTheirOpacity();
    void mapsByCurves();
    void mapsByCubes_data();
    void mapsByCubes();
    void turnsByAnyAngle();
    void fillsCornersWithTheBackground();
    void givesGreyPicturesColourOnlyForAColour();
    void convertsColoursToThePicturesProfile();
};

namespace {

QVector<int> Numbers(const QByteArray& text)
{
    QVector<int> numbers;
    for (const QByteArray& word : text.split(' ')) {
        numbers.append(word.toInt());
    }
    return numbers;
}

QString WrittenTo(const QTemporaryDir& folder, const QByteArray& text)
{
    QFile file(folder.filePath(QStringLiteral("table.cube")));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName() : QString();
}

const PictureForm grey8{1, 8, false};
const PictureForm rgb8{3, 8, false};
const PictureForm rgb16{3, 16, false};
const PictureForm rgba8{3, 8, true};

} // namespace

void tst_Effects::initTestCase()
{
    QVERIFY(VIPS_INIT("tst_effects") == 0);
}

void tst_Effects::computes_data()
{
    QTest::addColumn<QByteArrayList>("row");

    QFile file(QStringLiteral(EFFECTS_DATA));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    while (!file.atEnd()) {
        const QByteArrayList row = file.readLine().trimmed().split('\t');
        QCOMPARE(row.size(), 12);
        QTest::addRow("%s %s, %s x %s bits, alpha %s", row[0].constData(), row[1].constData(), row[2].constData(),
                      row[3].constData(), row[4].constData())
            << row;
    }
}

void tst_Effects::computes()
{
    QFETCH(QByteArrayList, row);

    const PictureForm form{row[2].toInt(), row[3].toInt(), row[4] == "1"};
    const Picture picture = FromValues(form, row[5].toInt(), row[6].toInt(), Numbers(row[7]));
    const Picture result = EffectCalls::Apply(QString::fromLatin1(row[0]), row[1], picture);
    const QVector<int> values = ValuesOf(result);
    const QVector<int> expected = Numbers(row[10]);
    const int tolerance = row[11].toInt();

    QCOMPARE(result.width(), row[8].toInt());
    QCOMPARE(result.height(), row[9].toInt());
    QCOMPARE(values.size(), expected.size());
    for (int i = 0; i < values.size(); ++i) {
        QVERIFY2(std::abs(values[i] - expected[i]) <= tolerance,
                 qPrintable(QStringLiteral("value %1 is %2 instead of %3").arg(i).arg(values[i]).arg(expected[i])));
    }
}

void tst_Effects::computesByHand_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QVector<int>>("before");
    QTest::addColumn<QVector<int>>("after");

    const auto row = [](const char* id, const char* parameters, const QVector<int>& before, const QVector<int>& after) {
        QTest::addRow("%s %s", id, parameters) << QString::fromLatin1(id) << QByteArray(parameters) << before << after;
    };
    // Three RGB pixels of 8 bits. A stop on pure light: 188 holds half of the light that 255 holds.
    row("exposure", R"({"stops": 1})", {0, 0, 0, 188, 0, 255, 1, 1, 1}, {0, 0, 0, 255, 0, 255, 2, 2, 2});
    row("brightness-contrast", R"({"brightness": 20})", {0, 100, 204, 205, 255, 1, 2, 3, 4},
        {51, 151, 255, 255, 255, 52, 53, 54, 55});
    row("brightness-contrast", R"({"contrast": -100})", {0, 255, 7, 8, 9, 10, 100, 200, 250},
        {128, 128, 128, 128, 128, 128, 128, 128, 128});
    row("levels", R"({"black": 20, "white": 60})", {51, 102, 153, 0, 50, 154, 255, 77, 128},
        {0, 128, 255, 0, 0, 255, 255, 65, 193});
    row("curve", R"({"points": [[0, 100], [100, 0]]})", {0, 1, 2, 253, 254, 255, 100, 101, 102},
        {255, 254, 253, 2, 1, 0, 155, 154, 153});
    row("curve", R"({"points": [[20, 0], [60, 100]], "channel": "red"})", {51, 51, 51, 102, 9, 9, 200, 0, 0},
        {0, 51, 51, 128, 9, 9, 255, 0, 0});
    row("curve", R"({"points": [[0, 0], [40, 80], [60, 80], [100, 100]]})", {102, 120, 153, 0, 128, 255, 110, 130, 140},
        {204, 204, 204, 0, 204, 255, 204, 204, 204});
    row("auto-levels", R"({"clip": 0})", {10, 20, 30, 62, 112, 50, 40, 40, 40}, {0, 25, 50, 130, 255, 100, 75, 75, 75});
    row("auto-levels", R"({"clip": 0, "channels": "each"})", {10, 20, 30, 60, 120, 50, 35, 70, 40},
        {0, 0, 0, 255, 255, 255, 128, 128, 128});
    row("saturation", R"({"amount": -100})", {255, 0, 0, 0, 255, 0, 0, 0, 255},
        {54, 54, 54, 182, 182, 182, 18, 18, 18});
    row("hue", R"({"angle": 180})", {255, 0, 0, 77, 77, 77, 0, 0, 0}, {0, 109, 109, 77, 77, 77, 0, 0, 0});
    row("grayscale", R"({"method": "average"})", {255, 0, 0, 10, 20, 33, 1, 1, 2}, {85, 85, 85, 21, 21, 21, 1, 1, 1});
    row("invert", "{}", {0, 1, 127, 128, 254, 255, 3, 4, 5}, {255, 254, 128, 127, 1, 0, 252, 251, 250});
    row("posterize", R"({"levels": 2})", {0, 127, 128, 255, 1, 254, 100, 150, 200},
        {0, 0, 255, 255, 0, 255, 0, 255, 255});
    row("posterize", R"({"levels": 256})", {0, 127, 128, 255, 1, 254, 100, 150, 200},
        {0, 127, 128, 255, 1, 254, 100, 150, 200});
}

void tst_Effects::computesByHand()
{
    QFETCH(QString, id);
    QFETCH(QByteArray, parameters);
    QFETCH(QVector<int>, before);
    QFETCH(QVector<int>, after);

    QCOMPARE(ValuesOf(EffectCalls::Apply(id, parameters, FromValues(rgb8, 3, 1, before))), after);
}

void tst_Effects::spreadsNothingWhereThereIsOneValue()
{
    const Picture even = FromValues(grey8, 2, 2, {90, 90, 90, 90});
    QCOMPARE(ValuesOf(EffectCalls::Apply(QStringLiteral("auto-levels"), "{}", even)), ValuesOf(even));

    const Picture hidden = FromValues(rgba8, 2, 1, {1, 2, 3, 0, 200, 3, 90, 0});
    QCOMPARE(ValuesOf(EffectCalls::Apply(QStringLiteral("auto-levels"), "{}", hidden)), ValuesOf(hidden));
}

void tst_Effects::countsNoHiddenColours()
{
    const PictureForm greyAlpha{1, 8, true};
    const Picture picture = FromValues(greyAlpha, 4, 1, {0, 0, 50, 255, 100, 1, 255, 0});
    QCOMPARE(ChannelOf(EffectCalls::Apply(QStringLiteral("auto-levels"), R"({"clip": 0})", picture), 0),
             (QVector<int>{0, 0, 255, 255}));
}

// Green hides under no opacity; nothing of it may leak into the red beside it.
void tst_Effects::blursColoursByTheirOpacity()
{
    QVector<int> values;
    for (int x = 0; x < 20; ++x) {
        values << (x < 10 ? QVector<int>{255, 0, 0, 255} : QVector<int>{0, 255, 0, 0});
    }
    for (const char* sigma : {R"({"sigma": 1.5})", R"({"sigma": 12})"}) {
        const Picture blurred = EffectCalls::Apply(QStringLiteral("blur"), sigma, FromValues(rgba8, 20, 1, values));
        const QVector<int> alpha = ChannelOf(blurred, 3);
        for (int x = 0; x < 20; ++x) {
            QCOMPARE(blurred.getpoint(x, 0)[1], 0.0);
            QCOMPARE(blurred.getpoint(x, 0)[0], alpha[x] > 0 ? 255.0 : blurred.getpoint(x, 0)[0]);
        }
        QVERIFY(std::is_sorted(alpha.rbegin(), alpha.rend()));
        QVERIFY(alpha[9] > 127 && alpha[10] < 128);
    }
}

void tst_Effects::mapsByCurves()
{
    QTemporaryDir folder;
    const QString file = WrittenTo(folder, "LUT_1D_SIZE 3\nDOMAIN_MIN 0 0 0.2\nDOMAIN_MAX 1 0.5 0.8\n"
                                           "0 1 0\n1 0.5 0.5\n0 0 1\n");
    // Red: up and down again. Green: down, at twice the pace, then level. Blue: spread between 0.2 and 0.8.
    const Picture picture = FromValues(
        rgb16, 5, 1, {0, 0, 0, 16384, 16384, 13107, 32768, 32768, 32768, 49152, 49152, 52428, 65535, 65535, 65535});
    const QVector<int> expected{0, 65535, 0, 32768, 32767, 0, 65534, 0, 32768, 32766, 0, 65535, 0, 0, 65535};
    const QVector<int> values =
        ValuesOf(EffectCalls::Apply(QStringLiteral("lut"), EffectCalls::WithFile(file), picture));
    for (int i = 0; i < expected.size(); ++i) {
        QVERIFY2(std::abs(values[i] - expected[i]) <= 1, qPrintable(QStringLiteral("%1: %2").arg(i).arg(values[i])));
    }
}

void tst_Effects::mapsByCubes_data()
{
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QVector<int>>("after");

    // The far corner of a cube of two is raised: 1 1 1 becomes 0, all other corners stay. At (r, g, b) trilinear
    // interpolation takes r g b off, tetrahedral the least of the three.
    const QVector<int> trilinear{255 - 255, 0, 0, 0, 0, 0, 102 - 20, 128 - 20, 102 - 20};
    const QVector<int> tetrahedral{0, 0, 0, 0, 0, 0, 0, 26, 0};
    QTest::newRow("trilinear") << QByteArray(R"({"interpolation": "trilinear"})") << trilinear;
    QTest::newRow("tetrahedral") << QByteArray("{}") << tetrahedral;
    QTest::newRow("half") << QByteArray(R"({"strength": 50})") << QVector<int>{128, 128, 128, 0, 0, 0, 51, 77, 51};
}

void tst_Effects::mapsByCubes()
{
    QFETCH(QByteArray, parameters);
    QFETCH(QVector<int>, after);

    QTemporaryDir folder;
    const QString file = WrittenTo(folder, "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n0 0 0\n");
    // 102 / 255 = 0.4 and 128 / 255 = 0.502: r g b = 0.0803, of 255 values 20.5.
    const Picture picture = FromValues(rgb8, 3, 1, {255, 255, 255, 0, 0, 0, 102, 128, 102});
    const QVector<int> values =
        ValuesOf(EffectCalls::Apply(QStringLiteral("lut"), EffectCalls::WithFile(file, parameters), picture));
    for (int i = 0; i < after.size(); ++i) {
        QVERIFY2(std::abs(values[i] - after[i]) <= 1, qPrintable(QStringLiteral("%1: %2").arg(i).arg(values[i])));
    }
}

// A square turned by 45 degrees covers half of its canvas; what lies in the upper left comes to the top.
void tst_Effects::turnsByAnyAngle()
{
    QVector<int> values;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            values << (x < 50 && y < 50 ? 200 : 100);
        }
    }
    const Picture turned = EffectCalls::Apply(QStringLiteral("rotate"), R"({"angle": 45, "background": "#000000"})",
                                              FromValues(grey8, 100, 100, values));
    QCOMPARE(turned.width(), 142);
    QCOMPARE(turned.height(), 142);
    QCOMPARE(turned.getpoint(71, 20)[0], 200.0);
    QCOMPARE(turned.getpoint(71, 120)[0], 100.0);
    QCOMPARE(turned.getpoint(20, 71)[0], 100.0);
    QCOMPARE(turned.getpoint(120, 71)[0], 100.0);
    for (const QPoint corner : {QPoint(5, 5), QPoint(136, 5), QPoint(5, 136), QPoint(136, 136)}) {
        QCOMPARE(turned.getpoint(corner.x(), corner.y())[0], 0.0);
    }
    // Area times value stays: a quarter of 200, three of 100.
    const double sum = turned.avg() * turned.width() * turned.height();
    QVERIFY2(std::abs(sum / 1'250'000.0 - 1.0) < 0.002, qPrintable(QString::number(sum)));
}

void tst_Effects::fillsCornersWithTheBackground()
{
    const Picture picture = Noise(rgb8, 40, 30);
    const QByteArray opaque = R"({"angle": 30, "background": "#336699"})";
    const Picture filled = EffectCalls::Apply(QStringLiteral("rotate"), opaque, picture);
    QCOMPARE(filled.bands(), 3);
    QCOMPARE(filled.getpoint(0, 0), (std::vector<double>{0x33, 0x66, 0x99}));

    const QByteArray clear = R"({"angle": 30, "background": "#33669900"})";
    const Picture open = EffectCalls::Apply(QStringLiteral("rotate"), clear, picture);
    QCOMPARE(open.bands(), 4);
    QCOMPARE(open.getpoint(0, 0)[3], 0.0);
    QCOMPARE(open.getpoint(open.width() / 2, open.height() / 2)[3], 255.0);
}

void tst_Effects::givesGreyPicturesColourOnlyForAColour()
{
    const Picture picture = FromValues(grey8, 1, 1, {50});
    const Picture grey = EffectCalls::Apply(QStringLiteral("border"), R"({"left": 1, "colour": "#808080"})", picture);
    QCOMPARE(ValuesOf(grey), (QVector<int>{128, 50}));
    const Picture rgb = EffectCalls::Apply(QStringLiteral("border"), R"({"left": 1, "colour": "#80ff00"})", picture);
    QCOMPARE(ValuesOf(rgb), (QVector<int>{128, 255, 0, 50, 50, 50}));
    const Picture clear =
        EffectCalls::Apply(QStringLiteral("border"), R"({"left": 1, "colour": "#ffffff40"})", picture);
    QCOMPARE(ValuesOf(clear), (QVector<int>{255, 64, 50, 255}));
}

// Display P3 holds more than sRGB: its red for the red of sRGB is less than full.
void tst_Effects::convertsColoursToThePicturesProfile()
{
    Picture wide = Noise(rgb8, 2, 2).icc_transform("p3", Picture::option()->set("input_profile", "srgb"));
    const Picture red = EffectCalls::Apply(QStringLiteral("border"), R"({"left": 1, "colour": "#ff0000"})", wide);
    const std::vector<double> ink = red.getpoint(0, 0);
    // 0.9175, 0.2003, 0.1386: the conversion of sRGB's red to Display P3.
    QVERIFY2(std::abs(ink[0] - 234) <= 1 && std::abs(ink[1] - 51) <= 1 && std::abs(ink[2] - 35) <= 1,
             qPrintable(QStringLiteral("%1 %2 %3").arg(ink[0]).arg(ink[1]).arg(ink[2])));

    Picture plain = Noise(rgb8, 2, 2).icc_transform("srgb", Picture::option()->set("input_profile", "srgb"));
    const Picture exact = EffectCalls::Apply(QStringLiteral("border"), R"({"left": 1, "colour": "#fe0102"})", plain);
    const std::vector<double> kept = exact.getpoint(0, 0);
    QVERIFY2((kept == std::vector<double>{254, 1, 2}),
             qPrintable(QStringLiteral("%1 %2 %3").arg(kept[0]).arg(kept[1]).arg(kept[2])));
}

QTEST_GUILESS_MAIN(tst_Effects)
#include "tst_effects.moc"
