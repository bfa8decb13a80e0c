// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"
#include "TestPictures.h"

#include <QtTest>

using namespace BatchWorker;

/// Effects that change each pixel by itself: neighbours share a pass over the pixels, which nothing may show.
class tst_PointPasses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pairsEqualEffectsOneByOne_data();
    void pairsEqualEffectsOneByOne();
    void longChainsEqualEffectsOneByOne();
    void picturesBetweenStayAsTheyAre();
    void widthDoesNotCount_data();
    void widthDoesNotCount();
    void tilesEqualTheWhole_data();
    void tilesEqualTheWhole();
    void greyByLuminanceIsExact_data();
    void greyByLuminanceIsExact();

private:
    QTemporaryDir folder;
};

namespace {

struct PointEffect
{
    const char* id;
    const char* parameters;
};

const QVector<PointEffect>& PointEffects()
{
    static const QVector<PointEffect> effects{
        {"exposure", R"({"stops": 0.7})"},
        {"brightness-contrast", R"({"brightness": 10, "contrast": 30})"},
        {"levels", R"({"black": 5, "white": 80, "gamma": 1.4})"},
        {"curve", R"({"points": [[0, 10], [50, 40], [100, 90]], "channel": "green"})"},
        {"auto-levels", R"({"clip": 5, "channels": "each"})"},
        {"white-balance", R"({"temperature": 40, "tint": -10})"},
        {"saturation", R"({"amount": 60})"},
        {"vibrance", R"({"amount": -60})"},
        {"hue", R"({"angle": 75})"},
        {"grayscale", R"({"method": "luminance"})"},
        {"sepia", R"({"amount": 70})"},
        {"invert", "{}"},
        {"posterize", R"({"levels": 5})"},
        {"vignette", R"({"amount": 60, "start": 10})"},
        {"lut", R"({"file": "warm.cube", "strength": 80})"},
        {"lut", R"({"file": "warm.cube", "interpolation": "trilinear"})"},
        {"lut", R"({"file": "curves.cube"})"},
    };
    return effects;
}

void WriteText(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

Picture Applied(const PointEffect& effect, const Picture& picture, const QTemporaryDir& folder)
{
    QByteArray parameters = effect.parameters;
    for (const char* name : {"warm.cube", "curves.cube"}) {
        parameters.replace(name, folder.filePath(QLatin1String(name)).toUtf8());
    }
    return EffectCalls::Apply(QLatin1String(effect.id), parameters, picture);
}

QByteArray Name(const PictureForm& form)
{
    return QByteArray::number(form.colours) + " x " + QByteArray::number(form.bits) + (form.hasAlpha ? " alpha" : "");
}

} // namespace

void tst_PointPasses::initTestCase()
{
    QVERIFY(VIPS_INIT("tst_pointpasses") == 0);
    WriteText(folder.filePath(QStringLiteral("warm.cube")),
              "LUT_3D_SIZE 2\n0.1 0 0\n1 0 0\n0 1 0\n1 0.9 0\n0 0 1\n1 0 1\n0 1 1\n1 1 0.8\n");
    WriteText(folder.filePath(QStringLiteral("curves.cube")), "LUT_1D_SIZE 3\n0 1 0\n1 0.5 0.5\n0 0 1\n");
}

void tst_PointPasses::pairsEqualEffectsOneByOne_data()
{
    QTest::addColumn<int>("first");

    for (int i = 0; i < PointEffects().size(); ++i) {
        QTest::addRow("%s %s", PointEffects()[i].id, PointEffects()[i].parameters) << i;
    }
}

// The copy ends a pass.
void tst_PointPasses::pairsEqualEffectsOneByOne()
{
    QFETCH(int, first);

    for (const PictureForm& form : AllForms()) {
        const Picture picture = Noise(form, 67, 23);
        for (const PointEffect& second : PointEffects()) {
            const Picture once = Applied(PointEffects()[first], picture, folder);
            const Picture together = Applied(second, once, folder);
            const Picture alone = Applied(second, once.copy_memory(), folder);
            QVERIFY2(FormOf(together) == FormOf(alone) && ValuesOf(together) == ValuesOf(alone),
                     Name(form) + ", then " + second.id + ' ' + second.parameters);
        }
    }
}

void tst_PointPasses::longChainsEqualEffectsOneByOne()
{
    for (const PictureForm& form : AllForms()) {
        Picture together = Noise(form, 1500, 3);
        Picture alone = together;
        for (int round = 0; round < 2; ++round) {
            for (const PointEffect& effect : PointEffects()) {
                together = Applied(effect, together, folder);
                alone = Applied(effect, alone, folder).copy_memory();
            }
        }
        QVERIFY2(ValuesOf(together) == ValuesOf(alone), Name(form));
    }
}

// What comes later in a pass must not reach a picture that somebody else holds.
void tst_PointPasses::picturesBetweenStayAsTheyAre()
{
    const Picture picture = Noise({3, 8, false}, 40, 30);
    const Picture inverted = EffectCalls::Apply(QStringLiteral("invert"), "{}", picture);
    const Picture posterized = EffectCalls::Apply(QStringLiteral("posterize"), R"({"levels": 2})", inverted);

    QVERIFY(ValuesOf(posterized) != ValuesOf(inverted));
    QVERIFY(ValuesOf(EffectCalls::Apply(QStringLiteral("invert"), "{}", inverted)) == ValuesOf(picture));
}

void tst_PointPasses::widthDoesNotCount_data()
{
    pairsEqualEffectsOneByOne_data();
}

// Vector code does several pixels at once and the last ones of a row singly; both give the same values. The place
// counts for a vignette, so that is left out.
void tst_PointPasses::widthDoesNotCount()
{
    QFETCH(int, first);
    const PointEffect& effect = PointEffects()[first];
    if (qstrcmp(effect.id, "vignette") == 0) {
        return;
    }

    for (const PictureForm& form : AllForms()) {
        const int pixels = 2 * 1031;
        const QVector<int> values = ValuesOf(Noise(form, pixels, 1));
        const QVector<int> inOneRow = ValuesOf(Applied(effect, FromValues(form, pixels, 1, values), folder));
        for (const int width : {1, 2, 1031}) {
            const Picture picture = FromValues(form, width, pixels / width, values);
            QVERIFY2(ValuesOf(Applied(effect, picture, folder)) == inOneRow, Name(form));
        }
    }
}

void tst_PointPasses::tilesEqualTheWhole_data()
{
    pairsEqualEffectsOneByOne_data();
}

// Later stages ask for any part of a picture.
void tst_PointPasses::tilesEqualTheWhole()
{
    QFETCH(int, first);

    for (const PictureForm& form : AllForms()) {
        const Picture made = Applied(PointEffects()[first], Noise(form, 301, 47), folder);
        const Picture whole = made.copy_memory();
        for (const QRect& tile :
             {QRect(0, 0, 1, 1), QRect(300, 46, 1, 1), QRect(13, 5, 37, 11), QRect(150, 0, 151, 47)}) {
            const auto part = [&tile](const Picture& picture) {
                return ValuesOf(picture.extract_area(tile.x(), tile.y(), tile.width(), tile.height()));
            };
            QVERIFY2(part(made) == part(whole), Name(form));
        }
    }
}

void tst_PointPasses::greyByLuminanceIsExact_data()
{
    QTest::addColumn<int>("bits");

    QTest::newRow("8 bits") << 8;
    QTest::newRow("16 bits") << 16;
}

// Against the definition, a power for each pixel: all greys, and colours by chance.
void tst_PointPasses::greyByLuminanceIsExact()
{
    QFETCH(int, bits);
    const PictureForm form{3, bits, false};
    const int largest = form.Largest();
    const auto light = [largest](int sample) {
        const double value = sample / double(largest);
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };

    QVector<int> values = ValuesOf(Noise(form, 300, 300));
    for (int value = 0; value <= largest; ++value) {
        values << value << value << value;
    }
    const QVector<int> greys = ValuesOf(EffectCalls::Apply(QStringLiteral("grayscale"), R"({"method": "luminance"})",
                                                           FromValues(form, values.size() / 3, 1, values)));
    for (int i = 0; i < values.size(); i += 3) {
        const double sum = 0.2126 * light(values[i]) + 0.7152 * light(values[i + 1]) + 0.0722 * light(values[i + 2]);
        const double value = sum <= 0.0031308 ? sum * 12.92 : 1.055 * std::pow(sum, 1.0 / 2.4) - 0.055;
        QCOMPARE(greys[i], int(value * largest + 0.5));
        QVERIFY(greys[i + 1] == greys[i] && greys[i + 2] == greys[i]);
    }
}

QTEST_GUILESS_MAIN(tst_PointPasses)
#include "tst_pointpasses.moc"
