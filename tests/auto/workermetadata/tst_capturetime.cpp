// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"
#include "RawPicture.h"
#include "Text.h"
#include "WorkerBench.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QtEndian>

#include <functional>

using namespace BatchProtocol;

namespace {

using Plant = std::function<void(PlantedMetadata::Blocks&)>;

struct Source
{
    const char* name;
    const char* time; ///< as it is read
    Plant plant;
    Plant spoil; ///< with a date that does not exist
};

Plant Exif(const char* key, const char* time)
{
    return [key, time](PlantedMetadata::Blocks& blocks) { blocks.exif[key] = time; };
}

Plant Xmp(const char* key, const char* time)
{
    return [key, time](PlantedMetadata::Blocks& blocks) { blocks.xmp[key] = time; };
}

// In their order.
const QVector<Source>& Sources()
{
    static const QVector<Source> sources{
        {"EXIF DateTimeOriginal", "2011-01-01T01:01:01", Exif("Exif.Photo.DateTimeOriginal", "2011:01:01 01:01:01"),
         Exif("Exif.Photo.DateTimeOriginal", "0000:00:00 00:00:00")},
        {"EXIF DateTimeDigitized", "2012-02-02T02:02:02", Exif("Exif.Photo.DateTimeDigitized", "2012:02:02 02:02:02"),
         Exif("Exif.Photo.DateTimeDigitized", "    :  :     :  :  ")},
        {"EXIF DateTime", "2013-03-03T03:03:03", Exif("Exif.Image.DateTime", "2013:03:03 03:03:03"),
         Exif("Exif.Image.DateTime", "2013:13:03 03:03:03")},
        {"XMP exif:DateTimeOriginal", "2014-04-04T04:04:04",
         Xmp("Xmp.exif.DateTimeOriginal", "2014-04-04T04:04:04.25+02:00"), Xmp("Xmp.exif.DateTimeOriginal", "2014")},
        {"XMP photoshop:DateCreated", "2015-05-05T05:05:00", Xmp("Xmp.photoshop.DateCreated", "2015-05-05T05:05"),
         Xmp("Xmp.photoshop.DateCreated", "0001-01-01T00:00:00")},
        {"XMP xmp:CreateDate", "2016-06-06T06:06:06", Xmp("Xmp.xmp.CreateDate", "2016-06-06T06:06:06Z"),
         Xmp("Xmp.xmp.CreateDate", "yesterday")},
        {"IPTC", "2017-07-07T07:07:07",
         [](PlantedMetadata::Blocks& blocks) {
             blocks.iptc["Iptc.Application2.DateCreated"] = "2017-07-07";
             blocks.iptc["Iptc.Application2.TimeCreated"] = "07:07:07+02:00";
         },
         [](PlantedMetadata::Blocks&) {}},
    };
    return sources;
}

QByteArray BigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

// The header of a film in a file, with its time in seconds since 1904.
QByteArray FilmHeader(quint32 created)
{
    const QByteArray header =
        BigEndian(8 + 4 + 96) + "mvhd" + QByteArray(4, '\0') + BigEndian(created) + QByteArray(92, '\0');
    return BigEndian(quint32(header.size()) + 8) + "moov" + header;
}

const QDateTime& FileTime()
{
    static const QDateTime time(QDate(2001, 2, 3), QTime(4, 5, 6));
    return time;
}

} // namespace

/// When a picture was taken, by the first source that knows it.
class tst_CaptureTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsEachSource_data();
    void readsEachSource();
    void firstSourceCounts_data();
    void firstSourceCounts();
    void passesOverDatesThatAreNone_data();
    void passesOverDatesThatAreNone();
    void readsForms_data();
    void readsForms();
    void readsTimesInBoxes_data();
    void readsTimesInBoxes();
    void readsRawFiles_data();
    void readsRawFiles();

private:
    QDateTime Probed(const QString& name);
    QDateTime ProbedWith(const QVector<Plant>& plants, const QString& name = Text("in.jpg"));

    std::unique_ptr<WorkerBench> bench;
};

void tst_CaptureTime::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
}

QDateTime tst_CaptureTime::Probed(const QString& name)
{
    QFile file(bench->Path(name));
    if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(FileTime(), QFileDevice::FileModificationTime)) {
        qFatal("The file has no time.");
    }
    file.close();
    return bench->Probe(name).captured;
}

QDateTime tst_CaptureTime::ProbedWith(const QVector<Plant>& plants, const QString& name)
{
    WritePicture(Chart(30, 20), bench->Path(name));
    PlantedMetadata::Blocks blocks;
    for (const Plant& plant : plants) {
        plant(blocks);
    }
    PlantedMetadata::Write(bench->Path(name), blocks);
    return Probed(name);
}

void tst_CaptureTime::readsEachSource_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("name");
    for (int i = 0; i < Sources().size(); ++i) {
        for (const char* name : {"in.jpg", "in.tif", "in.jp2", "in.png"}) {
            QTest::addRow("%s, %s", Sources()[i].name, name) << i << Text(name);
        }
    }
}

void tst_CaptureTime::readsEachSource()
{
    QFETCH(const int, source);
    QFETCH(const QString, name);
    SKIP_WHERE(MissingInTests(QFileInfo(name).suffix()));

    QCOMPARE(ProbedWith({Sources()[source].plant}, name).toString(Qt::ISODate), Text(Sources()[source].time));
}

void tst_CaptureTime::firstSourceCounts_data()
{
    QTest::addColumn<int>("first");
    for (int i = 0; i < Sources().size(); ++i) {
        QTest::newRow(Sources()[i].name) << i;
    }
}

void tst_CaptureTime::firstSourceCounts()
{
    QFETCH(const int, first);

    QVector<Plant> plants;
    for (int i = first; i < Sources().size(); ++i) {
        plants.append(Sources()[i].plant);
    }
    QCOMPARE(ProbedWith(plants).toString(Qt::ISODate), Text(Sources()[first].time));
}

void tst_CaptureTime::passesOverDatesThatAreNone_data()
{
    QTest::addColumn<int>("spoilt");
    for (int i = 0; i + 1 < Sources().size(); ++i) {
        QTest::newRow(Sources()[i].name) << i;
    }
}

void tst_CaptureTime::passesOverDatesThatAreNone()
{
    QFETCH(const int, spoilt);

    QCOMPARE(ProbedWith({Sources()[spoilt].spoil, Sources()[spoilt + 1].plant}).toString(Qt::ISODate),
             Text(Sources()[spoilt + 1].time));
    QCOMPARE(ProbedWith({Sources()[spoilt].spoil}), FileTime());
}

void tst_CaptureTime::readsForms_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("time");
    const QString fileTime = FileTime().toString(Qt::ISODate);
    QTest::newRow("EXIF") << QByteArray("2019:07:06 05:04:03") << Text("2019-07-06T05:04:03");
    QTest::newRow("with hyphens") << QByteArray("2019-07-06 05:04:03") << Text("2019-07-06T05:04:03");
    QTest::newRow("with slashes") << QByteArray("2019/07/06 05:04:03") << Text("2019-07-06T05:04:03");
    QTest::newRow("with a zone") << QByteArray("2019:07:06 05:04:03+02:00") << Text("2019-07-06T05:04:03");
    QTest::newRow("without a time") << QByteArray("2019:07:06") << Text("2019-07-06T00:00:00");
    QTest::newRow("long ago") << QByteArray("1899:12:31 23:59:59") << Text("1899-12-31T23:59:59");
    for (const char* none : {"0000:00:00 00:00:00", "    :  :     :  :  ", "2019:02:30 05:04:03", "2019:07:06 25:00:00",
                             "1234:05:06 07:08:09", "2019:07", "", "2019:07:06x"}) {
        QTest::addRow("none: \"%s\"", none) << QByteArray(none) << fileTime;
    }
}

void tst_CaptureTime::readsForms()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, time);

    const QDateTime found = ProbedWith({Exif("Exif.Photo.DateTimeOriginal", text.constData())});
    QCOMPARE(found.toString(Qt::ISODate), time);
}

void tst_CaptureTime::readsTimesInBoxes_data()
{
    QTest::addColumn<QByteArray>("behind");
    QTest::addColumn<bool>("isCreated");
    QTest::addColumn<QDateTime>("time");
    const QDateTime start(QDate(1904, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime film(QDate(2016, 5, 4), QTime(3, 2, 1), Qt::UTC);
    const QDateTime picture(QDate(2017, 8, 9), QTime(10, 11, 12), Qt::UTC);
    const QByteArray header = FilmHeader(quint32(start.secsTo(film)));
    QTest::newRow("neither") << QByteArray() << false << FileTime();
    QTest::newRow("of the picture") << QByteArray() << true << picture.toLocalTime();
    QTest::newRow("of the film") << header << false << film.toLocalTime();
    QTest::newRow("of both") << header << true << picture.toLocalTime();
    QTest::newRow("of a film without a time") << FilmHeader(0) << false << FileTime();
}

void tst_CaptureTime::readsTimesInBoxes()
{
    QFETCH(const QByteArray, behind);
    QFETCH(const bool, isCreated);
    QFETCH(const QDateTime, time);

    QFile file(Text(isCreated ? METADATA_DATA "/created.heic" : METADATA_DATA "/tone-map.heic"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    bench->WriteBytes(Text("in.heic"), file.readAll() + behind);
    QCOMPARE(Probed(Text("in.heic")), time);
}

void tst_CaptureTime::readsRawFiles_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("DateTimeOriginal of the first directory") << QByteArray("Exif.Image.DateTimeOriginal");
    QTest::newRow("DateTime") << QByteArray("Exif.Image.DateTime");
    QTest::newRow("DateTimeDigitized") << QByteArray("Exif.Photo.DateTimeDigitized");
}

void tst_CaptureTime::readsRawFiles()
{
    QFETCH(const QByteArray, key);

    bench->WriteBytes(Text("in.dng"), RawPicture::Dng());
    {
        const auto image = Exiv2::ImageFactory::open(bench->Path(Text("in.dng")).toStdString());
        image->readMetadata();
        image->exifData()[key.toStdString()] = "2018:09:10 11:12:13";
        image->writeMetadata();
    }
    const QDateTime found = Probed(Text("in.dng"));
    QCOMPARE(found.toString(Qt::ISODate), Text("2018-09-10T11:12:13"));
}

QTEST_GUILESS_MAIN(tst_CaptureTime)
#include "tst_capturetime.moc"
