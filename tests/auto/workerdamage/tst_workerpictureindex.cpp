// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include <QtEndian>
#include <QtTest>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

template<typename Number>
void Append(QByteArray& bytes, Number number, bool isLittleEndian)
{
    char raw[sizeof(number)];
    if (isLittleEndian) {
        qToLittleEndian(number, raw);
    } else {
        qToBigEndian(number, raw);
    }
    bytes.append(raw, sizeof(number));
}

/// The index of pictures with these attributes, as a segment of a JPEG file. Layout: CIPA DC-007, section 5.
QByteArray IndexSegment(const QVector<quint32>& attributes, bool isLittleEndian)
{
    constexpr quint16 undefinedType = 7;
    constexpr quint16 longType = 4;
    constexpr quint32 firstDirectory = 8;
    constexpr quint32 entries = firstDirectory + 2 + 3 * 12 + 4;
    const auto append = [isLittleEndian](QByteArray& to, auto number) { Append(to, number, isLittleEndian); };
    QByteArray index(isLittleEndian ? QByteArray("II*\0", 4) : QByteArray("MM\0*", 4));
    append(index, firstDirectory);
    append(index, quint16(3));
    append(index, quint16(0xB000));
    append(index, undefinedType);
    append(index, quint32(4));
    index.append("0100");
    append(index, quint16(0xB001));
    append(index, longType);
    append(index, quint32(1));
    append(index, quint32(attributes.size()));
    append(index, quint16(0xB002));
    append(index, undefinedType);
    append(index, quint32(attributes.size() * 16));
    append(index, entries);
    append(index, quint32(0));
    for (const quint32 attribute : attributes) {
        append(index, attribute);
        append(index, quint32(1000)); // size
        append(index, quint32(0));    // place
        append(index, quint32(0));    // dependent pictures
    }
    const QByteArray content = QByteArray("MPF\0", 4) + index;
    QByteArray segment("\xFF\xE2");
    Append(segment, quint16(content.size() + 2), false);
    return segment + content;
}

} // namespace

/// JPEG files that hold several pictures, and an index of them.
class tst_WorkerPictureIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StartPictures(); }
    void tellsOfFurtherViews_data();
    void tellsOfFurtherViews();
    void damagedIndexesAreIgnored_data();
    void damagedIndexesAreIgnored();
    void sizesOfJpeg2000AreNoPages();

private:
    /// Puts `segment` behind the first bytes of a JPEG file, and the same picture once more at its end.
    static QByteArray WithSegment(const QByteArray& jpeg, const QByteArray& segment)
    {
        return jpeg.left(2) + segment + jpeg.mid(2) + jpeg;
    }
    static QStringList PageTexts(const Report& report)
    {
        return BatchJob::TextsOf(report.warnings).filter(Text("pages"));
    }
};

void tst_WorkerPictureIndex::tellsOfFurtherViews_data()
{
    QTest::addColumn<QVector<quint32>>("attributes");
    QTest::addColumn<QStringList>("warnings");
    constexpr quint32 representative = 0x20000000;
    constexpr quint32 primary = 0x030000;
    constexpr quint32 smallPreview = 0x010001;
    constexpr quint32 largePreview = 0x010002;
    constexpr quint32 panorama = 0x020001;
    constexpr quint32 stereo = 0x020002;
    constexpr quint32 angle = 0x020003;
    constexpr quint32 unspecified = 0; // as gain maps are
    const QStringList none;
    const QStringList two{Text("it has 2 pages; only the first is used")};
    const QStringList three{Text("it has 3 pages; only the first is used")};
    QTest::newRow("stereo") << QVector<quint32>{representative | stereo, stereo} << two;
    QTest::newRow("panorama") << QVector<quint32>{representative | primary, panorama, panorama} << three;
    QTest::newRow("angles and a preview") << QVector<quint32>{angle, smallPreview, angle} << two;
    QTest::newRow("previews") << QVector<quint32>{representative | primary, smallPreview, largePreview} << none;
    QTest::newRow("gain map") << QVector<quint32>{primary, unspecified} << none;
    QTest::newRow("one picture") << QVector<quint32>{primary} << none;
    QTest::newRow("no picture") << QVector<quint32>{} << none;
}

void tst_WorkerPictureIndex::tellsOfFurtherViews()
{
    QFETCH(const QVector<quint32>, attributes);
    QFETCH(const QStringList, warnings);
    WorkerBench bench;
    WritePicture(Chart(40, 30), bench.Path(Text("plain.jpg")));
    for (const bool isLittleEndian : {true, false}) {
        bench.WriteBytes(Text("in.mpo"),
                         WithSegment(bench.Bytes(Text("plain.jpg")), IndexSegment(attributes, isLittleEndian)));
        const Report report = bench.Make(Text("in.mpo"), Text("out.png"), Text("PNG"));
        QCOMPARE(report.reason, QString());
        QCOMPARE(PageTexts(report), warnings);
        for (const BatchJob::Warning& warning : report.warnings) {
            QCOMPARE(warning.kind, BatchJob::WarningKind::OtherPages);
        }
        QCOMPARE(
            LargestDifference(ReadPicture(bench.Path(Text("out.png"))), ReadPicture(bench.Path(Text("plain.jpg")))),
            0.0);
    }
}

void tst_WorkerPictureIndex::damagedIndexesAreIgnored_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, int place, const QByteArray& bytes) {
        QTest::newRow(name) << place << bytes;
    };
    constexpr int index = 8; // behind the marker, the length and the identifier
    row("directory behind the end", index + 4, QByteArray("\xFF\xFF\xFF\x7F", 4));
    row("directory before the beginning", index + 4, QByteArray("\xFF\xFF\xFF\xFF", 4));
    row("many fields", index + 8, QByteArray("\xFF\xFF", 2));
    row("entries behind the end", index + 8 + 2 + 24 + 8, QByteArray("\xFF\xFF\xFF\xFF", 4));
    row("no bytes of an order", index, QByteArray("XX", 2));
}

void tst_WorkerPictureIndex::damagedIndexesAreIgnored()
{
    QFETCH(const int, place);
    QFETCH(const QByteArray, bytes);
    WorkerBench bench;
    WritePicture(Chart(40, 30), bench.Path(Text("plain.jpg")));
    QByteArray segment = IndexSegment({0x020002, 0x020002}, true);
    segment.replace(place, bytes.size(), bytes);
    bench.WriteBytes(Text("in.jpg"), WithSegment(bench.Bytes(Text("plain.jpg")), segment));
    const Report report = bench.Make(Text("in.jpg"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QVERIFY(PageTexts(report).size() <= 1);
}

void tst_WorkerPictureIndex::sizesOfJpeg2000AreNoPages()
{
    WorkerBench bench;
    WritePicture(Chart(640, 480), bench.Path(Text("in.jp2")), "[tile-width=256,tile-height=256]");
    const Report report = bench.Make(Text("in.jp2"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(PageTexts(report), QStringList());
}

QTEST_GUILESS_MAIN(tst_WorkerPictureIndex)
#include "tst_workerpictureindex.moc"
