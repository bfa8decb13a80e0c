// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchOutputSettings.h"

#include "DeathCase.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(QMargins)

class tst_OutputPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void againstTheGeometry_data();
    void againstTheGeometry();
    void sizesWorkedOutByHand_data();
    void sizesWorkedOutByHand();
    void centreOfThePictureGoesToTheCentreOfTheFreeArea();
    void wholePictureIsNotMoved();
    void pictureStaysInsideTheFreeArea_data();
    void pictureStaysInsideTheFreeArea();
    void outputSizeIsOptional();
    void extremeNumbers_data();
    void extremeNumbers();
    void failedAssertions_data();
    void failedAssertions();
};

namespace {

QVector<double> Numbers(const QTransform& transform)
{
    return {transform.m11(), transform.m12(), transform.m21(), transform.m22(), transform.dx(), transform.dy()};
}

bool Near(double actual, double expected, double scale)
{
    return std::abs(actual - expected) <= 1e-9 * std::max({1.0, std::abs(expected), scale});
}

} // namespace

/// placement.py beside the file has written it, and explains its columns.
void tst_OutputPlacement::againstTheGeometry_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("angle");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QSize>("expectedSize");
    QTest::addColumn<QVector<double>>("expected");

    QFile file(QStringLiteral(PLACEMENT_DATA));
    QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.errorString()));
    QMap<QByteArray, int> rowsOfBranch;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines.mid(1)) {
        if (line.isEmpty()) {
            continue;
        }
        const QList<QByteArray> fields = line.split('\t');
        QCOMPARE(fields.size(), 16);
        const auto number = [&](int i) { return fields[i].toInt(); };
        QVector<double> matrix;
        for (int i = 9; i < 15; ++i) {
            matrix.append(fields[i].toDouble());
        }
        QTest::newRow((fields.mid(0, 7).join(' ') + ": " + fields[15]).constData())
            << QSize(number(0), number(1)) << number(2) << QMargins(number(3), number(4), number(5), number(6))
            << QSize(number(7), number(8)) << matrix;
        ++rowsOfBranch[fields[15]];
    }
    for (const char* const branch :
         {"empty", "nothing free", "upright", "upright, whole", "lying", "lying, whole", "turned"}) {
        QVERIFY2(rowsOfBranch.value(branch) >= 20, branch);
    }
}

void tst_OutputPlacement::againstTheGeometry()
{
    QFETCH(QSize, size);
    QFETCH(int, angle);
    QFETCH(QMargins, margins);
    QFETCH(QSize, expectedSize);
    QFETCH(QVector<double>, expected);

    QSize outputSize(-7, -7);
    const QTransform transform =
        ZTBatchOutputSettings::CalculateOutputTransformation(size, angle, margins, &outputSize);

    QCOMPARE(outputSize, expectedSize);
    const QVector<double> actual = Numbers(transform);
    for (int i = 0; i < actual.size(); ++i) {
        // Shifts are differences of lengths as long as the picture.
        const double scale = i < 4 ? 1.0 : std::hypot(size.width(), size.height());
        QVERIFY2(Near(actual[i], expected[i], scale), qPrintable(QStringLiteral("number %1: %2 instead of %3")
                                                                     .arg(i)
                                                                     .arg(actual[i], 0, 'g', 17)
                                                                     .arg(expected[i], 0, 'g', 17)));
    }
    QVERIFY(transform.isAffine());
}

void tst_OutputPlacement::sizesWorkedOutByHand_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("angle");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QSize>("expected");

    // 800 - 10 = 790 wide would be 592.5 high, but 590 is free: 590 * 4 / 3 = 786.67.
    QTest::newRow("landscape") << QSize(800, 600) << 0 << QMargins(5, 5, 5, 5) << QSize(787, 590);
    QTest::newRow("no margins") << QSize(800, 600) << 0 << QMargins() << QSize(800, 600);
    // 800 - 10 = 790 high would be 592.5 wide: more than 600 - 10, by the margins above and below, so 600 - 200,
    // by those at the sides, decides.
    QTest::newRow("portrait, over the limit") << QSize(600, 800) << 0 << QMargins(100, 5, 100, 5) << QSize(400, 533);
    // 800 high is 600 wide, not more than 600 - 0: the margins at the sides do not matter.
    QTest::newRow("portrait, at the limit") << QSize(600, 800) << 0 << QMargins(100, 0, 100, 0) << QSize(600, 800);
    // 820 high is 615 wide, not more than 600 + 20.
    QTest::newRow("portrait, below the limit")
        << QSize(600, 800) << 0 << QMargins(100, -10, 100, -10) << QSize(615, 820);
    // The long side takes the free height: 590, 590 * 3 / 4 = 442.5.
    QTest::newRow("lying") << QSize(800, 600) << 90 << QMargins(5, 5, 5, 5) << QSize(590, 443);
    QTest::newRow("lying the other way") << QSize(800, 600) << -90 << QMargins(5, 5, 5, 5) << QSize(590, 443);
    QTest::newRow("lying after a whole turn") << QSize(800, 600) << 450 << QMargins(5, 5, 5, 5) << QSize(590, 443);
    // The long side of a portrait takes the free width: 590.
    QTest::newRow("lying portrait") << QSize(600, 800) << 90 << QMargins(5, 5, 5, 5) << QSize(443, 590);
    // A square turned by 45 degrees has its diagonal on the width: 100 / sqrt(2) = 70.7.
    QTest::newRow("square on its corner") << QSize(100, 100) << 45 << QMargins() << QSize(71, 71);
    QTest::newRow("nothing free across") << QSize(800, 600) << 30 << QMargins(400, 0, 400, 0) << QSize(-1, -1);
    QTest::newRow("nothing free down") << QSize(800, 600) << 30 << QMargins(0, 1, 0, 599) << QSize(-1, -1);
    QTest::newRow("less than nothing free") << QSize(800, 600) << 0 << QMargins(900, 0, 0, 0) << QSize(-1, -1);
    QTest::newRow("no width") << QSize(0, 600) << 0 << QMargins(5, 5, 5, 5) << QSize(0, 600);
    QTest::newRow("no height") << QSize(800, 0) << 0 << QMargins(5, 5, 5, 5) << QSize(800, 0);
    QTest::newRow("invalid") << QSize() << 0 << QMargins() << QSize(-1, -1);
}

void tst_OutputPlacement::sizesWorkedOutByHand()
{
    QFETCH(QSize, size);
    QFETCH(int, angle);
    QFETCH(QMargins, margins);
    QFETCH(QSize, expected);

    QSize outputSize(-7, -7);
    const QTransform transform =
        ZTBatchOutputSettings::CalculateOutputTransformation(size, angle, margins, &outputSize);

    QCOMPARE(outputSize, expected);
    if (!expected.isValid() || size.isEmpty()) {
        QVERIFY(transform.isIdentity());
    }
}

void tst_OutputPlacement::centreOfThePictureGoesToTheCentreOfTheFreeArea()
{
    const QTransform transform =
        ZTBatchOutputSettings::CalculateOutputTransformation(QSize(800, 600), 30, QMargins(10, 20, 50, 40), nullptr);
    const QPointF centre = transform.map(QPointF(400, 300));
    QVERIFY(Near(centre.x(), 380, 0));
    QVERIFY(Near(centre.y(), 290, 0));
}

/// Margins of opposite signs keep the size and move the centre; a picture of full size does not move.
void tst_OutputPlacement::wholePictureIsNotMoved()
{
    QSize outputSize;
    const QTransform transform =
        ZTBatchOutputSettings::CalculateOutputTransformation(QSize(800, 600), 0, QMargins(50, 0, -50, 0), &outputSize);
    QCOMPARE(outputSize, QSize(800, 600));
    QCOMPARE(transform.map(QPointF(400, 300)), QPointF(400, 300));
    QVERIFY(transform.isIdentity());
}

void tst_OutputPlacement::pictureStaysInsideTheFreeArea_data()
{
    QTest::addColumn<QSize>("size");

    for (const QSize& size : {QSize(800, 600), QSize(600, 800), QSize(500, 500), QSize(5000, 20)}) {
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
}

/// The purpose of the fit: no corner is outside the free area, and one touches its edge, or the edge of the largest box
/// of the picture's ratio in it. Quarter turns are fitted differently.
void tst_OutputPlacement::pictureStaysInsideTheFreeArea()
{
    QFETCH(QSize, size);

    const QMargins margins(9, 7, 5, 3);
    const QRectF area = QRectF(QPointF(0, 0), size).adjusted(9, 7, -5, -3);
    const double ratio = double(size.width()) / size.height();
    QSizeF box(ratio, 1);
    box.scale(area.size(), Qt::KeepAspectRatio);

    for (int angle = -400; angle <= 400; ++angle) {
        if (angle % 90 == 0) {
            continue;
        }
        const QTransform transform =
            ZTBatchOutputSettings::CalculateOutputTransformation(size, angle, margins, nullptr);
        const QRectF bounds = transform.map(QPolygonF(QRectF(QPointF(0, 0), size))).boundingRect();
        QVERIFY2(area.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(bounds), qPrintable(QString::number(angle)));
        QVERIFY2(std::abs(bounds.width() - box.width()) < 1e-6 || std::abs(bounds.height() - box.height()) < 1e-6,
                 qPrintable(QString::number(angle)));
    }
}

void tst_OutputPlacement::outputSizeIsOptional()
{
    const QVector<QSize> sizes{QSize(800, 600), QSize(), QSize(8, 6)};
    for (const QSize& size : sizes) {
        QSize outputSize;
        const QTransform with =
            ZTBatchOutputSettings::CalculateOutputTransformation(size, 12, QMargins(5, 5, 5, 5), &outputSize);
        const QTransform without =
            ZTBatchOutputSettings::CalculateOutputTransformation(size, 12, QMargins(5, 5, 5, 5), nullptr);
        QCOMPARE(with, without);
    }
}

void tst_OutputPlacement::extremeNumbers_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("angle");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QSize>("expected");

    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    // The sum of the margins overflows int, and is more than the width nevertheless.
    QTest::newRow("huge margins") << QSize(800, 600) << 0 << QMargins(most, 0, most, 0) << QSize(-1, -1);
    QTest::newRow("margins that cancel out") << QSize(800, 600) << 0 << QMargins(most, 0, -most, 0) << QSize(800, 600);
    // 2 * 2^31 is free in both directions; it is limited to the range of int.
    QTest::newRow("hugely negative margins")
        << QSize(most, most) << 0 << QMargins(least, least, 0, 0) << QSize(most, most);
    QTest::newRow("largest picture") << QSize(most, most) << 0 << QMargins() << QSize(most, most);
    // 2147483610 is 90 times an odd number, 2147483520 is 90 times an even one: turned sideways and upright.
    QTest::newRow("largest quarter turn") << QSize(800, 600) << 2147483610 << QMargins() << QSize(600, 450);
    QTest::newRow("largest half turn") << QSize(800, 600) << 2147483520 << QMargins() << QSize(800, 600);
    QTest::newRow("smallest quarter turn") << QSize(800, 600) << -2147483610 << QMargins() << QSize(600, 450);
    // 2147483647 = 127 and -2147483648 = -128 modulo 360, where a square of 1000 shrinks to
    // 1000 / (sin 53 + cos 53) = 714.06 and 1000 / (sin 52 + cos 52) = 712.42 pixels.
    QTest::newRow("largest angle") << QSize(1000, 1000) << most << QMargins() << QSize(714, 714);
    QTest::newRow("smallest angle") << QSize(1000, 1000) << least << QMargins() << QSize(712, 712);
}

void tst_OutputPlacement::extremeNumbers()
{
    QFETCH(QSize, size);
    QFETCH(int, angle);
    QFETCH(QMargins, margins);
    QFETCH(QSize, expected);

    QSize outputSize;
    ZTBatchOutputSettings::CalculateOutputTransformation(size, angle, margins, &outputSize);
    QCOMPARE(outputSize, expected);
}

void tst_OutputPlacement::failedAssertions_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no box") << QStringLiteral("placement-no-box");
    QTest::newRow("negative box") << QStringLiteral("placement-negative-box");
    QTest::newRow("box of NaN") << QStringLiteral("placement-box-of-nan");
}

void tst_OutputPlacement::failedAssertions()
{
    QFETCH(QString, name);

    const DeathReport report = RunDeathCase(name);
    QVERIFY2(report.EndedByAssertOf(QStringLiteral("src\\ZTBatchOutput")), qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_OutputPlacement)
#include "tst_outputplacement.moc"
