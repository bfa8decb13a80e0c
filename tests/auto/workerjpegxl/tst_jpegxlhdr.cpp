// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourJudge.h"
#include "HdrAnchors.h"
#include "JxlFile.h"
#include "PngParts.h"
#include "Text.h"
#include "WorkerBench.h"

#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace ColourJudge;
using namespace HdrAnchors;

namespace {

enum class Space {
    Bt2100,
    DisplayP3,
    OfItsOwn,
    Grey,
};

constexpr Points ofItsOwn{0.3457, 0.3585, 0.68, 0.31, 0.21, 0.72, 0.14, 0.05};

// The patches one beside the other, large enough that each has its colour whatever an encoder does at edges.
JxlFile FileOf(const QVector<Anchor>& anchors, JxlTransferFunction transfer, Space space)
{
    constexpr int width = 48;
    JxlLayer layer;
    layer.values = [anchors](int x, int, int channel) { return anchors[x / width].hdr[std::size_t(channel)]; };
    JxlFile file;
    file.size = QSize(width * anchors.size(), width);
    file.layers = {layer};
    file.transfer = transfer;
    file.isGrey = space == Space::Grey;
    file.primaries = space == Space::DisplayP3 ? JXL_PRIMARIES_P3 : JXL_PRIMARIES_2100;
    if (space == Space::OfItsOwn) {
        for (const double number : ofItsOwn) {
            file.points.append(number);
        }
    }
    return file;
}

QByteArray ProfileFor(Space space)
{
    switch (space) {
    case Space::Grey:
        return GreyProfile(SrgbLight);
    case Space::DisplayP3:
        return RgbProfile(displayP3, SrgbLight);
    case Space::OfItsOwn:
        return RgbProfile(ofItsOwn, SrgbLight);
    default:
        return RgbProfile(rec2020, SrgbLight);
    }
}

} // namespace

/// JPEG XL that is PQ or HLG: its results are those of any other format.
class tst_JpegXlHdr : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bringsHdrToCommonScreens_data();
    void bringsHdrToCommonScreens();
};

void tst_JpegXlHdr::initTestCase()
{
    StartPictures();
}

void tst_JpegXlHdr::bringsHdrToCommonScreens_data()
{
    QTest::addColumn<int>("transfer");
    QTest::addColumn<bool>("isLossless");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("space");
    QTest::addColumn<float>("brightest");
    QTest::addColumn<double>("tolerance"); // lossless: half a step of the values at the steepest place
    const auto row = [](const char* name, JxlTransferFunction transfer, bool isLossless, int bits, Space space,
                        float brightest, double tolerance) {
        QTest::newRow(name) << int(transfer) << isLossless << bits << int(space) << brightest << tolerance;
    };
    constexpr JxlTransferFunction pq = JXL_TRANSFER_FUNCTION_PQ;
    constexpr JxlTransferFunction hlg = JXL_TRANSFER_FUNCTION_HLG;
    row("PQ, lossless", pq, true, 16, Space::Bt2100, 10'000, 0.0005);
    row("PQ, lossless, 10 bits", pq, true, 10, Space::Bt2100, 10'000, 0.003);
    row("PQ, lossless, 8 bits", pq, true, 8, Space::Bt2100, 10'000, 0.012);
    row("PQ, lossless, grey", pq, true, 16, Space::Grey, 10'000, 0.0005);
    row("PQ, lossless, P3", pq, true, 16, Space::DisplayP3, 10'000, 0.0005);
    row("PQ, lossless, primaries of its own", pq, true, 16, Space::OfItsOwn, 10'000, 0.0005);
    row("PQ, lossy", pq, false, 16, Space::Bt2100, 10'000, 0.01);
    row("PQ, lossy, brightness not said", pq, false, 16, Space::Bt2100, 0, 0.01);
    row("PQ, lossy, 8 bits", pq, false, 8, Space::Bt2100, 10'000, 0.01);
    row("PQ, lossy, grey", pq, false, 16, Space::Grey, 10'000, 0.01);
    row("PQ, lossy, P3", pq, false, 16, Space::DisplayP3, 10'000, 0.01);
    row("PQ, lossy, primaries of its own", pq, false, 16, Space::OfItsOwn, 10'000, 0.01);
    row("HLG, lossless", hlg, true, 16, Space::Bt2100, 1000, 0.0005);
    row("HLG, lossless, 8 bits", hlg, true, 8, Space::Bt2100, 1000, 0.012);
    row("HLG, lossy", hlg, false, 16, Space::Bt2100, 1000, 0.01);
    row("HLG, lossy, brightness not said", hlg, false, 16, Space::Bt2100, 0, 0.01);
}

void tst_JpegXlHdr::bringsHdrToCommonScreens()
{
    QFETCH(const int, transfer);
    QFETCH(const bool, isLossless);
    QFETCH(const int, bits);
    QFETCH(const int, space);
    QFETCH(const float, brightest);
    QFETCH(const double, tolerance);

    const QVector<Anchor> anchors = transfer == int(JXL_TRANSFER_FUNCTION_PQ) ? OfPq() : OfHlg();
    JxlFile file = FileOf(anchors, JxlTransferFunction(transfer), Space(space));
    file.bits = bits;
    file.isLossless = isLossless;
    file.brightest = brightest;
    WorkerBench bench;
    bench.WriteBytes(Text("in.jxl"), file.Bytes());
    const Report report = bench.Make(Text("in.jxl"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QCOMPARE(report.warnings.first().kind, WarningKind::ColoursConverted);
    const QByteArray profile = PngParts::ProfileOf(bench.Bytes(Text("out.png")));
    const QVector<Colour> found = PatchesOf(bench.Path(Text("out.png")), anchors.size());
    const QVector<Colour> colours{{0.8, 0.2, 0.2}, {0.2, 0.7, 0.3}, {0.2, 0.3, 0.8}, {0.5, 0.5, 0.5}, {1, 1, 1}};
    const double ofProfile = LargestDeltaE(ProfileFor(Space(space)), colours, profile, colours);
    QVERIFY2(ofProfile < 0.5, qPrintable(QString::number(ofProfile)));
    const double difference = LargestDifference(anchors, found);
    QVERIFY2(difference < tolerance, qPrintable(QString::number(difference)));
}

QTEST_GUILESS_MAIN(tst_JpegXlHdr)

#include "tst_jpegxlhdr.moc"
