// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileParts.h"
#include "PlantedMetadata.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"

#include <QFile>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace FileParts;

/// Pictures whose gain map the result loses.
class tst_GainMaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void warnsOfLostGainMaps_data();
    void warnsOfLostGainMaps();
    void staysSilentWithout_data();
    void staysSilentWithout();

private:
    int WarningsOf(const QString& name);

    std::unique_ptr<WorkerBench> bench;
    QByteArray jpeg;
    QByteArray jxl;
};

void tst_GainMaps::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
    WritePicture(Chart(60, 40), bench->Path(Text("plain.jpg")));
    jpeg = bench->Bytes(Text("plain.jpg"));
    PlantedMetadata::Blocks blocks;
    blocks.exif["Exif.Image.Artist"] = "A. Photographer";
    WritePicture(Chart(60, 40), bench->Path(Text("artist.jpg")));
    PlantedMetadata::Write(bench->Path(Text("artist.jpg")), blocks);
    QCOMPARE(bench->Make(Text("artist.jpg"), Text("plain.jxl"), Text("JPEG XL")).reason, QString());
    jxl = bench->Bytes(Text("plain.jxl"));
    QCOMPARE(jxl.mid(4, 4), QByteArray("JXL "));
}

// How many are about gain maps.
int tst_GainMaps::WarningsOf(const QString& name)
{
    const Report report = bench->Make(name, Text("out.jpg"), Text("JPEG"));
    if (!report.reason.isEmpty()) {
        qWarning("%s", qPrintable(report.reason));
        return -1;
    }
    return int(std::count_if(report.warnings.begin(), report.warnings.end(), [](const Warning& warning) {
        return warning.kind == WarningKind::GainMapLost && warning.text.contains(QLatin1String("HDR"));
    }));
}

void tst_GainMaps::warnsOfLostGainMaps_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray adobe = "xmlns:hdrgm='http://ns.adobe.com/hdr-gain-map/1.0/' hdrgm:Version='1.0'";
    const QByteArray apple =
        "xmlns:HDRGainMap='http://ns.apple.com/HDRGainMap/1.0/' HDRGainMap:HDRGainMapVersion='65536'";
    const QByteArray iso = Segment("ffe2", QByteArray("urn:iso:std:iso:ts:21496:-1\0\0\0\0\0", 32));
    QTest::newRow("JPEG, Adobe") << Text("adobe.jpg") << AsFirstSegment(jpeg, XmpSegment(adobe));
    QTest::newRow("JPEG, ISO 21496-1") << Text("iso.jpg") << AsFirstSegment(jpeg, iso);
    QByteArray container = "<rdf:Description rdf:about='' xmlns:C='http://ns.google.com/photos/1.0/container/' "
                           "xmlns:I='http://ns.google.com/photos/1.0/container/item/'><C:Directory><rdf:Seq>"
                           "<rdf:li rdf:parseType='Resource'><C:Item I:Semantic='GainMap' I:Mime='image/jpeg'/>"
                           "</rdf:li></rdf:Seq></C:Directory></rdf:Description>";
    QTest::newRow("JPEG, container") << Text("container.jpg")
                                     << AsFirstSegment(
                                            jpeg, Segment("ffe1", QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) +
                                                                      PlantedMetadata::XmpPacket(container)));
    const int size = jpeg.size() + MultiPictureIndex(0).size();
    for (const auto& [row, segment] : {std::pair("Apple", XmpSegment(apple)), std::pair("ISO 21496-1", iso)}) {
        QTest::addRow("JPEG, %s, said by the second picture", row)
            << Text("second.jpg")
            << AsFirstSegment(jpeg, MultiPictureIndex(quint32(size))) + AsFirstSegment(jpeg, segment);
    }
    // Behind the first two boxes, which say what kind of file it is.
    QTest::newRow("JPEG XL") << Text("map.jxl")
                             << QByteArray(jxl).insert(12 + 20, BigEndian(16) + "jhgm" + BigEndian(0) + BigEndian(0));
    for (const char* name : {"apple-gain-map.heic", "tone-map.heic", "tone-map.avif"}) {
        QFile file(Text(METADATA_DATA "/") + Text(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTest::newRow(name) << Text(name) << file.readAll();
    }
}

void tst_GainMaps::warnsOfLostGainMaps()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);

    bench->WriteBytes(name, bytes);
    QCOMPARE(WarningsOf(name), 1);
}

void tst_GainMaps::staysSilentWithout_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("JPEG") << Text("a.jpg") << jpeg;
    QTest::newRow("JPEG XL") << Text("a.jxl") << jxl;
    QTest::newRow("JPEG with a second picture")
        << Text("b.jpg")
        << AsFirstSegment(jpeg, MultiPictureIndex(quint32(jpeg.size() + MultiPictureIndex(0).size()))) + jpeg;
    QTest::newRow("JPEG with a second picture that is not there")
        << Text("c.jpg") << AsFirstSegment(jpeg, MultiPictureIndex(0x7fffffff));
    QTest::newRow("JPEG whose index ends early")
        << Text("d.jpg") << AsFirstSegment(jpeg, Segment("ffe2", QByteArray("MPF\0MM\0*\0\0\0\x08\xff\xff", 14)));
    QTest::newRow("JPEG with a film") << Text("e.jpg")
                                      << AsFirstSegment(jpeg, XmpSegment("xmlns:GCamera='http://ns.google.com/photos/"
                                                                         "1.0/camera/' GCamera:MotionPhoto='1'"));
    QFile file(Text(METADATA_DATA "/created.heic"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray heic = file.readAll();
    QTest::newRow("HEIF") << Text("a.heic") << heic;
    QTest::newRow("HEIF with boxes in boxes without end") << Text("b.heic") << heic + [] {
        QByteArray boxes;
        for (int depth = 2000; depth > 0; --depth) {
            boxes += BigEndian(quint32(depth * 8)) + "moov";
        }
        return boxes;
    }();
    QTest::newRow("HEIF with a box that is too short") << Text("c.heic") << heic + BigEndian(10) + "moov" + "\0\0";
}

void tst_GainMaps::staysSilentWithout()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);

    bench->WriteBytes(name, bytes);
    QCOMPARE(WarningsOf(name), 0);
}

QTEST_GUILESS_MAIN(tst_GainMaps)
#include "tst_gainmaps.moc"
