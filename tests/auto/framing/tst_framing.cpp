// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include "server/worker/framing/Patterns.h"

#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace FramingPictures;
using BatchJob::BackgroundType;
using BatchJob::Blending;

namespace {

ZTBatchOutputSettings::Transformation OnColour(const QColor& colour, int margin)
{
    ZTBatchOutputSettings::Transformation framing = PlainFraming();
    framing.backgroundType = int(BackgroundType::Colour);
    framing.backgroundColor = colour;
    framing.margins = QMargins(margin, margin, margin, margin);
    return framing;
}

} // namespace

class TestFraming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(VIPS_INIT("tst_framing") == 0); }

    void withoutMarginsThePictureStaysItself()
    {
        const QImage picture = Landscape(QSize(40, 30));
        const Picture framed = FramePicture(FromImage(picture), PlainFraming());
        QCOMPARE(framed.bands(), 3);
        QCOMPARE(ToImage(framed), picture.convertToFormat(QImage::Format_RGBA8888));
    }

    void quarterTurnsKeepEveryPixel_data()
    {
        QTest::addColumn<int>("angle");
        for (const int angle : {90, 180, 270, -90, 450}) {
            QTest::addRow("%d degrees", angle) << angle;
        }
    }

    void quarterTurnsKeepEveryPixel()
    {
        QFETCH(int, angle);
        const QImage picture = Landscape(QSize(40, 40));
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.angle = angle;
        const QImage framed = ToImage(FramePicture(FromImage(picture), framing));
        QCOMPARE(framed,
                 picture.transformed(QTransform().rotate(angle % 360)).convertToFormat(QImage::Format_RGBA8888));
    }

    void marginsShowTheBackground()
    {
        const Picture framed = FramePicture(Uniform(20, 20, {10, 20, 30}), OnColour(QColor(200, 150, 100), 5));
        QCOMPARE(framed.width(), 20);
        QCOMPARE(framed.height(), 20);
        QCOMPARE(framed.bands(), 3);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 20; ++x) {
                const bool isPicture = x >= 5 && x < 15 && y >= 5 && y < 15;
                QCOMPARE(PixelText(framed, x, y),
                         isPicture ? QStringLiteral("10 20 30") : QStringLiteral("200 150 100"));
            }
        }
    }

    void withoutBackgroundTheMarginsAreTransparent()
    {
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.margins = QMargins(5, 5, 5, 5);
        const Picture framed = FramePicture(Uniform(20, 20, {10, 20, 30}), framing);
        QCOMPARE(framed.bands(), 4);
        QCOMPARE(framed.getpoint(0, 0)[3], 0.0);
        QCOMPARE(PixelText(framed, 5, 5), QStringLiteral("10 20 30 255"));
        const Picture grey = FramePicture(Uniform(20, 20, {77}, VIPS_FORMAT_USHORT), framing);
        QCOMPARE(grey.bands(), 2);
        QCOMPARE(PixelText(grey, 5, 5), QStringLiteral("77 65535"));
        QCOMPARE(grey.getpoint(4, 5)[1], 0.0);
    }

    void opacitiesScaleAlpha()
    {
        ZTBatchOutputSettings::Transformation framing = OnColour(QColor(100, 100, 100), 5);
        framing.opacity = 0.4;
        // 0.4 * 200 + 0.6 * 100
        QCOMPARE(PixelText(FramePicture(Uniform(20, 20, {200}), framing), 10, 10), QStringLiteral("140"));
        framing.backgroundOpacity = 0.2;
        const Picture both = FramePicture(Uniform(20, 20, {200}), framing);
        QCOMPARE(PixelText(both, 0, 0), QStringLiteral("100 51"));
        // alpha 0.4 + 0.6 * 0.2 = 0.52; (0.4 * 200 + 0.12 * 100) / 0.52 = 176.9
        QCOMPARE(PixelText(both, 10, 10), QStringLiteral("177 133"));
    }

    void thePictureIsBlended_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("expected"); // of 204 over 51, which are four fifths and one fifth
        QTest::newRow("normal") << 0 << QStringLiteral("204");
        QTest::newRow("multiply") << 1 << QStringLiteral("41");
        QTest::newRow("screen") << 2 << QStringLiteral("214");
        QTest::newRow("overlay") << 3 << QStringLiteral("82");
        QTest::newRow("darken") << 4 << QStringLiteral("51");
        QTest::newRow("lighten") << 5 << QStringLiteral("204");
        QTest::newRow("soft light") << 6 << QStringLiteral("89");
        QTest::newRow("hard light") << 7 << QStringLiteral("173");
        QTest::newRow("difference") << 8 << QStringLiteral("153");
    }

    void thePictureIsBlended()
    {
        QFETCH(int, mode);
        QFETCH(QString, expected);
        ZTBatchOutputSettings::Transformation framing = OnColour(QColor(51, 51, 51), 4);
        framing.blending = mode;
        const Picture framed = FramePicture(Uniform(16, 16, {204}), framing);
        QCOMPARE(PixelText(framed, 8, 8), expected);
        QCOMPARE(PixelText(framed, 2, 8), QStringLiteral("51"));
    }

    void alphaOfThePictureIsKept()
    {
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.margins = QMargins(5, 5, 5, 5);
        const Picture seeThrough = FramePicture(Uniform(20, 20, {10, 20, 30, 102}), framing);
        QCOMPARE(PixelText(seeThrough, 10, 10), QStringLiteral("10 20 30 102"));
        // 0.4 * 10 + 0.6 * 200, and so on
        const Picture onColour = FramePicture(Uniform(20, 20, {10, 20, 30, 102}), OnColour(QColor(200, 150, 100), 5));
        QCOMPARE(PixelText(onColour, 10, 10), QStringLiteral("124 98 72"));
        // Nothing hides behind the frame when the picture itself can be seen through.
        QCOMPARE(FramePicture(Uniform(20, 20, {10, 20, 30, 102}), PlainFraming()).bands(), 4);
    }

    // Pixels that cannot be seen must not colour their neighbours when the picture is turned or scaled.
    void invisibleColoursStayInvisible()
    {
        QImage picture(60, 60, QImage::Format_RGBA8888);
        picture.fill(QColor(255, 0, 0, 0));
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 30; ++x) {
                picture.setPixelColor(x, y, QColor(0, 0, 255, 255));
            }
        }
        for (const int angle : {0, 33}) {
            ZTBatchOutputSettings::Transformation framing = PlainFraming();
            framing.angle = angle;
            framing.margins = QMargins(7, 7, 7, 7);
            const QImage framed = ToImage(FramePicture(FromImage(picture), framing));
            for (int y = 0; y < 60; ++y) {
                for (int x = 0; x < 60; ++x) {
                    if (framed.pixelColor(x, y).alpha() > 2) {
                        QVERIFY(framed.pixelColor(x, y).red() <= 2);
                    }
                }
            }
        }
    }

    void deepPicturesStayDeep()
    {
        ZTBatchOutputSettings::Transformation framing = OnColour(QColor(200, 150, 100), 5);
        const Picture framed = FramePicture(Uniform(20, 20, {1001, 20002, 60003}, VIPS_FORMAT_USHORT), framing);
        QCOMPARE(framed.format(), VIPS_FORMAT_USHORT);
        QCOMPARE(framed.interpretation(), VIPS_INTERPRETATION_RGB16);
        QCOMPARE(PixelText(framed, 10, 10), QStringLiteral("1001 20002 60003"));
        QCOMPARE(PixelText(framed, 1, 1), QStringLiteral("51400 38550 25700"));
    }

    void turningKeepsFlatColours()
    {
        ZTBatchOutputSettings::Transformation framing = OnColour(Qt::white, 5);
        framing.angle = 30;
        QCOMPARE(PixelText(FramePicture(Uniform(20, 20, {255, 128, 1}), framing), 10, 10), QStringLiteral("255 128 1"));
        const Picture turned = FramePicture(Uniform(20, 20, {1001, 20002, 60003}, VIPS_FORMAT_USHORT), framing);
        QCOMPARE(PixelText(turned, 10, 10), QStringLiteral("1001 20002 60003"));
    }

    void customFramesHaveTheirSize()
    {
        ZTBatchOutputSettings::Transformation framing = OnColour(QColor(9, 9, 9), 0);
        framing.backgroundCustomOutput = true;
        framing.backgroundCustomSize = QSize(30, 40);
        const Picture framed = FramePicture(Uniform(20, 20, {200}), framing);
        QCOMPARE(framed.width(), 30);
        QCOMPARE(framed.height(), 40);
        QCOMPARE(PixelText(framed, 15, 4), QStringLiteral("9"));
        QCOMPARE(PixelText(framed, 0, 5), QStringLiteral("200"));
        QCOMPARE(PixelText(framed, 29, 34), QStringLiteral("200"));
        QCOMPARE(PixelText(framed, 29, 35), QStringLiteral("9"));
    }

    void metadataIsThePictures()
    {
        Picture picture = Uniform(20, 20, {1, 2, 3}).copy();
        picture.set("exif-ifd0-Artist", "Someone");
        const Picture framed = FramePicture(picture, OnColour(QColor(200, 150, 100), 5));
        QCOMPARE(QByteArray(framed.get_string("exif-ifd0-Artist")), QByteArray("Someone"));
    }

    void patternTilesRepeat_data()
    {
        QTest::addColumn<int>("pattern");
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("side");
        for (int pattern = 0; pattern < 8; ++pattern) {
            QTest::addRow("pattern %d", pattern) << pattern << 0 << 32;
            QTest::addRow("pattern %d at a half", pattern) << pattern << 50 << 16;
            QTest::addRow("pattern %d at two and a half", pattern) << pattern << 250 << 80;
        }
        QTest::newRow("too small for the screen") << 0 << 1 << 2;
    }

    void patternTilesRepeat()
    {
        QFETCH(int, pattern);
        QFETCH(int, percent);
        QFETCH(int, side);
        QCOMPARE(BatchWorker::PatternTileSide(percent), side);
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.backgroundType = int(BackgroundType::Pattern);
        framing.backgroundPattern = {pattern, percent, 0};
        framing.opacity = 0;
        const Picture framed = FramePicture(Uniform(2 * side + 5, 2 * side + 3, {1, 2, 3}), framing);
        QCOMPARE(framed.bands(), 3);

        const Picture tile = framed.crop(0, 0, side, side);
        QCOMPARE((framed.crop(side, 0, side, side) - tile).abs().max(), 0.0);
        QCOMPARE((framed.crop(0, side, side, side) - tile).abs().max(), 0.0);
        QCOMPARE((framed.crop(2 * side, side, qMin(5, side), side) - tile.crop(0, 0, qMin(5, side), side)).abs().max(),
                 0.0);
        // Two greys, and mixtures of them where their border crosses a pixel.
        QCOMPARE((tile.extract_band(0) - tile.extract_band(2)).abs().max(), 0.0);
        QVERIFY(tile.min() >= std::floor(255 * BatchWorker::patternFigure));
        QVERIFY(tile.max() <= std::ceil(255 * BatchWorker::patternGround));
        if (side > 2) {
            QCOMPARE(tile.min(), std::round(255 * BatchWorker::patternFigure));
            QCOMPARE(tile.max(), std::round(255 * BatchWorker::patternGround));
        }
    }

    void patternsDiffer()
    {
        QSet<QByteArray> tiles;
        for (int pattern = 0; pattern < 8; ++pattern) {
            ZTBatchOutputSettings::Transformation framing = PlainFraming();
            framing.backgroundType = int(BackgroundType::Pattern);
            framing.backgroundPattern = {pattern, 0, 0};
            framing.opacity = 0;
            const QImage image = ToImage(FramePicture(Uniform(32, 32, {0}), framing));
            tiles.insert(QByteArray(static_cast<const char*>(static_cast<const void*>(image.constBits())),
                                    int(image.sizeInBytes())));
        }
        QCOMPARE(tiles.size(), 8);
    }

    void theCheckerboardIsExact()
    {
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.backgroundType = int(BackgroundType::Pattern);
        framing.opacity = 0;
        const Picture framed = FramePicture(Uniform(64, 64, {0}), framing);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const bool isFigure = (x / 16 + y / 16) % 2 == 1;
                QCOMPARE(PixelText(framed, x, y), isFigure ? QStringLiteral("204") : QStringLiteral("240"));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestFraming)

#include "tst_framing.moc"
