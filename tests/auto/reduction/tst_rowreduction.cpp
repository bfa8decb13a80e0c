// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureValues.h"
#include "TestPictures.h"

#include "server/worker/geometry/ByteRows.h"
#include "server/worker/geometry/ReductionPlan.h"
#include "server/worker/geometry/RowReduction.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

using namespace BatchWorker;

class tst_RowReduction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StartPictures(); }
    void givesTheLibrarysValues_data();
    void givesTheLibrarysValues();
    void findsTheSameInPieces_data() { givesTheLibrarysValues_data(); }
    void findsTheSameInPieces();
    void everyUnitFindsTheSame_data();
    void everyUnitFindsTheSame();
};

void tst_RowReduction::givesTheLibrarysValues_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("bands");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("newHeight");
    const QVector<QPair<QString, int>> formats{{QStringLiteral("8 bits"), VIPS_FORMAT_UCHAR},
                                               {QStringLiteral("16 bits"), VIPS_FORMAT_USHORT},
                                               {QStringLiteral("float"), VIPS_FORMAT_FLOAT}};
    const QVector<QPair<int, int>> heights{{160, 100}, {161, 160}, {161, 83}, {1003, 300},
                                           {399, 100}, {13, 9},    {3, 2},    {2, 1}};
    for (const auto& format : formats) {
        for (const int bands : {1, 2, 3, 4, 5}) {
            for (const auto& [height, newHeight] : heights) {
                QTest::addRow("%s, %d bands, %d to %d", qPrintable(format.first), bands, height, newHeight)
                    << format.second << bands << height << newHeight;
            }
        }
    }
}

void tst_RowReduction::givesTheLibrarysValues()
{
    QFETCH(const int, format);
    QFETCH(const int, bands);
    QFETCH(const int, height);
    QFETCH(const int, newHeight);
    constexpr int width = 97;
    const double largest = LargestOf(VipsBandFormat(format));
    const Values old = RandomValues(width, height, bands, largest);
    const Picture picture = PictureOf(old, width, height, bands, VipsBandFormat(format));
    const Picture reduced = WithFewerRows(picture, newHeight);
    QCOMPARE(reduced.width(), width);
    QCOMPARE(reduced.height(), newHeight);
    QCOMPARE(reduced.bands(), bands);
    QCOMPARE(int(reduced.format()), format);

    const Picture expected = picture.resize(1.0, Picture::option()->set("vscale", double(newHeight) / height));
    const Values expectedValues = ExactValuesOf(expected);
    const Values found = ExactValuesOf(reduced);
    QCOMPARE(found.size(), expectedValues.size());
    if (format == VIPS_FORMAT_UCHAR) {
        QVERIFY(found == expectedValues);
    }
    // At 16 bits the weights of the library are coarse: a step of 8 bits is allowed.
    const double tolerance = largest > 1.0 ? largest / 255.0 : 1e-6;
    for (std::size_t i = 0; i < found.size(); ++i) {
        QVERIFY2(std::abs(found[i] - expectedValues[i]) <= tolerance,
                 qPrintable(QStringLiteral("value %1: %2 instead of %3").arg(i).arg(found[i]).arg(expectedValues[i])));
    }
}

void tst_RowReduction::findsTheSameInPieces()
{
    QFETCH(const int, format);
    QFETCH(const int, bands);
    QFETCH(const int, height);
    QFETCH(const int, newHeight);
    constexpr int width = 97;
    const Values old = RandomValues(width, height, bands, LargestOf(VipsBandFormat(format)));
    const Picture reduced = WithFewerRows(PictureOf(old, width, height, bands, VipsBandFormat(format)), newHeight);
    const int top = newHeight / 3;
    const int bottom = newHeight - newHeight / 4;
    const Picture piece = reduced.crop(11, top, 70, bottom - top);
    QCOMPARE(ExactValuesOf(piece), ExactValuesOf(reduced.copy_memory().crop(11, top, 70, bottom - top)));
}

void tst_RowReduction::everyUnitFindsTheSame_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("newHeight");
    for (const int count : {1, 31, 32, 33, 64, 300}) {
        for (const auto& [height, newHeight] : QVector<QPair<int, int>>{{16, 10}, {64, 9}, {3, 2}, {2, 1}, {1, 1}}) {
            QTest::addRow("%d values, %d to %d", count, height, newHeight) << count << height << newHeight;
        }
    }
}

void tst_RowReduction::everyUnitFindsTheSame()
{
    if (!ByteRows::HasVectorUnit()) {
        QSKIP("This processor has one unit only.");
    }
    QFETCH(const int, count);
    QFETCH(const int, height);
    QFETCH(const int, newHeight);
    // The rows end where their memory does: a step beyond is found by the address sanitizer.
    std::mt19937 random(std::mt19937::result_type(count * 31 + height));
    std::vector<std::uint8_t> old(std::size_t(count * height));
    std::generate(old.begin(), old.end(), [&random] { return std::uint8_t(random()); });
    for (const auto arithmetic : {ReductionPlan::Arithmetic::Exact, ReductionPlan::Arithmetic::OfLibrary}) {
        const ReductionPlan plan(height, newHeight, arithmetic);
        const auto reduced = [&](int row, ByteRows::Unit unit) {
            std::vector<std::uint8_t> result(std::size_t(count), 0);
            const std::uint8_t* const source = &old[std::size_t(plan.firsts[std::size_t(row)] * count)];
            ByteRows(plan, count, unit).Reduce(row, source, count, result.data());
            return result;
        };
        for (int row = 0; row < newHeight; ++row) {
            QVERIFY(reduced(row, ByteRows::Unit::Vector) == reduced(row, ByteRows::Unit::Plain));
        }
    }
}

QTEST_GUILESS_MAIN(tst_RowReduction)
#include "tst_rowreduction.moc"
