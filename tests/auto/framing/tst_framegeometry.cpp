// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include "server/worker/framing/Framing.h"
#include "server/worker/framing/Placement.h"

#include <QPainter>
#include <QTest>
#include <QtMath>

using namespace FramingPictures;

Q_DECLARE_METATYPE(QMargins)

namespace {

// The same geometry by an independent renderer.
QImage Painted(const QImage& picture, const QTransform& placement, const QColor& background)
{
    QImage frame(picture.size(), QImage::Format_RGBA8888);
    frame.fill(background);
    QPainter painter(&frame);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setTransform(placement);
    painter.drawImage(QPoint(0, 0), picture);
    return frame;
}

int Difference(const QColor& a, const QColor& b)
{
    return qMax(qMax(qAbs(a.red() - b.red()), qAbs(a.green() - b.green())),
                qMax(qAbs(a.blue() - b.blue()), qAbs(a.alpha() - b.alpha())));
}

double DistanceToLine(const QPointF& place, const QPointF& from, const QPointF& to)
{
    const QPointF along = to - from;
    const QPointF away = place - from;
    return qAbs(along.x() * away.y() - along.y() * away.x()) / std::hypot(along.x(), along.y());
}

bool IsNearEdge(const QPointF& place, const std::array<QPointF, 4>& corners)
{
    constexpr double band = 1.5;
    for (std::size_t i = 0; i < 4; ++i) {
        if (DistanceToLine(place, corners[i], corners[(i + 1) % 4]) < band) {
            return true;
        }
    }
    return false;
}

} // namespace

class TestFrameGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(VIPS_INIT("tst_framegeometry") == 0); }

    void framedPicturesLookAsPainted_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("angle");
        QTest::addColumn<QMargins>("margins");
        for (const QSize& size : {QSize(240, 160), QSize(150, 230), QSize(200, 200)}) {
            for (const int angle : {0, 3, 30, 45, 90, 120, 180, 225, 270, 300, -7}) {
                for (const QMargins& margins : {QMargins(5, 5, 5, 5), QMargins(40, 10, 0, 30)}) {
                    QTest::addRow("%dx%d, %d degrees, left margin %d", size.width(), size.height(), angle,
                                  margins.left())
                        << size << angle << margins;
                }
            }
        }
    }

    // Off the edges the pictures differ by the resampling filters only; in a band along the edges by the antialiasing,
    // too. Where the picture stands on whole pixels, which moves its edges by up to a pixel, it is painted so as well.
    void framedPicturesLookAsPainted()
    {
        QFETCH(QSize, size);
        QFETCH(int, angle);
        QFETCH(QMargins, margins);
        const QImage picture = Landscape(size);
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.angle = angle;
        framing.margins = margins;
        framing.backgroundType = int(BatchJob::BackgroundType::Colour);
        framing.backgroundColor = QColor(250, 250, 250);

        BatchJob::Warnings warnings;
        const QImage framed = ToImage(BatchWorker::FramePicture(FromImage(picture), framing, {}, warnings));
        const BatchWorker::FramePlacement placement(size, framing);
        const QTransform onWholePixels = QTransform::fromScale(placement.drawn.width() / double(size.width()),
                                                               placement.drawn.height() / double(size.height())) *
                                         placement.toFrame;
        const QTransform exact = ZTBatchOutputSettings::CalculateOutputTransformation(size, angle, margins, nullptr);
        const QImage painted =
            Painted(picture, placement.quarterTurns >= 0 ? onWholePixels : exact, framing.backgroundColor);

        QCOMPARE(framed.size(), painted.size());
        double sum = 0;
        double edgeSum = 0;
        int worst = 0;
        int edgeCount = 0;
        int count = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const int difference = Difference(framed.pixelColor(x, y), painted.pixelColor(x, y));
                if (IsNearEdge(QPointF(x + 0.5, y + 0.5), placement.corners)) {
                    edgeSum += difference;
                    ++edgeCount;
                } else {
                    sum += difference;
                    worst = qMax(worst, difference);
                    ++count;
                }
            }
        }
        const QString found =
            QStringLiteral("mean %1, worst %2, edge mean %3").arg(sum / count).arg(worst).arg(edgeSum / edgeCount);
        QVERIFY2(sum / count < 0.8, qPrintable(found));
        QVERIFY2(worst <= 4, qPrintable(found));
        QVERIFY2(edgeSum / edgeCount < 1, qPrintable(found));
    }
};

QTEST_GUILESS_MAIN(TestFrameGeometry)

#include "tst_framegeometry.moc"
