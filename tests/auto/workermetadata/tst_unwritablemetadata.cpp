// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"
#include "Text.h"

#include "server/worker/metadata/MetadataEncoder.h"

#include <QTest>

using namespace BatchJob;
using namespace BatchWorker;

namespace {

MetadataBlocks Blocks()
{
    MetadataBlocks blocks;
    blocks.exif["Exif.Image.Make"] = "Canon";
    blocks.exif["Exif.Image.Artist"] = "A. Photographer";
    blocks.exif["Exif.Canon.OwnerName"] = "Owner";
    blocks.iptc["Iptc.Application2.Caption"] = "A caption";
    blocks.xmp["Xmp.dc.source"] = "an archive";
    return blocks;
}

// As the metadata library reads them from files that have two EXIF blocks. It cannot write them.
void RepeatArray(Exiv2::ExifData& exif)
{
    constexpr int numbers = 14;
    for (int i = 0; i < 2 * numbers; ++i) {
        const QByteArray key = "Exif.CanonPr.0x" + QByteArray::number(i % numbers, 16).rightJustified(4, '0');
        Exiv2::UShortValue value;
        value.value_.push_back(i % numbers == 0 ? numbers * 2 : 0);
        exif.add(Exiv2::ExifKey(key.constData()), &value);
    }
}

} // namespace

/// What the metadata library cannot write costs as little as possible of the metadata, and never the picture.
class tst_UnwritableMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsWhatCanBeWritten();
    void leavesOutMakersNotes();
    void leavesOutXmp();
};

void tst_UnwritableMetadata::initTestCase()
{
    PlantedMetadata::Start();
}

void tst_UnwritableMetadata::keepsWhatCanBeWritten()
{
    MetadataBlocks blocks = Blocks();
    Warnings warnings;
    RemoveUnwritable(blocks, warnings);
    QCOMPARE(TextsOf(warnings), QStringList());
    QVERIFY(Encoded(blocks.exif).contains("Owner"));
    QVERIFY(Encoded(blocks.iptc).contains("A caption"));
    QVERIFY(Encoded(blocks.xmp).contains("an archive"));
}

void tst_UnwritableMetadata::leavesOutMakersNotes()
{
    MetadataBlocks blocks = Blocks();
    RepeatArray(blocks.exif);
    QVERIFY_EXCEPTION_THROWN(Encoded(blocks.exif), std::exception);
    Warnings warnings;
    RemoveUnwritable(blocks, warnings);
    QCOMPARE(TextsOf(warnings),
             QStringList(Text("the notes of the camera's maker cannot be written and are left out")));
    QCOMPARE(warnings.first().kind, WarningKind::MetadataLost);
    QVERIFY(Encoded(blocks.exif).contains("A. Photographer"));
    QVERIFY(!Encoded(blocks.exif).contains("Owner"));
    QCOMPARE(blocks.iptc.count(), 1L);
    QCOMPARE(blocks.xmp.count(), 1L);
}

void tst_UnwritableMetadata::leavesOutXmp()
{
    MetadataBlocks blocks = Blocks();
    blocks.xmp["Xmp.dc.creator[2]"] = "An item without those before it";
    Warnings warnings;
    RemoveUnwritable(blocks, warnings);
    QCOMPARE(TextsOf(warnings), QStringList(Text("XMP metadata cannot be written and are left out")));
    QVERIFY(blocks.xmp.empty());
    QVERIFY(Encoded(blocks.exif).contains("Owner"));
}

QTEST_GUILESS_MAIN(tst_UnwritableMetadata)
#include "tst_unwritablemetadata.moc"
