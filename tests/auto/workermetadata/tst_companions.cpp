// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileParts.h"
#include "PlantedMetadata.h"
#include "RandomEdits.h"
#include "Text.h"
#include "WorkerBench.h"

#include "server/worker/metadata/Companions.h"

#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <random>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace FileParts;

namespace {

QByteArray XmpElements(const QByteArray& elements)
{
    return Segment("ffe1",
                   QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) +
                       PlantedMetadata::XmpPacket("<rdf:Description rdf:about='' "
                                                  "xmlns:Container='http://ns.google.com/photos/1.0/container/' "
                                                  "xmlns:Item='http://ns.google.com/photos/1.0/container/item/'>" +
                                                  elements + "</rdf:Description>"));
}

QByteArray Directory(const QByteArray& item)
{
    return XmpElements("<Container:Directory><rdf:Seq><rdf:li rdf:parseType='Resource'>" + item +
                       "</rdf:li></rdf:Seq></Container:Directory>");
}

QByteArray DataOf(const char* name)
{
    QFile file(Text(METADATA_DATA "/") + Text(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QByteArray motion = XmpSegment("xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' GCamera:MotionPhoto='1'");

} // namespace

/// What files have beside their picture, and what warnings say of it.
class tst_Companions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void namesWhatIsLost_data();
    void namesWhatIsLost();
    void staysSilentWithout_data();
    void staysSilentWithout();
    void ignoresDamage_data();
    void ignoresDamage();
    void bearsRandomDamage_data() { AddSeeds(); }
    void bearsRandomDamage();
    void tracksOfRawFilesAreNoFilms();
    void filesOfTheseTestsHaveNone();

private:
    QStringList WordsOf(const QString& name, const QByteArray& bytes);

    std::unique_ptr<WorkerBench> bench;
    QByteArray jpeg;
};

void tst_Companions::initTestCase()
{
    StartPictures();
    PlantedMetadata::Start();
    bench = std::make_unique<WorkerBench>();
    WritePicture(Chart(60, 40), bench->Path(Text("plain.jpg")));
    jpeg = bench->Bytes(Text("plain.jpg"));
}

/// The kinds of the warnings of the file; the first item is a reason if there is no result.
QStringList tst_Companions::WordsOf(const QString& name, const QByteArray& bytes)
{
    bench->WriteBytes(name, bytes);
    const Report report = bench->Make(name, Text("out.jpg"), Text("JPEG"));
    QStringList words;
    if (!report.reason.isEmpty()) {
        words.append(report.reason);
    }
    for (const Warning& warning : report.warnings) {
        words.append(WarningWord(warning.kind));
    }
    return words;
}

void tst_Companions::namesWhatIsLost_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("words");
    const auto row = [](const char* title, const char* name, const QByteArray& bytes, const QStringList& words) {
        QTest::newRow(title) << Text(name) << bytes << words;
    };
    const QStringList depth{Text("depth-lost")};
    const QStringList film{Text("film-lost")};
    const QStringList audio{Text("audio-lost")};
    const QStringList pages{Text("other-pages")};
    row("JPEG, depth of Google's cameras", "a.jpg",
        AsFirstSegment(jpeg, XmpSegment("xmlns:GDepth='http://ns.google.com/photos/1.0/depthmap/' "
                                        "GDepth:Format='RangeInverse'")),
        depth);
    row("JPEG, dynamic depth", "a.jpg",
        AsFirstSegment(jpeg, XmpSegment("xmlns:DepthMap='http://ns.google.com/photos/dd/1.0/depthmap/' "
                                        "DepthMap:Near='1'")),
        depth);
    row("JPEG, depth in a container, attribute", "a.jpg",
        AsFirstSegment(jpeg, Directory("<Container:Item Item:Semantic=\"Depth\" Item:Mime='image/jpeg'/>")), depth);
    row("JPEG, depth in a container, element", "a.jpg",
        AsFirstSegment(jpeg, Directory("<Item:Semantic>Depth</Item:Semantic>")), depth);
    const QByteArray apple =
        XmpSegment("xmlns:depthData='http://ns.apple.com/depthData/1.0/' depthData:Quality='high'");
    row("JPEG, depth said by the second picture", "a.jpg",
        AsFirstSegment(jpeg, MultiPictureIndex(quint32(jpeg.size() + MultiPictureIndex(0).size()))) +
            AsFirstSegment(jpeg, apple),
        depth);
    row("JPEG, film", "a.jpg", AsFirstSegment(jpeg, motion) + Film(Track("vide")), film);
    row("JPEG, film with sound", "a.jpg", AsFirstSegment(jpeg, motion) + Film(Track("vide") + Track("soun")),
        film + audio);
    row("JPEG, film behind other bytes", "a.jpg",
        AsFirstSegment(jpeg, motion) + QByteArray(3'000'000, '\7') + Film(Track("vide") + Track("soun")) + "SEFT",
        film + audio);
    row("JPEG, film of older cameras", "a.jpg",
        AsFirstSegment(jpeg, XmpSegment("xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' "
                                        "GCamera:MicroVideo=\"1\" GCamera:MicroVideoOffset='10'")) +
            Film(Track("soun") + Track("vide")),
        film + audio);
    row("JPEG, film in a container", "a.jpg",
        AsFirstSegment(jpeg, Directory("<Container:Item Item:Semantic='MotionPhoto' Item:Mime='video/mp4'/>")) +
            Film(Track("vide")),
        film);
    row("JPEG, sound", "a.jpg",
        AsFirstSegment(jpeg,
                       XmpSegment("xmlns:GAudio='http://ns.google.com/photos/1.0/audio/' GAudio:Mime='audio/mp4a'")),
        audio);
    row("HEIF, depth", "a.heic", DataOf("depth.heic"), depth);
    row("HEIF, depth of the later standard", "a.heic", DataOf("depth-of-mpeg.heic"), depth);
    const QByteArray heic = DataOf("created.heic");
    row("HEIF, film beside it", "a.heic", heic + Box("mpvd", Film(Track("vide") + Track("soun"))), film + audio);
    row("HEIF, tracks", "a.heic", heic + Box("moov", Track("vide") + Track("soun")), film + audio);
    row("HEIF, sequence of pictures", "a.heic", heic + Box("moov", Track("pict", 12)), pages);
    row("HEIF, everything", "a.heic",
        DataOf("depth.heic") + Box("moov", Track("pict", 3) + Track("pict", 12) + Track("soun")) +
            Box("mpvd", Film(Track("vide") + Track("soun"))),
        pages + depth + film + audio);
}

void tst_Companions::namesWhatIsLost()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QStringList, words);

    QCOMPARE(WordsOf(name, bytes), words);
}

void tst_Companions::staysSilentWithout_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* title, const char* name, const QByteArray& bytes) {
        QTest::newRow(title) << Text(name) << bytes;
    };
    row("JPEG that has lost its film", "a.jpg", AsFirstSegment(jpeg, motion));
    row("JPEG whose film is switched off", "a.jpg",
        AsFirstSegment(jpeg, XmpSegment("xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' "
                                        "GCamera:MotionPhoto='0'")) +
            Film(Track("vide")));
    row("JPEG with the word in a caption", "a.jpg",
        AsFirstSegment(jpeg, XmpSegment("xmlns:dc='http://purl.org/dc/elements/1.1/' dc:source='MotionPhoto Depth'")));
    row("JPEG with a container of one picture", "a.jpg",
        AsFirstSegment(jpeg, Directory("<Container:Item Item:Semantic='Primary' Item:Mime='image/jpeg'/>")));
    row("HEIF with transparency", "a.heic", DataOf("transparency.heic"));
    row("HEIF with one picture in a track", "a.heic", DataOf("created.heic") + Box("moov", Track("pict", 1)));
    row("HEIF with a film without tracks", "a.heic", DataOf("created.heic") + Box("mpvd", Film({})));
    row("HEIF with tracks of other kinds", "a.heic",
        DataOf("created.heic") + Box("moov", Track("meta") + Track("auxv") + Track("hint")));
}

void tst_Companions::staysSilentWithout()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);

    QCOMPARE(WordsOf(name, bytes), QStringList());
}

void tst_Companions::ignoresDamage_data()
{
    QTest::addColumn<QByteArray>("behind");
    const auto row = [](const char* title, const QByteArray& behind) { QTest::newRow(title) << behind; };
    row("box longer than the file", BigEndian(1000) + "ftypmp42");
    row("box of no size", BigEndian(0) + "ftypmp42" + QByteArray(2000, 'x'));
    row("box shorter than its header", BigEndian(7) + "ftypmp42");
    row("box with a long size that is negative", BigEndian(1) + "ftyp" + QByteArray(8, '\xff'));
    row("nothing but the kind", "ftyp");
    row("the kind again and again", QByteArray("ftyp").repeated(100'000));
    row("tracks longer than the film",
        Box("ftyp", "mp42" + BigEndian(0)) + BigEndian(900) + "moov" + BigEndian(9000) + "trak");
    row("a film that is cut off", Film(Track("vide") + Track("soun")).chopped(150));
    row("a track that is cut off", Box("ftyp", "mp42" + BigEndian(0)) + Box("moov", Track("vide").left(100)));
    row("a count that is cut off",
        Box("ftyp", "mp42" + BigEndian(0)) +
            Box("moov", Box("trak", Box("mdia", Box("hdlr", BigEndian(0) + BigEndian(0) + "pict") +
                                                    Box("minf", Box("stbl", Box("stsz", BigEndian(0) + "abc")))))));
}

void tst_Companions::ignoresDamage()
{
    QFETCH(const QByteArray, behind);

    QCOMPARE(WordsOf(Text("a.jpg"), AsFirstSegment(jpeg, motion) + behind), QStringList());
    const QByteArray heic = DataOf("created.heic");
    for (const QByteArray& bytes : {heic + Box("mpvd", behind), heic + Box("moov", behind)}) {
        bench->WriteBytes(Text("a.heic"), bytes);
        const BatchWorker::Companions found = BatchWorker::CompanionsOf(bench->Path(Text("a.heic")));
        QVERIFY(!found.hasAudio && !found.hasDepth && !found.hasFilm && found.pictures == 0);
    }
    // A box that ends within another, byte by byte.
    const QByteArray whole = Film(Track("vide") + Track("pict", 0xffffffff));
    for (int size = 0; size < whole.size(); ++size) {
        bench->WriteBytes(Text("b.jpg"), AsFirstSegment(jpeg, motion) + whole.left(size));
        QVERIFY(!BatchWorker::CompanionsOf(bench->Path(Text("b.jpg"))).hasFilm);
    }
}

// Sizes and counts out of range, anywhere.
void tst_Companions::bearsRandomDamage()
{
    QFETCH(const unsigned, seed);

    std::mt19937 random(seed);
    const QByteArray film = Film(Track("vide") + Track("pict", 7) + Track("soun"));
    for (const QByteArray& whole :
         {AsFirstSegment(jpeg, motion) + film, DataOf("depth.heic") + Box("mpvd", film) + Box("moov", Track("vide"))}) {
        for (int round = 0; round < 50; ++round) {
            QByteArray bytes = whole;
            const int behind = whole.size() - film.size();
            for (int count = 1 + int(random() % 4); count > 0; --count) {
                const int place = behind + int(random() % unsigned(film.size() - 4));
                bytes.replace(place, 4, BigEndian(random() % 2 == 0 ? random() : random() % 256));
            }
            bench->WriteBytes(Text("a.bin"), bytes);
            const BatchWorker::Companions found = BatchWorker::CompanionsOf(bench->Path(Text("a.bin")));
            QVERIFY(found.pictures >= 0);
        }
    }
}

void tst_Companions::tracksOfRawFilesAreNoFilms()
{
    const QByteArray tracks = Box("moov", Track("vide") + Track("soun"));
    for (const char* brand : {"crx ", "heic"}) {
        bench->WriteBytes(Text("a.bin"), Box("ftyp", brand + BigEndian(0)) + tracks);
        const bool isFilm = BatchWorker::CompanionsOf(bench->Path(Text("a.bin"))).hasFilm;
        QCOMPARE(isFilm, qstrcmp(brand, "heic") == 0);
    }
}

// The data of the other tests are ordinary pictures.
void tst_Companions::filesOfTheseTestsHaveNone()
{
    QDirIterator files(Text(METADATA_DATA "/.."), QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QString path = files.next();
        const BatchWorker::Companions found = BatchWorker::CompanionsOf(path);
        const bool isMade = QFileInfo(path).fileName().startsWith(Text("depth"));
        QVERIFY2(found.hasDepth == isMade && !found.hasFilm && !found.hasAudio && found.pictures == 0,
                 qPrintable(path));
        ++count;
    }
    QVERIFY(count > 20);
}

QTEST_GUILESS_MAIN(tst_Companions)
#include "tst_companions.moc"
