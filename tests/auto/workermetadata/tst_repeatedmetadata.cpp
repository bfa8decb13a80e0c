// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"
#include "Text.h"
#include "WorkerBench.h"

#include <QTest>
#include <QtEndian>

using namespace BatchProtocol;

namespace {

PlantedMetadata::Blocks Planted(const char* artist)
{
    PlantedMetadata::Blocks blocks;
    blocks.exif["Exif.Image.Make"] = "Canon";
    blocks.exif["Exif.Image.Artist"] = artist;
    blocks.exif["Exif.Canon.OwnerName"] = artist;
    constexpr int numbers = 14;
    for (int number = 0; number < numbers; ++number) {
        const QByteArray key = "Exif.CanonPr.0x" + QByteArray::number(number, 16).rightJustified(4, '0');
        blocks.exif[key.constData()] = std::int16_t(number == 0 ? numbers * 2 : 0);
    }
    blocks.xmp = PlantedMetadata::Xmp(QByteArray("<rdf:Description xmlns:dc='http://purl.org/dc/elements/1.1/' "
                                                 "dc:source='") +
                                      artist + "'/>");
    return blocks;
}

// The chunks of `type` in a WebP file, with their headers.
QByteArray Chunk(const QByteArray& webp, const char* type)
{
    constexpr int headerSize = 8;
    const int place = webp.indexOf(type);
    const int size = int(qFromLittleEndian<quint32>(webp.constData() + place + 4));
    return webp.mid(place, headerSize + size + size % 2);
}

QByteArray JoinedWebp(QByteArray first, const QByteArray& second)
{
    first += Chunk(second, "EXIF") + Chunk(second, "XMP ");
    qToLittleEndian(quint32(first.size() - 8), first.data() + 4);
    return first;
}

// The box of JPEG 2000 whose content begins with `id`.
QByteArray Box(const QByteArray& jp2, const QByteArray& id)
{
    const int place = jp2.indexOf(id) - 8;
    return jp2.mid(place, int(qFromBigEndian<quint32>(jp2.constData() + place)));
}

QByteArray JoinedJp2(QByteArray first, const QByteArray& second)
{
    const QByteArray idOfExif("JpgTiffExif->JP2");
    const QByteArray idOfXmp = QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac");
    return first.insert(first.indexOf("jp2c") - 4, Box(second, idOfExif) + Box(second, idOfXmp));
}

// The segment of JPEG whose content begins with `id`.
QByteArray JoinedJpeg(QByteArray first, const QByteArray& second)
{
    const int place = second.indexOf("Exif") - 4;
    const int size = 2 + qFromBigEndian<quint16>(second.constData() + place + 2);
    const int end = first.indexOf("Exif") - 2;
    const int behind = end + qFromBigEndian<quint16>(first.constData() + end);
    return first.insert(behind, second.mid(place, size));
}

using Joined = QByteArray (*)(QByteArray first, const QByteArray& second);

} // namespace

Q_DECLARE_METATYPE(Joined)

/// Files that have a block of metadata twice: the first one counts, and nothing of it is lost.
class tst_RepeatedMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void firstBlockCounts_data();
    void firstBlockCounts();

private:
    QByteArray With(const char* artist, const QString& extension) const;

    std::unique_ptr<WorkerBench> bench;
};

void tst_RepeatedMetadata::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
}

QByteArray tst_RepeatedMetadata::With(const char* artist, const QString& extension) const
{
    const QString name = Text("one.") + extension;
    WritePicture(Chart(60, 40), bench->Path(name));
    PlantedMetadata::Write(bench->Path(name), Planted(artist));
    return bench->Bytes(name);
}

void tst_RepeatedMetadata::firstBlockCounts_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<Joined>("join");
    QTest::addColumn<QString>("format");
    for (const char* format : {"JPEG", "PNG", "TIFF", "WebP", "JPEG XL", "JPEG 2000"}) {
        QTest::addRow("WebP to %s", format) << Text("webp") << Joined(JoinedWebp) << Text(format);
        QTest::addRow("JPEG 2000 to %s", format) << Text("jp2") << Joined(JoinedJp2) << Text(format);
        QTest::addRow("JPEG to %s", format) << Text("jpg") << Joined(JoinedJpeg) << Text(format);
    }
}

void tst_RepeatedMetadata::firstBlockCounts()
{
    QFETCH(const QString, extension);
    QFETCH(const Joined, join);
    QFETCH(const QString, format);
    SKIP_WHERE(MissingInTests(extension));
    SKIP_WHERE(MissingEncoder(format));

    const QString name = Text("in.") + extension;
    bench->WriteBytes(name, join(With("First", extension), With("Second", extension)));
    QVERIFY(bench->Bytes(name).count("Second") >= 2);
    const Report report = bench->Make(name, Text("out"), format);
    QVERIFY2(report.reason.isEmpty(), qPrintable(report.reason + report.detail));
    QCOMPARE(TextsOf(report.warnings), QStringList());
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(Text("out")));
    QVERIFY2(result.count("First") >= 3, "artist, owner in the maker's notes, source in XMP");
    QCOMPARE(result.count("Second"), 0);
}

QTEST_GUILESS_MAIN(tst_RepeatedMetadata)
#include "tst_repeatedmetadata.moc"
