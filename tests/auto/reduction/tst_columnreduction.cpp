// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureValues.h"
#include "TestPictures.h"

#include "server/worker/geometry/ByteColumns.h"
#include "server/worker/geometry/ColumnReduction.h"
#include "server/worker/geometry/ReductionPlan.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

using namespace BatchWorker;

namespace {

constexpr double pi = 3.14159265358979323846;

double Weight(double distance)
{
    if (distance == 0.0) {
        return 1.0;
    }
    return std::abs(distance) < 3.0
               ? std::sin(pi * distance) / (pi * distance) * std::sin(pi * distance / 3.0) / (pi * distance / 3.0)
               : 0.0;
}

// Straight from the definition, for every pixel anew.
double ReducedValue(const Values& values, int width, int newWidth, int bands, int band, int x, int y)
{
    const double factor = double(width) / newWidth;
    const double middle = (x + 0.5) * factor - 0.5;
    double sum = 0.0;
    double weights = 0.0;
    for (int old = int(middle - 3.0 * factor) - 2; old <= int(middle + 3.0 * factor) + 2; ++old) {
        const double weight = Weight((old - middle) / factor);
        sum += weight * values[std::size_t((y * width + qBound(0, old, width - 1)) * bands + band)];
        weights += weight;
    }
    return sum / weights;
}

} // namespace

class tst_ColumnReduction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StartPictures(); }
    void givesWeightedSums_data();
    void givesWeightedSums();
    void keepsPlainValues_data() { givesWeightedSums_data(); }
    void keepsPlainValues();
    void findsTheSameInPieces_data() { givesWeightedSums_data(); }
    void findsTheSameInPieces();
    void everyUnitFindsTheSame_data();
    void everyUnitFindsTheSame();
};

void tst_ColumnReduction::givesWeightedSums_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("bands");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("newWidth");
    const QVector<QPair<QString, int>> formats{{QStringLiteral("8 bits"), VIPS_FORMAT_UCHAR},
                                               {QStringLiteral("16 bits"), VIPS_FORMAT_USHORT},
                                               {QStringLiteral("float"), VIPS_FORMAT_FLOAT}};
    const QVector<QPair<int, int>> widths{{160, 100}, {161, 160}, {100, 100}, {300, 7},
                                          {1200, 10}, {97, 1},    {2, 1},     {1, 1}};
    for (const auto& format : formats) {
        for (int bands = 1; bands <= 6; ++bands) {
            for (const auto& [width, newWidth] : widths) {
                QTest::addRow("%s, %d bands, %d to %d", qPrintable(format.first), bands, width, newWidth)
                    << format.second << bands << width << newWidth;
            }
        }
    }
}

void tst_ColumnReduction::givesWeightedSums()
{
    QFETCH(const int, format);
    QFETCH(const int, bands);
    QFETCH(const int, width);
    QFETCH(const int, newWidth);
    constexpr int height = 3;
    const double largest = LargestOf(VipsBandFormat(format));
    const Values old = RandomValues(width, height, bands, largest);
    const Picture reduced = WithFewerColumns(PictureOf(old, width, height, bands, VipsBandFormat(format)), newWidth);
    QCOMPARE(reduced.width(), newWidth);
    QCOMPARE(reduced.height(), height);
    QCOMPARE(reduced.bands(), bands);
    QCOMPARE(int(reduced.format()), format);

    // Half a step is the rounding's, the rest that of the weights.
    const double tolerance = largest > 1.0 ? 0.5 + largest * 1e-3 : 1e-5;
    const Values found = ExactValuesOf(reduced);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < newWidth; ++x) {
            for (int band = 0; band < bands; ++band) {
                const double exact = ReducedValue(old, width, newWidth, bands, band, x, y);
                const double expected = largest > 1.0 ? qBound(0.0, exact, largest) : exact;
                const double value = found[std::size_t((y * newWidth + x) * bands + band)];
                QVERIFY2(std::abs(value - expected) <= tolerance,
                         qPrintable(QStringLiteral("column %1: %2 instead of %3").arg(x).arg(value).arg(expected)));
            }
        }
    }
}

void tst_ColumnReduction::keepsPlainValues()
{
    QFETCH(const int, format);
    QFETCH(const int, bands);
    QFETCH(const int, width);
    QFETCH(const int, newWidth);
    for (const double part : {0.0, 0.5, 1.0}) {
        const double value = std::round(part * LargestOf(VipsBandFormat(format)));
        const Picture plain =
            PictureOf(Values(std::size_t(width * bands), value), width, 1, bands, VipsBandFormat(format));
        for (const double found : ExactValuesOf(WithFewerColumns(plain, newWidth))) {
            QVERIFY(std::abs(found - value) < 1e-5);
        }
    }
}

void tst_ColumnReduction::findsTheSameInPieces()
{
    QFETCH(const int, format);
    QFETCH(const int, bands);
    QFETCH(const int, width);
    QFETCH(const int, newWidth);
    constexpr int height = 20;
    const Values old = RandomValues(width, height, bands, LargestOf(VipsBandFormat(format)));
    const Picture reduced = WithFewerColumns(PictureOf(old, width, height, bands, VipsBandFormat(format)), newWidth);
    const int left = newWidth / 3;
    const int right = newWidth - newWidth / 4;
    const Picture piece = reduced.crop(left, 5, right - left, 7);
    QCOMPARE(ExactValuesOf(piece), ExactValuesOf(reduced.copy_memory().crop(left, 5, right - left, 7)));
}

void tst_ColumnReduction::everyUnitFindsTheSame_data()
{
    QTest::addColumn<int>("bands");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("newWidth");
    for (int bands = 1; bands <= 9; ++bands) {
        for (const auto& [width, newWidth] :
             QVector<QPair<int, int>>{{160, 100}, {161, 160}, {640, 9}, {2000, 1900}, {3, 2}, {1, 1}}) {
            QTest::addRow("%d bands, %d to %d", bands, width, newWidth) << bands << width << newWidth;
        }
    }
}

void tst_ColumnReduction::everyUnitFindsTheSame()
{
    if (!ByteColumns::HasVectorUnit()) {
        QSKIP("This processor has one unit only.");
    }
    QFETCH(const int, bands);
    QFETCH(const int, width);
    QFETCH(const int, newWidth);
    const ReductionPlan plan(width, newWidth, ReductionPlan::Arithmetic::Exact);
    // The lines end where their memory does: a step beyond is found by the address sanitizer.
    std::array<std::vector<std::uint8_t>, 2> lines;
    std::mt19937 random(std::mt19937::result_type(width * 31 + bands));
    for (auto& line : lines) {
        line.resize(std::size_t(width * bands));
        std::generate(line.begin(), line.end(), [&random] { return std::uint8_t(random()); });
    }
    for (const int begin : {0, newWidth / 2}) {
        const auto reduced = [&](ByteColumns::Unit unit) {
            std::array<std::vector<std::uint8_t>, 2> result;
            for (auto& line : result) {
                line.resize(std::size_t((newWidth - begin) * bands));
            }
            const int skipped = plan.firsts[std::size_t(begin)] * bands;
            ByteColumns(plan, begin, newWidth, bands, unit)
                .Reduce({lines[0].data() + skipped, lines[1].data() + skipped}, {result[0].data(), result[1].data()});
            return result;
        };
        QVERIFY(reduced(ByteColumns::Unit::Vector) == reduced(ByteColumns::Unit::Plain));
    }
}

QTEST_GUILESS_MAIN(tst_ColumnReduction)
#include "tst_columnreduction.moc"
