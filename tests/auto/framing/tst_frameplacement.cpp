// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include "server/worker/framing/Placement.h"

#include <QTest>
#include <QtMath>

using BatchWorker::FramePlacement;
using FramingPictures::PlainFraming;

Q_DECLARE_METATYPE(QMargins)

namespace {

struct Bounds
{
    double left = 1e9;
    double top = 1e9;
    double right = -1e9;
    double bottom = -1e9;
};

Bounds BoundsOf(const FramePlacement& placement)
{
    Bounds bounds;
    for (const QPointF& corner : placement.corners) {
        bounds = {qMin(bounds.left, corner.x()), qMin(bounds.top, corner.y()), qMax(bounds.right, corner.x()),
                  qMax(bounds.bottom, corner.y())};
    }
    return bounds;
}

double Length(const QPointF& vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace

class TestFramePlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownFramesFollowTheSettings_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("angle");
        QTest::addColumn<QMargins>("margins");
        for (const QSize& size : {QSize(800, 600), QSize(600, 800), QSize(500, 500), QSize(3, 1000), QSize(1, 1)}) {
            for (const int angle : {0, 1, 37, 45, 90, 135, 180, 270, 359, -20, -90, 450, 720}) {
                for (const QMargins& margins : {QMargins(), QMargins(5, 5, 5, 5), QMargins(10, 20, 30, 40)}) {
                    QTest::addRow("%dx%d %d degrees, margins %d", size.width(), size.height(), angle, margins.left())
                        << size << angle << margins;
                }
            }
        }
    }

    // Exact where the picture is turned freely, within a pixel where it stands on whole pixels.
    void ownFramesFollowTheSettings()
    {
        QFETCH(QSize, size);
        QFETCH(int, angle);
        QFETCH(QMargins, margins);
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.angle = angle;
        framing.margins = margins;
        QSize reported;
        const QTransform expected =
            ZTBatchOutputSettings::CalculateOutputTransformation(size, angle, margins, &reported);

        const FramePlacement placement(size, framing);

        QCOMPARE(placement.frame, size);
        const QRectF area(0, 0, size.width(), size.height());
        const std::array<QPointF, 4> corners{expected.map(area.topLeft()), expected.map(area.topRight()),
                                             expected.map(area.bottomRight()), expected.map(area.bottomLeft())};
        const bool standsOnPixels = placement.quarterTurns >= 0;
        QCOMPARE(standsOnPixels, angle % 90 == 0 || !reported.isValid());
        const double tolerance = standsOnPixels ? 1.0 : 1e-6;
        for (std::size_t i = 0; i < 4; ++i) {
            QVERIFY2(Length(placement.corners[i] - corners[i]) <= tolerance,
                     qPrintable(QStringLiteral("corner %1").arg(i)));
        }
        if (standsOnPixels && reported.isValid()) {
            QCOMPARE(placement.drawn, reported.expandedTo(QSize(1, 1)));
            QCOMPARE(placement.upright.size(), angle % 180 == 0 ? placement.drawn : placement.drawn.transposed());
        }
        const QRectF drawn(QPointF(0, 0), QSizeF(placement.drawn));
        QVERIFY(Length(placement.toFrame.map(drawn.topLeft()) - placement.corners[0]) < 1e-6);
        QVERIFY(Length(placement.toFrame.map(drawn.topRight()) - placement.corners[1]) < 1e-6);
        QVERIFY(Length(placement.toFrame.map(drawn.bottomRight()) - placement.corners[2]) < 1e-6);
        QVERIFY(Length(placement.toFrame.map(drawn.bottomLeft()) - placement.corners[3]) < 1e-6);
    }

    void customFramesAreUsedUp_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("angle");
        QTest::addColumn<QRect>("expected"); // where the picture stands
        const QSize photo(300, 200);
        QTest::newRow("smaller, same ratio") << photo << QSize(150, 100) << QMargins() << 0 << QRect(0, 0, 150, 100);
        QTest::newRow("larger, same ratio") << photo << QSize(900, 600) << QMargins() << 0 << QRect(0, 0, 900, 600);
        QTest::newRow("square") << photo << QSize(600, 600) << QMargins() << 0 << QRect(0, 100, 600, 400);
        QTest::newRow("margins within the room beside it")
            << photo << QSize(600, 600) << QMargins(0, 90, 0, 90) << 0 << QRect(0, 100, 600, 400);
        QTest::newRow("margins on the tight sides")
            << photo << QSize(600, 600) << QMargins(30, 0, 30, 0) << 0 << QRect(30, 120, 540, 360);
        QTest::newRow("one margin moves it")
            << photo << QSize(600, 600) << QMargins(60, 0, 0, 0) << 0 << QRect(60, 120, 540, 360);
        QTest::newRow("on its side it uses the height")
            << photo << QSize(400, 600) << QMargins() << 90 << QRect(0, 0, 400, 600);
        QTest::newRow("upside down") << photo << QSize(600, 600) << QMargins(30, 0, 30, 0) << 180
                                     << QRect(30, 120, 540, 360);
        QTest::newRow("portrait in landscape")
            << QSize(200, 300) << QSize(600, 300) << QMargins() << 0 << QRect(200, 0, 200, 300);
        QTest::newRow("nothing free: fitted")
            << photo << QSize(600, 600) << QMargins(300, 0, 300, 0) << 45 << QRect(0, 100, 600, 400);
    }

    void customFramesAreUsedUp()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, frame);
        QFETCH(QMargins, margins);
        QFETCH(int, angle);
        QFETCH(QRect, expected);
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.backgroundCustomOutput = true;
        framing.backgroundCustomSize = frame;
        framing.margins = margins;
        framing.angle = angle;
        const FramePlacement placement(picture, framing);
        QCOMPARE(placement.frame, frame);
        QCOMPARE(placement.upright, expected);
    }

    // A picture that is turned freely keeps its ratio, stays in the free area and touches two of its opposite sides.
    void turnedPicturesFillTheFreeArea_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("angle");
        for (const QSize& picture : {QSize(600, 400), QSize(400, 600), QSize(500, 500), QSize(900, 100)}) {
            for (const QSize& frame : {QSize(), QSize(1000, 1000), QSize(300, 900), QSize(900, 300)}) {
                for (const int angle : {5, 30, 45, 80, 110, 200, 340, -33}) {
                    QTest::addRow("%dx%d in %dx%d, %d degrees", picture.width(), picture.height(), frame.width(),
                                  frame.height(), angle)
                        << picture << frame << QMargins(10, 20, 30, 15) << angle;
                }
            }
        }
    }

    void turnedPicturesFillTheFreeArea()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, frame);
        QFETCH(QMargins, margins);
        QFETCH(int, angle);
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.backgroundCustomOutput = frame.isValid();
        framing.backgroundCustomSize = frame;
        framing.margins = margins;
        framing.angle = angle;
        const FramePlacement placement(picture, framing);

        const QSize used = frame.isValid() ? frame : picture;
        const Bounds bounds = BoundsOf(placement);
        constexpr double rounding = 0.01;
        QVERIFY(bounds.left >= margins.left() - rounding);
        QVERIFY(bounds.top >= margins.top() - rounding);
        QVERIFY(bounds.right <= used.width() - margins.right() + rounding);
        QVERIFY(bounds.bottom <= used.height() - margins.bottom() + rounding);

        const double width = Length(placement.corners[1] - placement.corners[0]);
        const double height = Length(placement.corners[3] - placement.corners[0]);
        const double ratio = picture.width() / double(picture.height());
        QVERIFY2(qAbs(width - ratio * height) <= ratio + 1,
                 qPrintable(QStringLiteral("%1 x %2").arg(width).arg(height)));
        const QPointF across = placement.corners[1] - placement.corners[0];
        const double turned = qRadiansToDegrees(std::atan2(across.y(), across.x()));
        QVERIFY(qAbs(std::remainder(turned - angle, 360)) < 1e-6);
    }

    // Margins that take everything away are no reason to lose the picture.
    void marginsThatLeaveNothingFreeHaveNoEffect()
    {
        for (const QMargins& margins : {QMargins(50, 0, 50, 0), QMargins(0, 30, 0, 70), QMargins(999, 999, 999, 999)}) {
            ZTBatchOutputSettings::Transformation framing = PlainFraming();
            framing.margins = margins;
            framing.angle = 30;
            const FramePlacement placement(QSize(100, 80), framing);
            QVERIFY(!placement.hasRoom);
            QCOMPARE(placement.quarterTurns, 0);
            QCOMPARE(placement.upright, QRect(0, 0, 100, 80));
            QVERIFY(placement.CoversFrame());
        }
    }

    void onlyWholeFramesAreCovered()
    {
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        QVERIFY(FramePlacement(QSize(100, 80), framing).hasRoom);
        QVERIFY(FramePlacement(QSize(100, 80), framing).CoversFrame());
        framing.angle = 180;
        QVERIFY(FramePlacement(QSize(100, 80), framing).CoversFrame());
        framing.angle = 1;
        QVERIFY(!FramePlacement(QSize(100, 80), framing).CoversFrame());
        framing.angle = 0;
        framing.margins = QMargins(1, 0, 0, 0);
        QVERIFY(!FramePlacement(QSize(100, 80), framing).CoversFrame());
    }
};

QTEST_GUILESS_MAIN(TestFramePlacement)

#include "tst_frameplacement.moc"
