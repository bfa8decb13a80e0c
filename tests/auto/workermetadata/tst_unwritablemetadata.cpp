#include "PlantedMetadata.h"
#include "Text.h"
#include "WorkerBench.h"

#include <QTest>
#include <QtEndian>

using namespace BatchJob;
using namespace BatchProtocol;

namespace {

// The metadata library reads the entries of both blocks and cannot write notes that have an array twice.
QByteArray WithRepeatedExif(QByteArray webp)
{
    constexpr int headerSize = 8;
    const int place = webp.indexOf("EXIF");
    const quint32 size = qFromLittleEndian<quint32>(webp.constData() + place + 4);
    webp += webp.mid(place, headerSize + int(size + size % 2));
    qToLittleEndian(quint32(webp.size() - headerSize), webp.data() + 4);
    return webp;
}

PlantedMetadata::Blocks BlocksWithNotes()
{
    PlantedMetadata::Blocks blocks;
    blocks.exif["Exif.Image.Make"] = "Canon";
    blocks.exif["Exif.Image.Artist"] = "A. Photographer";
    blocks.exif["Exif.Photo.DateTimeOriginal"] = "2019:07:06 05:04:03";
    constexpr int numbers = 14;
    for (int number = 0; number < numbers; ++number) {
        const QByteArray key = "Exif.CanonPr.0x" + QByteArray::number(number, 16).rightJustified(4, '0');
        blocks.exif[key.constData()] = std::int16_t(number == 0 ? numbers * 2 : 0);
    }
    blocks.xmp =
        PlantedMetadata::Xmp("<rdf:Description xmlns:dc='http://purl.org/dc/elements/1.1/' dc:source='an archive'/>");
    return blocks;
}

} // namespace

/// No picture is lost because its metadata cannot be written.
class tst_UnwritableMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesOutWhatCannotBeWritten_data();
    void leavesOutWhatCannotBeWritten();
    void goesWithoutMetadata();

private:
    std::unique_ptr<WorkerBench> bench;
};

void tst_UnwritableMetadata::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
    WritePicture(Chart(60, 40), bench->Path(Text("in.webp")));
    PlantedMetadata::Write(bench->Path(Text("in.webp")), BlocksWithNotes());
    bench->WriteBytes(Text("in.webp"), WithRepeatedExif(bench->Bytes(Text("in.webp"))));
}

void tst_UnwritableMetadata::leavesOutWhatCannotBeWritten_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"JPEG", "PNG", "TIFF", "WebP", "HEIF", "AVIF", "JPEG XL", "JPEG 2000"}) {
        QTest::newRow(format) << Text(format);
    }
}

void tst_UnwritableMetadata::leavesOutWhatCannotBeWritten()
{
    QFETCH(const QString, format);

    const Report report = bench->Make(Text("in.webp"), Text("out"), format);
    QVERIFY2(report.reason.isEmpty(), qPrintable(report.reason + report.detail));
    QCOMPARE(TextsOf(report.warnings),
             QStringList(Text("the notes of the camera's maker cannot be written and are left out")));
    QCOMPARE(report.warnings.first().kind, WarningKind::MetadataLost);
    // The rest stays.
    const QByteArray result = PlantedMetadata::Unpacked(bench->Bytes(Text("out")));
    QVERIFY(result.contains("A. Photographer"));
    QVERIFY(result.contains("2019:07:06 05:04:03"));
    QVERIFY(result.contains("an archive"));
}

void tst_UnwritableMetadata::goesWithoutMetadata()
{
    const Report report = bench->Make(Text("in.webp"), Text("out"), Text("GIF"));
    QVERIFY2(report.reason.isEmpty(), qPrintable(report.reason + report.detail));
    QCOMPARE(report.warnings.size(), 1);
    QCOMPARE(report.warnings.first().kind, WarningKind::MetadataLost);
    QVERIFY(report.warnings.first().text.contains(Text("GIF files cannot hold metadata")));
}

QTEST_GUILESS_MAIN(tst_UnwritableMetadata)
#include "tst_unwritablemetadata.moc"
