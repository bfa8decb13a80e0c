// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "TiffDirectory.h"
#include "WorkerBench.h"

#include <QTest>

using namespace BatchProtocol;
using namespace BatchWorker;

/// GIF files whose first frame leaves a part of the canvas free.
class tst_WorkerGif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesTheCanvasTransparent_data();
    void leavesTheCanvasTransparent();
    void readsAFrameThatFillsTheCanvas();
    void bearsFramesOutside();

private:
    QByteArray Framed(const Picture& picture, const QSize& canvas, const QPoint& place);

    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerGif::initTestCase()
{
    StartPictures();
    bench = std::make_unique<WorkerBench>();
}

// A GIF file of `picture` as its only frame at `place` of a canvas.
QByteArray tst_WorkerGif::Framed(const Picture& picture, const QSize& canvas, const QPoint& place)
{
    WritePicture(picture, bench->Path(Text("frame.gif")));
    QByteArray bytes = bench->Bytes(Text("frame.gif"));
    const auto word = [](int value) { return LittleEndian(quint16(value)); };
    const QByteArray size = word(picture.width()) + word(picture.height());
    const int frame = bytes.indexOf("," + QByteArray(4, '\0') + size);
    if (frame < 0) {
        qFatal("The frame is not found.");
    }
    if (picture.bands() < 4) {
        const int control = bytes.indexOf("\x21\xF9\x04"); // names a transparent colour in any case
        bytes[control + 3] = char(bytes[control + 3] & ~1);
    }
    bytes.replace(6, 4, word(canvas.width()) + word(canvas.height()));
    return bytes.replace(frame + 1, 4, word(place.x()) + word(place.y()));
}

void tst_WorkerGif::leavesTheCanvasTransparent_data()
{
    QTest::addColumn<int>("bands");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("at the top left") << 3 << QPoint(0, 0);
    QTest::newRow("in the middle") << 3 << QPoint(5, 4);
    QTest::newRow("at the bottom right") << 3 << QPoint(14, 11);
    QTest::newRow("with transparency of its own") << 4 << QPoint(5, 4);
    QTest::newRow("grey") << 1 << QPoint(5, 4);
}

void tst_WorkerGif::leavesTheCanvasTransparent()
{
    QFETCH(const int, bands);
    QFETCH(const QPoint, place);

    const Picture chart = Chart(16, 9, 4);
    const Picture mask = (Picture::xyz(16, 9).extract_band(0) < 8);
    const Picture frame = bands == 4 ? chart.bandjoin(mask) : bands == 1 ? chart.extract_band(0) : chart;
    bench->WriteBytes(Text("in.gif"), Framed(frame, QSize(30, 20), place));
    QCOMPARE(bench->Make(Text("in.gif"), Text("out.png"), Text("PNG")).reason, QString());
    const Picture result = ReadPicture(bench->Path(Text("out.png")));
    QCOMPARE(result.width(), 30);
    QCOMPARE(result.height(), 20);
    QVERIFY(result.has_alpha());
    const QVector<int> alpha = ChannelOf(result, result.bands() - 1);
    const QRect inside(place, QSize(16, 9));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 30; ++x) {
            const bool isSeen = inside.contains(x, y) && (bands != 4 || x - place.x() < 8);
            QCOMPARE(alpha[y * 30 + x], isSeen ? 255 : 0);
        }
    }
    // The pixels of the frame are what another way of reading it gives.
    const Picture expected = ReadPicture(bench->Path(Text("frame.gif")));
    const int colours = std::min(expected.bands(), result.bands() - 1) < 3 ? 1 : 3;
    const auto ofColours = Picture::option()->set("n", colours);
    const Picture cut = result.extract_area(place.x(), place.y(), bands == 4 ? 8 : 16, 9).extract_band(0, ofColours);
    const auto ofExpected = Picture::option()->set("n", colours);
    const Picture same = expected.extract_area(0, 0, bands == 4 ? 8 : 16, 9).extract_band(0, ofExpected);
    QCOMPARE(LargestDifference(cut, same), 0.0);
}

void tst_WorkerGif::readsAFrameThatFillsTheCanvas()
{
    bench->WriteBytes(Text("in.gif"), Framed(Chart(16, 9, 4), QSize(16, 9), QPoint()));
    QCOMPARE(bench->Make(Text("in.gif"), Text("out.png"), Text("PNG")).reason, QString());
    QVERIFY(!ReadPicture(bench->Path(Text("out.png"))).has_alpha());
}

void tst_WorkerGif::bearsFramesOutside()
{
    for (const QPoint& place : {QPoint(25, 15), QPoint(40, 0), QPoint(65535, 65535)}) {
        bench->WriteBytes(Text("in.gif"), Framed(Chart(16, 9, 4), QSize(30, 20), place));
        const Report report = bench->Make(Text("in.gif"), Text("out.png"), Text("PNG"));
        QVERIFY(report.reason.isEmpty() || report.failure == BatchJob::PolicyKind::Input);
    }
}

QTEST_GUILESS_MAIN(tst_WorkerGif)
#include "tst_workergif.moc"
