// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "TiffDirectory.h"
#include "TiffPicture.h"
#include "WorkerBench.h"

#include "server/worker/decode/PictureSource.h"
#include "server/worker/pixels/PictureFailure.h"

#include <QRegularExpression>
#include <QTest>

#include <random>

Q_DECLARE_METATYPE(TiffPicture)

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

constexpr int minIsBlack = 1;
constexpr int lzw = 5;
constexpr int deflate = 8;

double ChartAt(int x, int y, int s)
{
    return s == 0 ? x / 44.0 : s == 1 ? y / 36.0 : (x * y % 7) / 6.0;
}

// The file with its directory, and its values, before the pixels.
QByteArray WithDirectoryInFront(const QByteArray& file)
{
    const auto longAt = [&](quint32 place) { return qFromLittleEndian<quint32>(file.constData() + place); };
    const auto shortAt = [&](quint32 place) { return qFromLittleEndian<quint16>(file.constData() + place); };
    constexpr quint32 header = 8;
    const quint32 start = longAt(4);
    const quint32 moved = quint32(file.size()) - start; // how far the pixels go
    QByteArray front = file.mid(int(start));
    for (quint32 i = 0; i < shortAt(start); ++i) {
        const quint32 entry = start + 2 + i * 12;
        const bool isOffset = shortAt(entry) == 273 || shortAt(entry) == 324; // of strips, of tiles
        const int size = shortAt(entry + 2) == 3 ? 2 : shortAt(entry + 2) == 5 ? 8 : 4;
        const quint32 count = longAt(entry + 4);
        const bool isInside = count * quint32(size) <= 4;
        const quint32 values = isInside ? entry + 8 : longAt(entry + 8);
        for (quint32 k = 0; isOffset && k < count; ++k) {
            const quint32 place = values + k * quint32(size);
            const quint32 offset = (size == 2 ? shortAt(place) : longAt(place)) + moved;
            const QByteArray number = size == 2 ? LittleEndian(quint16(offset)) : LittleEndian(offset);
            front.replace(int(place - start), size, number);
        }
        if (!isInside) {
            front.replace(int(entry + 8 - start), 4, LittleEndian(values - start + header));
        }
    }
    return file.left(4) + LittleEndian(header) + front + file.mid(int(header), int(start - header));
}

} // namespace

/// TIFF files that are cut off, or that lie about themselves.
class tst_WorkerTiffDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void saysHowMuchIsThere_data();
    void saysHowMuchIsThere();
    void tellsOfWhatWasRepaired();
    void bearsHostileSizes_data();
    void bearsHostileSizes();
    void bearsAnyBytes_data();
    void bearsAnyBytes();

private:
    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerTiffDamage::initTestCase()
{
    StartPictures();
    bench = std::make_unique<WorkerBench>();
}

void tst_WorkerTiffDamage::saysHowMuchIsThere_data()
{
    QTest::addColumn<int>("compression");
    QTest::addColumn<int>("tile");
    QTest::addColumn<bool>("isPlanar");
    for (const int compression : {1, lzw, deflate}) {
        QTest::addRow("compression %d", compression) << compression << 0 << false;
        QTest::addRow("compression %d, tiles", compression) << compression << 16 << false;
        QTest::addRow("compression %d, planar", compression) << compression << 0 << true;
    }
}

void tst_WorkerTiffDamage::saysHowMuchIsThere()
{
    QFETCH(const int, compression);
    QFETCH(const int, tile);
    QFETCH(const bool, isPlanar);

    TiffPicture picture;
    picture.compression = compression;
    picture.tile = tile;
    picture.isPlanar = isPlanar;
    picture.Write(bench->Path(Text("whole.tif")), ChartAt);
    // The directory in front of the pixels, as cameras have it, so that it is pixels that are missing.
    const QByteArray whole = bench->Bytes(Text("whole.tif"));
    const QByteArray turned = WithDirectoryInFront(whole);
    bench->WriteBytes(Text("in.tif"), turned);
    QCOMPARE(bench->Make(Text("in.tif"), Text("out.png"), Text("PNG")).reason, QString());
    for (const int missing : {2, 100, 400}) {
        bench->WriteBytes(Text("in.tif"), turned.left(turned.size() - missing));
        const Report report = bench->Make(Text("in.tif"), Text("out.tif"), Text("TIFF"));
        QCOMPARE(report.failure, PolicyKind::Input);
        QCOMPARE(report.errorCode, ZTBatchMessage::ReadFileError);
        QVERIFY2(report.reason.contains(QRegularExpression(Text("^the file ends after \\d+ % of the picture$"))),
                 qPrintable(report.reason));
        QVERIFY(!QFile::exists(bench->Path(Text("out.tif"))));
    }
}

void tst_WorkerTiffDamage::tellsOfWhatWasRepaired()
{
    TiffPicture picture;
    picture.compression = 7; // JPEG
    picture.rowsOfStrip = 40;
    picture.Write(bench->Path(Text("in.tif")), ChartAt);
    QByteArray bytes = bench->Bytes(Text("in.tif"));
    const int scan = bytes.indexOf("\xFF\xDA");
    QVERIFY(scan > 0);
    bench->WriteBytes(Text("in.tif"), bytes.replace(scan + 100, 2, "\xFF\xD9"));
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QVERIFY(!report.reason.isEmpty() || !report.warnings.isEmpty());
}

void tst_WorkerTiffDamage::bearsHostileSizes_data()
{
    QTest::addColumn<quint16>("tag");
    QTest::addColumn<quint32>("value");
    for (const quint32 value : {0U, 1U, 65535U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        for (const int tag :
             {256, 257, 258, 259, 262, 273, 277, 278, 279, 284, 322, 323, 324, 325, 330, 338, 339, 530}) {
            QTest::addRow("field %d is %u", tag, value) << quint16(tag) << value;
        }
    }
}

void tst_WorkerTiffDamage::bearsHostileSizes()
{
    QFETCH(const quint16, tag);
    QFETCH(const quint32, value);

    TiffDirectory directory;
    directory.AddLong(256, 16);
    directory.AddLong(257, 16);
    directory.AddShort(258, 8);
    directory.AddShort(259, 1);
    directory.AddShort(262, minIsBlack);
    directory.AddLong(273, 8);
    directory.AddShort(277, 1);
    directory.AddLong(278, 16);
    directory.AddLong(279, 256);
    directory.AddLong(tag, value);
    bench->WriteBytes(Text("in.tif"), QByteArray("II*\0", 4) + LittleEndian(quint32(8 + 256)) + QByteArray(256, 'x') +
                                          directory.Bytes(8 + 256));
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    if (!report.reason.isEmpty()) {
        QCOMPARE(report.failure, PolicyKind::Input);
    }
}

void tst_WorkerTiffDamage::bearsAnyBytes_data()
{
    QTest::addColumn<TiffPicture>("picture");
    TiffPicture picture;
    QTest::newRow("strips") << picture;
    picture.compression = lzw;
    picture.isPlanar = true;
    QTest::newRow("planes") << picture;
    picture.tile = 16;
    picture.bits = 12;
    QTest::newRow("planes in tiles, 12 bits") << picture;
    picture = {};
    picture.samples = 4;
    picture.photometric = 8;
    picture.extraSamples = {1};
    QTest::newRow("Lab with alpha") << picture;
    picture = {};
    picture.photometric = 6;
    picture.across = 2;
    picture.down = 2;
    QTest::newRow("colour differences") << picture;
    picture.compression = 7;
    picture.across = 1;
    picture.down = 1;
    picture.rowsOfStrip = 16;
    QTest::newRow("JPEG") << picture;
    picture = {};
    picture.samples = 1;
    picture.photometric = 3;
    picture.palette.fill(7, 768);
    QTest::newRow("palette") << picture;
}

// In this process, where a sanitizer sees it.
void tst_WorkerTiffDamage::bearsAnyBytes()
{
    QFETCH(const TiffPicture, picture);

    picture.Write(bench->Path(Text("in.tif")), ChartAt);
    const QByteArray whole = WithDirectoryInFront(bench->Bytes(Text("in.tif")));
    std::mt19937 random(1);
    const auto below = [&](int limit) { return int(random() % unsigned(limit)); };
    int read = 0;
    for (int i = 0; i < 300; ++i) {
        QByteArray bytes = whole;
        for (int count = 1 + below(4); count > 0; --count) {
            // Mostly in the directory.
            bytes[4 + below(below(3) > 0 ? 250 : bytes.size() - 4)] = char(below(2) > 0 ? below(256) : below(3) * 127);
        }
        bench->WriteBytes(Text("in.tif"), bytes);
        try {
            PictureSource source(bench->Path(Text("in.tif")), ServerLimits());
            source.Load().avg();
            ++read;
        } catch (const PictureFailure& problem) {
            QVERIFY(!problem.reason.isEmpty());
        } catch (const vips::VError&) {
            vips_error_clear();
        }
    }
    QVERIFY(read > 0);
    QVERIFY(read < 300);
}

QTEST_GUILESS_MAIN(tst_WorkerTiffDamage)
#include "tst_workertiffdamage.moc"
