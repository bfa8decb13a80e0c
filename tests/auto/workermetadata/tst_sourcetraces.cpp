// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <functional>

using namespace BatchJob;
using namespace BatchProtocol;

namespace {

using Plant = std::function<void(PlantedMetadata::Blocks&)>;

QString NameIn(const QString& base, const QString& format)
{
    return base + QLatin1Char('.') + FindFormat(format)->extensions.first();
}

// Begins like a JPEG file and says what it is.
QByteArray Preview()
{
    return QByteArray::fromHex("ffd8ffe0") + QByteArray("PREVIEWBYTES").repeated(300) + QByteArray::fromHex("ffd9");
}

// In one of the three ways in which the bytes of base 64 fall.
bool HoldsPreview(const QByteArray& bytes)
{
    return bytes.contains("PREVIEWBYTES") || bytes.contains("UFJFVklFV0JZVEVT") || bytes.contains("QUkVWSUVXQllURV") ||
           bytes.contains("BSRVZJRVdCWVRFU");
}

Plant InNotes(const char* maker, const char* key)
{
    return [maker, key](PlantedMetadata::Blocks& blocks) {
        blocks.exif["Exif.Image.Make"] = maker;
        PlantedMetadata::AddBytes(blocks.exif, key, Preview());
    };
}

// An entry that points to bytes elsewhere, and another one for their length.
Plant BehindNotes(const char* maker, const char* place, const char* length)
{
    return [maker, place, length](PlantedMetadata::Blocks& blocks) {
        blocks.exif["Exif.Image.Make"] = maker;
        blocks.exif[place] = std::uint32_t(0);
        blocks.exif[length] = std::uint32_t(Preview().size());
        const QByteArray preview = Preview();
        blocks.exif[place].setDataArea(reinterpret_cast<const Exiv2::byte*>(preview.constData()), preview.size());
    };
}

Plant InImage(const char* key)
{
    return [key](PlantedMetadata::Blocks& blocks) { PlantedMetadata::AddBytes(blocks.exif, key, Preview()); };
}

Plant InXmp(const QByteArray& before, const QByteArray& after)
{
    return [before, after](PlantedMetadata::Blocks& blocks) {
        blocks.xmp = PlantedMetadata::Xmp("<rdf:Description rdf:about='' xmlns:xmp='http://ns.adobe.com/xap/1.0/' "
                                          "xmlns:xmpGImg='http://ns.adobe.com/xap/1.0/g/img/' "
                                          "xmlns:xmpTPg='http://ns.adobe.com/xap/1.0/t/pg/' "
                                          "xmlns:GImage='http://ns.google.com/photos/1.0/image/' "
                                          "xmlns:any='http://example.org/any/1.0/'>" +
                                          before + Preview().toBase64() + after + "</rdf:Description>");
    };
}

Plant InIptc(std::uint16_t set, std::uint16_t record)
{
    return [set, record](PlantedMetadata::Blocks& blocks) {
        const auto value = Exiv2::Value::create(Exiv2::undefined);
        const QByteArray preview = Preview();
        value->read(reinterpret_cast<const Exiv2::byte*>(preview.constData()), preview.size(), Exiv2::littleEndian);
        blocks.iptc.add(Exiv2::IptcKey(set, record), value.get());
    };
}

struct Place
{
    const char* name;
    Plant plant;
};

const QVector<Place>& Places()
{
    static const QVector<Place> places{
        {"EXIF thumbnail",
         [](PlantedMetadata::Blocks& blocks) {
             const QByteArray preview = Preview();
             Exiv2::ExifThumb(blocks.exif)
                 .setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(preview.constData()), preview.size());
         }},
        {"Nikon", BehindNotes("NIKON CORPORATION", "Exif.NikonPreview.JPEGInterchangeFormat",
                              "Exif.NikonPreview.JPEGInterchangeFormatLength")},
        {"Minolta", InNotes("Minolta Co., Ltd.", "Exif.Minolta.0x0081")},
        {"Minolta, behind the notes",
         BehindNotes("Minolta Co., Ltd.", "Exif.Minolta.ThumbnailOffset", "Exif.Minolta.ThumbnailLength")},
        {"Olympus", InNotes("OLYMPUS IMAGING CORP.", "Exif.Olympus.ThumbnailImage")},
        {"Sony", InNotes("SONY", "Exif.Sony1.PreviewImage")},
        {"Pentax", BehindNotes("PENTAX Corporation", "Exif.Pentax.PreviewOffset", "Exif.Pentax.PreviewLength")},
        {"Casio", InNotes("CASIO", "Exif.Casio2.PreviewImage")},
        {"Samsung", BehindNotes("SAMSUNG", "Exif.SamsungPreview.JPEGInterchangeFormat",
                                "Exif.SamsungPreview.JPEGInterchangeFormatLength")},
        {"Canon, a tag without a name", InNotes("Canon", "Exif.Canon.0x4fff")},
        {"Panasonic, a tag without a name", InNotes("Panasonic", "Exif.Panasonic.0x0fff")},
        {"Fujifilm, a tag without a name", InNotes("FUJIFILM", "Exif.Fujifilm.0x4fff")},
        {"notes in a form of their own", InNotes("Sanyo", "Exif.Photo.MakerNote")},
        {"Photoshop resources", InImage("Exif.Image.0xfd01")},
        {"layers", InImage("Exif.Image.0x935c")},
        {"a tag without a name", InImage("Exif.Image.0xfdab")},
        {"private data of a negative", InImage("Exif.Image.DNGPrivateData")},
        {"thumbnails of XMP",
         InXmp("<xmp:Thumbnails><rdf:Alt><rdf:li xmpGImg:width='8' xmpGImg:image='", "'/></rdf:Alt></xmp:Thumbnails>")},
        {"pages of XMP",
         InXmp("<xmp:PageInfo><rdf:Seq><rdf:li xmpTPg:PageNumber='1' xmpGImg:image='", "'/></rdf:Seq></xmp:PageInfo>")},
        {"original in XMP", InXmp("<GImage:Data>", "</GImage:Data>")},
        {"unknown in XMP", InXmp("<any:Small>", "</any:Small>")},
        {"an address that is the picture in XMP", InXmp("<any:Small>data:image/jpeg;base64,", "</any:Small>")},
        {"unknown among others in XMP",
         InXmp("<any:Small><rdf:Seq><rdf:li xml:lang='de'>", "</rdf:li><rdf:li>other</rdf:li></rdf:Seq></any:Small>")},
        {"IPTC preview", InIptc(Exiv2::IptcDataSets::Preview, Exiv2::IptcDataSets::application2)},
        {"IPTC picture", InIptc(10, 8)},
    };
    return places;
}

} // namespace

/// No result holds a preview of its source, nor points to something that only its source has.
class tst_SourceTraces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noPreviewIsInTheResult_data();
    void noPreviewIsInTheResult();
    void noPreviewComesFromOtherFormats_data();
    void noPreviewComesFromOtherFormats();
    void noPreviewComesFromJpegSegments_data();
    void noPreviewComesFromJpegSegments();
    void harmlessNotesStay_data();
    void harmlessNotesStay();
    void nothingPointsToWhatIsGone_data();
    void nothingPointsToWhatIsGone();

private:
    void PlantIn(const QString& name, const Plant& plant) const;

    std::unique_ptr<WorkerBench> bench;
};

void tst_SourceTraces::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
}

void tst_SourceTraces::PlantIn(const QString& name, const Plant& plant) const
{
    WritePicture(Chart(60, 40), bench->Path(name));
    PlantedMetadata::Blocks blocks;
    blocks.exif["Exif.Image.Artist"] = "A. Photographer";
    blocks.exif["Exif.Photo.FNumber"] = Exiv2::URational(4, 1);
    plant(blocks);
    PlantedMetadata::Write(bench->Path(name), blocks);
    PlantedMetadata::RenameTag(bench->Path(name), 0xfd01, 0x8649);
}

void tst_SourceTraces::noPreviewIsInTheResult_data()
{
    QTest::addColumn<int>("place");
    for (int i = 0; i < Places().size(); ++i) {
        QTest::newRow(Places()[i].name) << i;
    }
}

void tst_SourceTraces::noPreviewIsInTheResult()
{
    QFETCH(const int, place);

    PlantIn(Text("in.jpg"), Places()[place].plant);
    QVERIFY(HoldsPreview(bench->Bytes(Text("in.jpg"))));
    for (const FormatSchema& format : Formats()) {
        if (MissingEncoder(format.name)) {
            continue;
        }
        const QString output = NameIn(Text("out"), format.name);
        QCOMPARE(bench->Make(Text("in.jpg"), output, format.name).reason, QString());
        const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(output));
        QVERIFY2(!HoldsPreview(result), qPrintable(format.name));
        const bool holdsAny = format.metadata.writing != MetadataWriting::None;
        QVERIFY2(result.contains("A. Photographer") == holdsAny, qPrintable(format.name));
    }
}

void tst_SourceTraces::noPreviewComesFromOtherFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("place");
    for (const char* extension : {"png", "tif", "webp", "jp2"}) {
        for (int i = 0; i < Places().size(); ++i) {
            const QByteArray name = Places()[i].name;
            const bool isHeld = !name.startsWith("IPTC") || qstrcmp(extension, "webp") != 0;
            if (isHeld) {
                QTest::addRow("%s, %s", extension, name.constData()) << Text("in.") + Text(extension) << i;
            }
        }
    }
}

void tst_SourceTraces::noPreviewComesFromOtherFormats()
{
    QFETCH(const QString, name);
    QFETCH(const int, place);
    SKIP_WHERE(MissingInTests(QFileInfo(name).suffix()));

    PlantIn(name, Places()[place].plant);
    QVERIFY(HoldsPreview(PlantedMetadata::Unpacked(bench->Bytes(name))));
    for (const char* format : {"JPEG", "TIFF", "WebP"}) {
        const QString output = NameIn(Text("out"), Text(format));
        QCOMPARE(bench->Make(name, output, Text(format)).reason, QString());
        QVERIFY2(!HoldsPreview(bench->Bytes(output)), format);
    }
}

void tst_SourceTraces::noPreviewComesFromJpegSegments_data()
{
    QTest::addColumn<QByteArray>("segment");
    QTest::addColumn<QByteArray>("trailer");
    const QByteArray resource = QByteArray("Photoshop 3.0\0", 14) + "8BIM" + QByteArray::fromHex("040c0000") +
                                QByteArray::fromHex("00000e16") + Preview();
    QTest::newRow("Photoshop thumbnail") << QByteArray::fromHex("ed") + resource << QByteArray();
    QTest::newRow("FlashPix") << QByteArray::fromHex("e2") + QByteArray("FPXR\0", 5) + Preview() << QByteArray();
    QTest::newRow("JFIF extension") << QByteArray::fromHex("e0") + QByteArray("JFXX\0\x10", 6) + Preview()
                                    << QByteArray();
    QTest::newRow("comment") << QByteArray::fromHex("fe") + Preview() << QByteArray();
    QTest::newRow("behind the picture") << QByteArray::fromHex("e2") + QByteArray("MPF\0II*\0", 8) << Preview();
}

void tst_SourceTraces::noPreviewComesFromJpegSegments()
{
    QFETCH(const QByteArray, segment);
    QFETCH(const QByteArray, trailer);

    PlantIn(Text("in.jpg"), [](PlantedMetadata::Blocks&) {});
    QByteArray jpeg = bench->Bytes(Text("in.jpg"));
    const QByteArray length = QByteArray::number(segment.size() + 1, 16).rightJustified(4, '0');
    jpeg.insert(2, QByteArray::fromHex("ff") + segment.left(1) + QByteArray::fromHex(length) + segment.mid(1));
    bench->WriteBytes(Text("in.jpg"), jpeg + trailer);
    for (const char* format : {"JPEG", "PNG", "TIFF", "JPEG XL"}) {
        const QString output = NameIn(Text("out"), Text(format));
        QCOMPARE(bench->Make(Text("in.jpg"), output, Text(format)).reason, QString());
        const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(output));
        QVERIFY2(!HoldsPreview(result), format);
        QVERIFY2(result.contains("A. Photographer"), format);
    }
}

void tst_SourceTraces::harmlessNotesStay_data()
{
    QTest::addColumn<QString>("format");
    for (const FormatSchema& format : Formats()) {
        if (format.metadata.writing != MetadataWriting::None) {
            QTest::newRow(qPrintable(format.name)) << format.name;
        }
    }
}

void tst_SourceTraces::harmlessNotesStay()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    PlantIn(Text("in.jpg"), [](PlantedMetadata::Blocks& blocks) {
        blocks.exif["Exif.Image.Make"] = "Canon";
        blocks.exif["Exif.Canon.OwnerName"] = "Owner of the camera";
        blocks.exif["Exif.CanonCs.LensType"] = std::uint16_t(61182);
    });
    const QString output = NameIn(Text("out"), format);
    QCOMPARE(bench->Make(Text("in.jpg"), output, format).reason, QString());
    QVERIFY(bench->Bytes(output).contains("Owner of the camera"));
}

void tst_SourceTraces::nothingPointsToWhatIsGone_data()
{
    harmlessNotesStay_data();
}

/// Gain maps, films behind a picture, and blocks that continue elsewhere.
void tst_SourceTraces::nothingPointsToWhatIsGone()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    PlantIn(Text("in.jpg"), [](PlantedMetadata::Blocks& blocks) {
        blocks.xmp = PlantedMetadata::Xmp(
            "<rdf:Description rdf:about='' xmlns:hdrgm='http://ns.adobe.com/hdr-gain-map/1.0/' "
            "xmlns:C='http://ns.google.com/photos/1.0/container/' "
            "xmlns:I='http://ns.google.com/photos/1.0/container/item/' "
            "xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' "
            "xmlns:HDRGainMap='http://ns.apple.com/HDRGainMap/1.0/' "
            "xmlns:xmpNote='http://ns.adobe.com/xmp/note/' xmlns:dc='http://purl.org/dc/elements/1.1/' "
            "hdrgm:Version='1.0' hdrgm:GainMapMax='3.5' HDRGainMap:HDRGainMapVersion='65536' "
            "GCamera:MicroVideo='1' GCamera:MicroVideoOffset='4711' GCamera:MotionPhoto='1' "
            "GCamera:MotionPhotoPresentationTimestampUs='5' xmpNote:HasExtendedXMP='0123456789ABCDEF' "
            "dc:format='image/jpeg'>"
            "<C:Directory><rdf:Seq><rdf:li rdf:parseType='Resource'><C:Item I:Mime='image/jpeg' "
            "I:Semantic='Primary'/></rdf:li><rdf:li rdf:parseType='Resource'><C:Item I:Mime='image/jpeg' "
            "I:Semantic='GainMap' I:Length='4711'/></rdf:li></rdf:Seq></C:Directory></rdf:Description>");
    });
    const QString output = NameIn(Text("out"), format);
    QCOMPARE(bench->Make(Text("in.jpg"), output, format).reason, QString());
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(output));
    QVERIFY(result.contains("image/jpeg"));
    for (const char* trace : {"GainMap", "hdrgm", "MicroVideo", "MotionPhoto", "Directory", "HasExtendedXMP", "4711"}) {
        QVERIFY2(!result.contains(trace), trace);
    }
}

QTEST_GUILESS_MAIN(tst_SourceTraces)
#include "tst_sourcetraces.moc"
