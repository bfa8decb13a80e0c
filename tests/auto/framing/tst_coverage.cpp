// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/worker/geometry/Coverage.h"

#include <QTest>
#include <QTransform>

using BatchWorker::Coverage;

namespace {

std::array<QPointF, 4> Corners(const QRectF& area, const QTransform& transform = QTransform())
{
    return {transform.map(area.topLeft()), transform.map(area.topRight()), transform.map(area.bottomRight()),
            transform.map(area.bottomLeft())};
}

} // namespace

class TestCoverage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(VIPS_INIT("tst_coverage") == 0); }

    void uprightRectanglesCoverPartsOfPixels()
    {
        const Coverage coverage(Corners(QRectF(1.25, 2.5, 3.5, 2)));
        QCOMPARE(coverage.OfPixel(0, 3), 0.0);
        QCOMPARE(coverage.OfPixel(1, 3), 0.75);
        QCOMPARE(coverage.OfPixel(2, 3), 1.0);
        QCOMPARE(coverage.OfPixel(4, 3), 0.75);
        QCOMPARE(coverage.OfPixel(5, 3), 0.0);
        QCOMPARE(coverage.OfPixel(2, 2), 0.5);
        QCOMPARE(coverage.OfPixel(1, 2), 0.375);
        QCOMPARE(coverage.OfPixel(4, 4), 0.375);
        QCOMPARE(coverage.OfPixel(2, 1), 0.0);
    }

    void aDiagonalHalvesItsPixels()
    {
        // A square on its point: (4, 0), (8, 4), (4, 8), (0, 4).
        const Coverage coverage({QPointF(4, 0), QPointF(8, 4), QPointF(4, 8), QPointF(0, 4)});
        QCOMPARE(coverage.OfPixel(4, 0), 0.5);
        QCOMPARE(coverage.OfPixel(3, 0), 0.5);
        QCOMPARE(coverage.OfPixel(0, 3), 0.5);
        QCOMPARE(coverage.OfPixel(7, 4), 0.5);
        QCOMPARE(coverage.OfPixel(3, 1), 1.0);
        QCOMPARE(coverage.OfPixel(5, 0), 0.0);
    }

    void aRectangleThinnerThanAPixelIsCovered()
    {
        QCOMPARE(Coverage(Corners(QRectF(2.4, 0, 0.2, 10))).OfPixel(2, 5), 0.2);
    }

    void theOrderOfTheCornersDoesNotMatter()
    {
        const std::array<QPointF, 4> corners = Corners(QRectF(1.25, 2.5, 3.5, 2));
        const Coverage reversed({corners[3], corners[2], corners[1], corners[0]});
        QCOMPARE(reversed.OfPixel(1, 3), 0.75);
        QCOMPARE(reversed.OfPixel(0, 0), 0.0);
    }

    void pixelsAddUpToTheArea_data()
    {
        QTest::addColumn<double>("angle");
        for (const double angle : {0.0, 1.0, 17.5, 30.0, 45.0, 89.0, 133.0, -60.0}) {
            QTest::addRow("%g degrees", angle) << angle;
        }
    }

    void pixelsAddUpToTheArea()
    {
        QFETCH(double, angle);
        const QTransform turned = QTransform().translate(40.3, 40.7).rotate(angle);
        const Coverage coverage(Corners(QRectF(-25.2, -11.6, 50.4, 23.2), turned));
        const BatchWorker::Picture frame = coverage.OfFrame(QSize(80, 81));
        const double sum = frame.avg() * 80 * 81;
        QVERIFY2(qAbs(sum - 50.4 * 23.2) < 0.01, qPrintable(QString::number(sum)));
        QCOMPARE(frame.max(), 1.0);
        QCOMPARE(frame.min(), 0.0);
    }
};

QTEST_GUILESS_MAIN(TestCoverage)

#include "tst_coverage.moc"
