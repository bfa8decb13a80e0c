// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include <QTest>

#include <cmath>

using namespace FramingPictures;
using BatchJob::ShadowMode;

namespace {

// A white square of 20 pixels in the middle of a white frame of 60, with a black shadow.
ZTBatchOutputSettings::Transformation ShadowFraming(int angle, int distance, int size)
{
    ZTBatchOutputSettings::Transformation framing = PlainFraming();
    framing.margins = QMargins(20, 20, 20, 20);
    framing.backgroundType = int(BatchJob::BackgroundType::Colour);
    framing.backgroundColor = Qt::white;
    framing.shadowEnabled = true;
    framing.shadowColor = Qt::black;
    framing.shadowOpacity = 1;
    framing.shadowAngle = angle;
    framing.shadowDistance = distance;
    framing.shadowSize = size;
    return framing;
}

Picture WhiteSquare(bool hasAlpha)
{
    return hasAlpha ? Uniform(60, 60, {255, 255}) : Uniform(60, 60, {255});
}

double GaussianIntegral(double from, double to, double sigma)
{
    return (std::erf(to / sigma / std::sqrt(2.0)) - std::erf(from / sigma / std::sqrt(2.0))) / 2;
}

} // namespace

class TestFramedShadows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(VIPS_INIT("tst_framedshadows") == 0); }

    void sharpShadowsFallAwayFromTheLight_data()
    {
        QTest::addColumn<int>("angle");
        QTest::addColumn<int>("distance");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("hasAlpha");
        for (const bool hasAlpha : {false, true}) {
            const char* kind = hasAlpha ? "alpha" : "opaque";
            QTest::addRow("%s, light from the right", kind) << 0 << 6 << QPoint(-6, 0) << hasAlpha;
            QTest::addRow("%s, light from above", kind) << 90 << 6 << QPoint(0, 6) << hasAlpha;
            QTest::addRow("%s, light from the left", kind) << 180 << 6 << QPoint(6, 0) << hasAlpha;
            QTest::addRow("%s, light from below", kind) << -90 << 6 << QPoint(0, -6) << hasAlpha;
            // 10 * cos 45 = 7.07
            QTest::addRow("%s, light from the upper right", kind) << 45 << 10 << QPoint(-7, 7) << hasAlpha;
            QTest::addRow("%s, light from the upper left", kind) << 135 << 10 << QPoint(7, 7) << hasAlpha;
            QTest::addRow("%s, beyond the frame", kind) << 180 << 30 << QPoint(30, 0) << hasAlpha;
            QTest::addRow("%s, no distance", kind) << 30 << 0 << QPoint(0, 0) << hasAlpha;
        }
    }

    void sharpShadowsFallAwayFromTheLight()
    {
        QFETCH(int, angle);
        QFETCH(int, distance);
        QFETCH(QPoint, offset);
        QFETCH(bool, hasAlpha);
        const QRect picture(20, 20, 20, 20);
        const QImage framed = ToImage(FramePicture(WhiteSquare(hasAlpha), ShadowFraming(angle, distance, 0)));
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 60; ++x) {
                const bool isShadow = picture.translated(offset).contains(x, y) && !picture.contains(x, y);
                QCOMPARE(framed.pixelColor(x, y), isShadow ? QColor(Qt::black) : QColor(Qt::white));
            }
        }
    }

    void glowsDoNotMove()
    {
        ZTBatchOutputSettings::Transformation framing = ShadowFraming(0, 10, 3);
        framing.shadowMode = int(ShadowMode::ContactGlow);
        const Picture framed = FramePicture(WhiteSquare(false), framing);
        QCOMPARE(framed.getpoint(17, 30)[0], framed.getpoint(42, 30)[0]);
        QCOMPARE(framed.getpoint(30, 17)[0], framed.getpoint(30, 42)[0]);
        QVERIFY(framed.getpoint(18, 30)[0] < 200);
    }

    void shadowsAreGaussian_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("hasAlpha");
        for (const int size : {1, 3, 5, 12, 33, 70}) {
            QTest::addRow("opaque, sigma %d", size) << size << false;
            QTest::addRow("alpha, sigma %d", size) << size << true;
        }
    }

    // The blur of a square is the product of the Gaussian's integrals along both axes.
    void shadowsAreGaussian()
    {
        QFETCH(int, size);
        QFETCH(bool, hasAlpha);
        const QImage framed = ToImage(FramePicture(WhiteSquare(hasAlpha), ShadowFraming(180, 4, size)));
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 60; ++x) {
                if (QRect(20, 20, 20, 20).contains(x, y)) {
                    continue;
                }
                // The shadow of the square stands 4 pixels to the right of it.
                const double across = GaussianIntegral(24 - (x + 0.5), 44 - (x + 0.5), size);
                const double down = GaussianIntegral(20 - (y + 0.5), 40 - (y + 0.5), size);
                const double expected = 255 * (1 - across * down);
                const int found = framed.pixelColor(x, y).red();
                // A blur of pixels cuts the Gaussian off and samples it; the integral does not.
                const double tolerance = hasAlpha ? (size == 1 ? 6 : 2.5) : 0.6;
                QVERIFY2(qAbs(found - expected) <= tolerance,
                         qPrintable(QStringLiteral("%1, %2: %3, not %4").arg(x).arg(y).arg(found).arg(expected)));
            }
        }
    }

    void hugeShadowsAreQuick()
    {
        ZTBatchOutputSettings::Transformation framing = ShadowFraming(180, 10000, 10000);
        framing.shadowMode = int(ShadowMode::ContactGlow);
        for (const bool hasAlpha : {false, true}) {
            const Picture framed = FramePicture(WhiteSquare(hasAlpha), framing);
            QCOMPARE(framed.getpoint(0, 0)[0], 255.0);
        }
    }

    void opacityAndColourAreTheShadows()
    {
        ZTBatchOutputSettings::Transformation framing = ShadowFraming(180, 10, 0);
        framing.shadowColor = QColor(255, 0, 0);
        framing.shadowOpacity = 0.4;
        const Picture framed = FramePicture(WhiteSquare(false), framing);
        // Red at 0.4 over white; the grey picture has become RGB.
        QCOMPARE(PixelText(framed, 45, 30), QStringLiteral("255 153 153"));
        QCOMPARE(PixelText(framed, 30, 30), QStringLiteral("255 255 255"));
    }

    void shadowsShowOnNothing()
    {
        ZTBatchOutputSettings::Transformation framing = ShadowFraming(180, 10, 0);
        framing.backgroundType = int(BatchJob::BackgroundType::None);
        framing.shadowOpacity = 0.6;
        const Picture framed = FramePicture(WhiteSquare(false), framing);
        QCOMPARE(PixelText(framed, 45, 30), QStringLiteral("0 153"));
        QCOMPARE(framed.getpoint(55, 30)[1], 0.0);
    }

    // A hole in the picture is a hole in its shadow.
    void shadowsHaveTheShapeOfTheAlpha()
    {
        QImage picture(60, 60, QImage::Format_RGBA8888);
        picture.fill(Qt::white);
        for (int y = 24; y < 36; ++y) {
            for (int x = 24; x < 36; ++x) {
                picture.setPixelColor(x, y, Qt::transparent);
            }
        }
        ZTBatchOutputSettings::Transformation framing = ShadowFraming(180, 12, 0);
        framing.margins = QMargins(0, 0, 0, 0);
        const Picture framed = FramePicture(FromImage(picture), framing);
        // The hole shows the shadow of the picture's left part in it; the shadow's own hole lies to the right.
        QCOMPARE(PixelText(framed, 30, 30), QStringLiteral("0 0 0"));
        framing.shadowDistance = 0;
        QCOMPARE(PixelText(FramePicture(FromImage(picture), framing), 30, 30), QStringLiteral("255 255 255"));
    }

    // Turned, a shadow turns with its picture; the light does not.
    void turnedShadowsMoveInTheFrame()
    {
        ZTBatchOutputSettings::Transformation framing = ShadowFraming(90, 14, 0);
        framing.angle = 45;
        framing.margins = QMargins(15, 15, 15, 15);
        const Picture framed = FramePicture(Uniform(60, 60, {255}), framing);
        // The square stands on its point between (30, 15) and (30, 45); its shadow ends at (30, 59).
        QCOMPARE(PixelText(framed, 30, 56), QStringLiteral("0"));
        QCOMPARE(PixelText(framed, 29, 50), QStringLiteral("0"));
        QCOMPARE(PixelText(framed, 36, 57), QStringLiteral("255"));
        QCOMPARE(PixelText(framed, 30, 13), QStringLiteral("255"));
    }
};

QTEST_GUILESS_MAIN(TestFramedShadows)

#include "tst_framedshadows.moc"
