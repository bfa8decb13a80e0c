// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"
#include "PlantedPlaces.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;

namespace {

QString NameIn(const QString& base, const QString& format)
{
    return base + QLatin1Char('.') + FindFormat(format)->extensions.first();
}

// Each place is a text or a number that nothing else contains: "Place01", "41.0123401".
QByteArrayList Planted(const QByteArray& bytes)
{
    QByteArrayList found;
    for (const char* start : {"Place", "41.01234"}) {
        int place = bytes.indexOf(start);
        while (place >= 0) {
            found.append(bytes.mid(place, int(qstrlen(start)) + 2));
            place = bytes.indexOf(start, place + 1);
        }
    }
    return found;
}

// A position as it is in EXIF: 1234567/1000 twice, in both orders of bytes.
QByteArrayList PositionsIn(const QByteArray& bytes)
{
    QByteArrayList found;
    for (const char* number : {"87d61200e8030000", "0012d687000003e8"}) {
        if (bytes.contains(QByteArray::fromHex(number))) {
            found.append(number);
        }
    }
    return found;
}

} // namespace

/// Without "gps", no result says where a picture was taken.
class tst_RemovedPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noPlaceIsInTheResult_data();
    void noPlaceIsInTheResult();
    void exiftoolFindsNoPlace_data();
    void exiftoolFindsNoPlace();
    void placesStayWithGps_data();
    void placesStayWithGps();
    void noPlaceComesFromOtherFormats_data();
    void noPlaceComesFromOtherFormats();
    void noPlaceComesFromHiddenBlocks_data();
    void noPlaceComesFromHiddenBlocks();
    void otherEntriesStay_data();
    void otherEntriesStay();

private:
    void MakeWithout(const QString& input, const QString& format, const QStringList& removed);

    std::unique_ptr<WorkerBench> bench;
};

void tst_RemovedPlaces::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
    WritePicture(Chart(60, 40), bench->Path(Text("in.jpg")));
    PlantedMetadata::Write(bench->Path(Text("in.jpg")), PlantedMetadata::WithPlaces());
}

void tst_RemovedPlaces::MakeWithout(const QString& input, const QString& format, const QStringList& removed)
{
    QStringList keep{Text("exif"), Text("gps"), Text("iptc"), Text("xmp"), Text("icc")};
    for (const QString& kind : removed) {
        keep.removeAll(kind);
    }
    const Report report =
        bench->Make(input, NameIn(Text("out"), format), format, {{Text("keep"), QJsonArray::fromStringList(keep)}});
    QCOMPARE(report.reason, QString());
}

void tst_RemovedPlaces::noPlaceIsInTheResult_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QStringList>("removed");
    for (const FormatSchema& format : Formats()) {
        QTest::addRow("%s", qPrintable(format.name)) << format.name << QStringList{Text("gps")};
    }
    QTest::newRow("JPEG without IPTC") << Text("JPEG") << QStringList{Text("gps"), Text("iptc")};
    QTest::newRow("JPEG without XMP") << Text("JPEG") << QStringList{Text("gps"), Text("xmp")};
    QTest::newRow("JPEG without EXIF") << Text("JPEG") << QStringList{Text("gps"), Text("exif")};
    QTest::newRow("HEIF without EXIF") << Text("HEIF") << QStringList{Text("gps"), Text("exif")};
}

void tst_RemovedPlaces::noPlaceIsInTheResult()
{
    QFETCH(const QString, format);
    QFETCH(const QStringList, removed);
    SKIP_WHERE(MissingEncoder(format));

    MakeWithout(Text("in.jpg"), format, removed);
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(NameIn(Text("out"), format)));
    QCOMPARE(Planted(result), QByteArrayList());
    QCOMPARE(PositionsIn(result), QByteArrayList());
}

void tst_RemovedPlaces::exiftoolFindsNoPlace_data()
{
    QTest::addColumn<QString>("format");
    for (const FormatSchema& format : Formats()) {
        if (format.metadata.writing != MetadataWriting::None) {
            QTest::newRow(qPrintable(format.name)) << format.name;
        }
    }
}

void tst_RemovedPlaces::exiftoolFindsNoPlace()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    const QByteArray source = PlantedMetadata::SeenByExiftool(bench->Path(Text("in.jpg")));
    if (source.isEmpty()) {
        QSKIP("There is no exiftool.");
    }
    QVERIFY(source.contains("GPSLatitude"));
    QVERIFY(source.contains("41.0123411"));
    MakeWithout(Text("in.jpg"), format, {Text("gps")});
    const QByteArray found = PlantedMetadata::SeenByExiftool(bench->Path(NameIn(Text("out"), format)));
    QVERIFY2(found.contains("Photographer"), found.constData());
    for (const char* word : {"GPS", "Place", "atitude", "ongitude", "41.0123", "MakerNote", "Panasonic]"}) {
        QVERIFY2(!found.contains(word), found.constData());
    }
}

void tst_RemovedPlaces::placesStayWithGps_data()
{
    exiftoolFindsNoPlace_data();
}

/// What the other tests look for is there, if it is to be kept.
void tst_RemovedPlaces::placesStayWithGps()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    MakeWithout(Text("in.jpg"), format, {});
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(NameIn(Text("out"), format)));
    const QByteArrayList found = Planted(result);
    for (const char* place : {"Place01", "Place05", "Place08", "Place12", "Place16", "Place18", "Place21", "Place40"}) {
        QVERIFY2(found.contains(place), place);
    }
    QVERIFY(result.contains("41.0123412"));
    QCOMPARE(PositionsIn(result).size(), 1);
}

void tst_RemovedPlaces::noPlaceComesFromOtherFormats_data()
{
    exiftoolFindsNoPlace_data();
}

void tst_RemovedPlaces::noPlaceComesFromOtherFormats()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    MakeWithout(Text("in.jpg"), format, {});
    const QString source = NameIn(Text("source"), format);
    bench->WriteBytes(source, bench->Bytes(NameIn(Text("out"), format)));
    QVERIFY(!Planted(PlantedMetadata::Unpacked(bench->Bytes(source))).isEmpty());
    MakeWithout(source, Text("JPEG"), {Text("gps")});
    const QByteArray result = bench->Bytes(Text("out.jpg"));
    QVERIFY(result.contains("A. Photographer"));
    QCOMPARE(Planted(result), QByteArrayList());
    QCOMPARE(PositionsIn(result), QByteArrayList());
}

void tst_RemovedPlaces::noPlaceComesFromHiddenBlocks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("format");
    const QByteArray xmp = PlantedMetadata::XmpPacket(PlantedMetadata::XmpWithPlaces());
    const auto plantPng = [&](const char* row, const QByteArray& chunk) {
        WritePicture(Chart(60, 40), bench->Path(Text("in.png")));
        QByteArray png = bench->Bytes(Text("in.png"));
        png.insert(png.indexOf("IDAT") - 4, chunk);
        const QString name = Text(row).replace(QLatin1Char(' '), QLatin1Char('-')) + Text(".png");
        bench->WriteBytes(name, png);
        for (const char* format : {"PNG", "TIFF"}) {
            QTest::addRow("%s, to %s", row, format) << name << Text(format);
        }
    };
    const QByteArray hex = "\nxmp\n " + QByteArray::number(xmp.size()) + "\n" + xmp.toHex() + "\n";
    plantPng("PNG comment", PlantedMetadata::PngChunk("tEXt", QByteArray("Comment\0", 8) + "Place60"));
    plantPng("PNG text",
             PlantedMetadata::PngChunk("zTXt", QByteArray("Software\0\0", 10) + qCompress("Place61").mid(4)));
    plantPng("PNG raw profile",
             PlantedMetadata::PngChunk("zTXt", QByteArray("Raw profile type xmp\0\0", 22) + qCompress(hex).mid(4)));
    plantPng("PNG XMP", PlantedMetadata::PngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + xmp));
    plantPng("PNG packed XMP",
             PlantedMetadata::PngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\1\0\0\0", 22) + qCompress(xmp).mid(4)));
    const auto plantSegment = [&](const char* row, const QByteArray& segment) {
        QByteArray jpeg = bench->Bytes(Text("in.jpg"));
        QByteArray length = QByteArray::number(segment.size() + 1, 16).rightJustified(4, '0');
        jpeg.insert(2, QByteArray::fromHex("ffe1") + QByteArray::fromHex(length) + segment.mid(1));
        const QString name = Text(row).replace(QLatin1Char(' '), QLatin1Char('-')) + Text(".jpg");
        bench->WriteBytes(name, jpeg);
        QTest::newRow(row) << name << Text("JPEG");
    };
    plantSegment("extended XMP",
                 " http://ns.adobe.com/xmp/extension/" + QByteArray(1, '\0') + QByteArray(40, '0') + xmp);
    plantSegment("comment", QByteArray(" Place62"));
    PlantedMetadata::Blocks inTiff;
    inTiff.exif["Exif.Image.Artist"] = "A. Photographer";
    PlantedMetadata::AddBytes(inTiff.exif, "Exif.Image.0xfd01", xmp);
    PlantedMetadata::AddBytes(inTiff.exif, "Exif.Image.0xfd02", "Place63");
    PlantedMetadata::AddBytes(inTiff.exif, "Exif.Image.0xfd03", "8BIM Place64");
    inTiff.exif["Exif.Image.0x87b1"] = "Place65"; // GeoAsciiParams
    WritePicture(Chart(60, 40), bench->Path(Text("hidden.jpg")));
    const QString hidden = bench->Path(Text("hidden.jpg"));
    PlantedMetadata::Write(hidden, inTiff);
    PlantedMetadata::RenameTag(hidden, 0xfd01, 0x02bc); // XMP
    PlantedMetadata::RenameTag(hidden, 0xfd02, 0x83bb); // IPTC
    PlantedMetadata::RenameTag(hidden, 0xfd03, 0x8649); // Photoshop resources
    for (const char* format : {"JPEG", "TIFF", "PNG"}) {
        QTest::addRow("blocks within EXIF, to %s", format) << Text("hidden.jpg") << Text(format);
    }
}

/// XMP and texts in places other than the usual one.
void tst_RemovedPlaces::noPlaceComesFromHiddenBlocks()
{
    QFETCH(const QString, name);
    QFETCH(const QString, format);

    MakeWithout(name, format, {Text("gps")});
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(NameIn(Text("out"), format)));
    QCOMPARE(Planted(result), QByteArrayList());
}

void tst_RemovedPlaces::otherEntriesStay_data()
{
    exiftoolFindsNoPlace_data();
}

void tst_RemovedPlaces::otherEntriesStay()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    MakeWithout(Text("in.jpg"), format, {Text("gps")});
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(NameIn(Text("out"), format)));
    for (const char* text : {"A. Photographer", "Stays", "Kept", "Studio", "GimbalYawDegree"}) {
        QVERIFY2(result.contains(text), text);
    }
}

QTEST_GUILESS_MAIN(tst_RemovedPlaces)
#include "tst_removedplaces.moc"
