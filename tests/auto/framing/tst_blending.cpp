// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include "server/worker/framing/Blending.h"

#include <QTest>

using BatchJob::Blending;
using BatchWorker::Blend;
using BatchWorker::Picture;
using FramingPictures::PixelText;
using FramingPictures::Uniform;

Q_DECLARE_METATYPE(BatchJob::Blending)

namespace {

// 255 is divisible by 5, so that fifths are whole values: 51, 102, 153, 204.
constexpr int fifth = 51;

Picture FullCoverage(int width, int height, double value = 1)
{
    return (Picture::black(width, height) + value).cast(VIPS_FORMAT_FLOAT);
}

} // namespace

class TestBlending : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(VIPS_INIT("tst_blending") == 0); }

    void opaqueColoursBlend_data()
    {
        QTest::addColumn<Blending>("mode");
        QTest::addColumn<int>("backdrop");
        QTest::addColumn<int>("source");
        QTest::addColumn<double>("expected"); // as a part of white
        const auto add = [](const char* name, Blending mode, int backdrop, int source, double expected) {
            QTest::addRow("%s of %d over %d", name, source, backdrop) << mode << backdrop << source << expected;
        };
        // One fifth and four fifths, worked out by hand.
        add("normal", Blending::Normal, fifth, 4 * fifth, 0.8);
        add("multiply", Blending::Multiply, fifth, 4 * fifth, 0.2 * 0.8);
        add("screen", Blending::Screen, fifth, 4 * fifth, 0.2 + 0.8 - 0.16);
        add("overlay", Blending::Overlay, fifth, 4 * fifth, 0.32); // dark backdrop: 2 * 0.2 * 0.8
        add("overlay", Blending::Overlay, 4 * fifth, fifth, 0.68); // 0.2 + 0.6 - 0.2 * 0.6
        add("darken", Blending::Darken, fifth, 4 * fifth, 0.2);
        add("darken", Blending::Darken, 4 * fifth, fifth, 0.2);
        add("lighten", Blending::Lighten, fifth, 4 * fifth, 0.8);
        add("lighten", Blending::Lighten, 4 * fifth, fifth, 0.8);
        add("soft light", Blending::SoftLight, fifth, 4 * fifth, 0.3488);          // 0.2 + 0.6 * (0.448 - 0.2)
        add("soft light", Blending::SoftLight, 4 * fifth, fifth, 0.704);           // 0.8 - 0.6 * 0.8 * 0.2
        add("soft light", Blending::SoftLight, 2 * fifth, 4 * fifth, 0.539473319); // 0.4 + 0.6 * (sqrt(0.4) - 0.4)
        add("hard light", Blending::HardLight, fifth, 4 * fifth, 0.68);            // 0.2 + 0.6 - 0.12
        add("hard light", Blending::HardLight, 4 * fifth, fifth, 0.32);            // 0.8 * 0.4
        add("difference", Blending::Difference, fifth, 4 * fifth, 0.6);
        add("difference", Blending::Difference, 4 * fifth, fifth, 0.6);
        // Black and white.
        add("multiply", Blending::Multiply, 255, 255, 1);
        add("screen", Blending::Screen, 0, 0, 0);
        add("overlay", Blending::Overlay, 255, 0, 1);
        add("overlay", Blending::Overlay, 0, 255, 0);
        add("soft light", Blending::SoftLight, 0, 255, 0);
        add("soft light", Blending::SoftLight, 255, 0, 1);
        add("hard light", Blending::HardLight, 0, 255, 1);
        add("hard light", Blending::HardLight, 255, 0, 0);
        add("difference", Blending::Difference, 255, 255, 0);
    }

    void opaqueColoursBlend()
    {
        QFETCH(Blending, mode);
        QFETCH(int, backdrop);
        QFETCH(int, source);
        QFETCH(double, expected);

        const Picture result = Blend(Uniform(3, 2, {double(backdrop), 0, 255, 255}),
                                     Uniform(3, 2, {double(source), 0, 255}), FullCoverage(3, 2), 1, mode);
        QCOMPARE(result.getpoint(2, 1)[0], double(qRound(expected * 255)));
        QCOMPARE(result.getpoint(2, 1)[3], 255.0);

        const Picture deep = Blend(Uniform(3, 2, {backdrop * 257.0, 65535}, VIPS_FORMAT_USHORT),
                                   Uniform(3, 2, {source * 257.0}, VIPS_FORMAT_USHORT), FullCoverage(3, 2), 1, mode);
        QCOMPARE(deep.format(), VIPS_FORMAT_USHORT);
        QCOMPARE(deep.getpoint(0, 0)[0], double(qRound(expected * 65535)));
        QCOMPARE(deep.getpoint(0, 0)[1], 65535.0);
    }

    void alphaComposes()
    {
        // Cb = 0.2 at alpha 0.4 under Cs = 0.8 at alpha 0.25, multiplied:
        // alpha 0.25 + 0.4 * 0.75 = 0.55; Cs' = 0.6 * 0.8 + 0.4 * 0.16 = 0.544
        // colour (0.25 * 0.544 + 0.75 * 0.4 * 0.2) / 0.55 = 0.356364
        const Picture result = Blend(Uniform(1, 1, {fifth, 2 * fifth}), Uniform(1, 1, {4 * fifth}), FullCoverage(1, 1),
                                     0.25, Blending::Multiply);
        QCOMPARE(PixelText(result, 0, 0), QStringLiteral("91 140"));
    }

    void coverageOpacityAndAlphaScaleTheLayer()
    {
        // 0.5 * 0.8 * 0.6 = 0.24 of white over black: 61.2.
        const Picture result = Blend(Uniform(1, 1, {0, 255}), Uniform(1, 1, {255, 3 * fifth}), FullCoverage(1, 1, 0.5),
                                     0.8, Blending::Normal);
        QCOMPARE(PixelText(result, 0, 0), QStringLiteral("61 255"));
    }

    void nothingOverNothingIsNothing()
    {
        const Picture result = Blend(Uniform(1, 1, {7, 8, 9, 0}), Uniform(1, 1, {255, 255, 255}), FullCoverage(1, 1, 0),
                                     1, Blending::Screen);
        QCOMPARE(PixelText(result, 0, 0), QStringLiteral("7 8 9 0"));
    }

    // Over nothing there is nothing to blend with: the layer keeps its colours.
    void aLayerOverNothingKeepsItsColours()
    {
        for (int mode = 0; mode <= int(Blending::Difference); ++mode) {
            const Picture result = Blend(Uniform(1, 1, {0, 0, 0, 0}), Uniform(1, 1, {10, 20, 30}), FullCoverage(1, 1),
                                         0.4, Blending(mode));
            QCOMPARE(PixelText(result, 0, 0), QStringLiteral("10 20 30 102"));
        }
    }

    // Every pair of values keeps the other's at no opacity, and no result leaves the range.
    void everyPairOfValuesStaysInRange()
    {
        for (int mode = 0; mode <= int(Blending::Difference); ++mode) {
            for (int backdrop = 0; backdrop < 256; ++backdrop) {
                for (int source = 0; source < 256; ++source) {
                    const float value =
                        BatchWorker::BlendedValue(Blending(mode), float(backdrop) / 255, float(source) / 255);
                    QVERIFY(value >= -1e-6f && value <= 1 + 1e-6f);
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestBlending)

#include "tst_blending.moc"
