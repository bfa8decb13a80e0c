// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/worker/metadata/TextsOfPicture.h"

#include <QTest>

#include <functional>

using BatchJob::PictureTexts;
using BatchWorker::MetadataBlocks;
using BatchWorker::TextsOf;

using Plant = std::function<void(MetadataBlocks&)>;
Q_DECLARE_METATYPE(Plant)

/// What metadata say for tokens: which entry counts, and how numbers are written.
class tst_PictureTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void numbers_data();
    void numbers();
    void texts_data();
    void texts();
    void nothing();
    void brokenEntriesCostThemselves();

private:
    static QString Of(const PictureTexts& texts, const QString& token);
};

namespace {

Plant Exif(const char* key, const char* value)
{
    return [key, value](MetadataBlocks& blocks) { blocks.exif[key].setValue(std::string(value)); };
}

Plant Xmp(const char* key, const char* value)
{
    return [key, value](MetadataBlocks& blocks) { blocks.xmp[key].setValue(std::string(value)); };
}

Plant Iptc(const char* key, const char* value)
{
    return [key, value](MetadataBlocks& blocks) { blocks.iptc[key].setValue(std::string(value)); };
}

Plant Both(const Plant& first, const Plant& second)
{
    return [first, second](MetadataBlocks& blocks) {
        first(blocks);
        second(blocks);
    };
}

} // namespace

void tst_PictureTexts::initTestCase()
{
    QVERIFY(Exiv2::XmpParser::initialize());
}

QString tst_PictureTexts::Of(const PictureTexts& texts, const QString& token)
{
    const QMap<QString, QString> all{
        {QStringLiteral("camera"), texts.camera},   {QStringLiteral("lens"), texts.lens},
        {QStringLiteral("focal"), texts.focal},     {QStringLiteral("aperture"), texts.aperture},
        {QStringLiteral("shutter"), texts.shutter}, {QStringLiteral("iso"), texts.iso},
        {QStringLiteral("title"), texts.title},     {QStringLiteral("creator"), texts.creator}};
    return all.value(token);
}

void tst_PictureTexts::numbers_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<Plant>("plant");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* token, const char* key, const char* value, const char* text) {
        QTest::addRow("%s %s", key, value)
            << QString::fromLatin1(token) << Exif(key, value) << QString::fromLatin1(text);
    };
    row("shutter", "Exif.Photo.ExposureTime", "1/250", "1/250");
    row("shutter", "Exif.Photo.ExposureTime", "10/2500", "1/250");
    row("shutter", "Exif.Photo.ExposureTime", "1/4", "1/4");
    row("shutter", "Exif.Photo.ExposureTime", "3/10", "0.3");
    row("shutter", "Exif.Photo.ExposureTime", "1/2", "0.5");
    row("shutter", "Exif.Photo.ExposureTime", "13/10", "1.3");
    row("shutter", "Exif.Photo.ExposureTime", "30/1", "30");
    row("shutter", "Exif.Photo.ExposureTime", "0/1", "");
    row("shutter", "Exif.Photo.ExposureTime", "1/0", "");
    row("shutter", "Exif.Photo.ExposureTime", "0/0", "");
    row("aperture", "Exif.Photo.FNumber", "28/10", "2.8");
    row("aperture", "Exif.Photo.FNumber", "8/1", "8");
    row("aperture", "Exif.Photo.FNumber", "178/100", "1.78");
    row("aperture", "Exif.Photo.FNumber", "0/0", "");
    row("focal", "Exif.Photo.FocalLength", "50/1", "50");
    row("focal", "Exif.Photo.FocalLength", "424/100", "4.2");
    row("focal", "Exif.Photo.FocalLength", "4294967295/1", "");
    row("iso", "Exif.Photo.ISOSpeedRatings", "400", "400");
    row("iso", "Exif.Photo.ISOSpeedRatings", "100 0", "100");
    row("iso", "Exif.Photo.ISOSpeedRatings", "0", "");
    row("iso", "Exif.Photo.ISOSpeedRatings", "65535", "");
    QTest::newRow("high sensitivity") << "iso"
                                      << Both(Exif("Exif.Photo.ISOSpeedRatings", "65535"),
                                              Exif("Exif.Photo.RecommendedExposureIndex", "102400"))
                                      << "102400";
    QTest::newRow("XMP") << "shutter" << Xmp("Xmp.exif.ExposureTime", "1/60") << "1/60";
    QTest::newRow("EXIF before XMP") << "aperture"
                                     << Both(Xmp("Xmp.exif.FNumber", "4/1"), Exif("Exif.Photo.FNumber", "2/1")) << "2";
    QTest::newRow("useless EXIF") << "aperture"
                                  << Both(Xmp("Xmp.exif.FNumber", "4/1"), Exif("Exif.Photo.FNumber", "0/1")) << "4";
    QTest::newRow("no number") << "aperture" << Xmp("Xmp.exif.FNumber", "wide open") << "";
}

void tst_PictureTexts::numbers()
{
    QFETCH(QString, token);
    QFETCH(Plant, plant);
    MetadataBlocks blocks;
    plant(blocks);
    QTEST(Of(TextsOf(blocks), token), "text");
}

void tst_PictureTexts::texts_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<Plant>("plant");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* token, const Plant& plant, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(token) << plant << QString::fromUtf8(text);
    };
    row("camera", "camera", Exif("Exif.Image.Model", "EOS 5D "), "EOS 5D");
    row("camera in XMP", "camera", Xmp("Xmp.tiff.Model", "X100"), "X100");
    row("lens", "lens", Exif("Exif.Photo.LensModel", "EF50mm f/1.8"), "EF50mm f/1.8");
    row("lens of the new names", "lens", Xmp("Xmp.exifEX.LensModel", "35mm"), "35mm");
    row("lens of the old names", "lens", Xmp("Xmp.aux.Lens", "24mm"), "24mm");
    row("UTF-8", "creator", Exif("Exif.Image.Artist", "Jos\xC3\xA9"), "José");
    row("Latin-1", "creator", Exif("Exif.Image.Artist", "Jos\xE9"), "José");
    row(
        "Windows", "title",
        [](MetadataBlocks& blocks) {
            Exiv2::DataValue value(Exiv2::unsignedByte);
            const Exiv2::byte bytes[] = {0x99, 0x51, 'a', 0, 0, 0};
            value.read(bytes, sizeof(bytes), Exiv2::littleEndian);
            blocks.exif.add(Exiv2::ExifKey("Exif.Image.XPTitle"), &value);
        },
        "写a");
    row("IPTC", "title", Iptc("Iptc.Application2.ObjectName", "Sea"), "Sea");
    row("XMP before IPTC", "title", Both(Iptc("Iptc.Application2.ObjectName", "Sea"), Xmp("Xmp.dc.title", "Sun")),
        "Sun");
    row("blank XMP", "title", Both(Iptc("Iptc.Application2.ObjectName", "Sea"), Xmp("Xmp.dc.title", "  ")), "Sea");
    row(
        "common language", "title",
        [](MetadataBlocks& blocks) {
            Exiv2::LangAltValue value;
            value.value_["de"] = "Meer";
            value.value_["x-default"] = "Sea";
            blocks.xmp.add(Exiv2::XmpKey("Xmp.dc.title"), &value);
        },
        "Sea");
    row(
        "several creators", "creator",
        [](MetadataBlocks& blocks) {
            Exiv2::XmpArrayValue value(Exiv2::xmpSeq);
            value.read("Ana");
            value.read("Bo");
            blocks.xmp.add(Exiv2::XmpKey("Xmp.dc.creator"), &value);
        },
        "Ana, Bo");
    row("control characters", "camera", Exif("Exif.Image.Model", "a\x01\x1B[31mb\r\nc"), "a [31mb c");
}

void tst_PictureTexts::texts()
{
    numbers();
}

void tst_PictureTexts::nothing()
{
    const PictureTexts texts = TextsOf({});
    for (const QString& text : {texts.camera, texts.lens, texts.focal, texts.aperture, texts.shutter, texts.iso,
                                texts.title, texts.creator}) {
        QCOMPARE(text, QString());
    }
}

// An entry of another type than the standard says.
void tst_PictureTexts::brokenEntriesCostThemselves()
{
    MetadataBlocks blocks;
    Exiv2::AsciiValue text;
    text.read("f/2.8");
    blocks.exif.add(Exiv2::ExifKey("Exif.Photo.FNumber"), &text);
    const Exiv2::ValueType<Exiv2::URational> none(Exiv2::unsignedRational);
    blocks.exif.add(Exiv2::ExifKey("Exif.Photo.ExposureTime"), &none);
    blocks.exif["Exif.Image.Model"] = "EOS";
    const PictureTexts texts = TextsOf(blocks);
    QCOMPARE(texts.aperture, QString());
    QCOMPARE(texts.shutter, QString());
    QCOMPARE(texts.camera, QStringLiteral("EOS"));
}

QTEST_APPLESS_MAIN(tst_PictureTexts)
#include "tst_picturetexts.moc"
