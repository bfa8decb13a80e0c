// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"
#include "job/values/JobValues.h"

#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>
#include <QTest>
#include <QtEndian>

#include <brotli/encode.h>
#include <exiv2/exiv2.hpp>
#include <optional>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

QString NameIn(const QString& format)
{
    return QStringLiteral("out.") + FindFormat(format)->extensions.first();
}

QByteArray Block(const Picture& picture, const char* name)
{
    if (picture.get_typeof(name) == 0) {
        return {};
    }
    std::size_t size = 0;
    const void* bytes = picture.get_blob(name, &size);
    return {static_cast<const char*>(bytes), int(size)};
}

struct Found
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    std::optional<bool> hasProfile; ///< nothing where the test cannot read the file

    QString Exif(const char* key) const
    {
        const auto found = exif.findKey(Exiv2::ExifKey(key));
        return found == exif.end() ? QString() : QString::fromStdString(found->toString());
    }
    QString Iptc(const char* key) const
    {
        const auto found = iptc.findKey(Exiv2::IptcKey(key));
        return found == iptc.end() ? QString() : QString::fromStdString(found->toString());
    }
    QString Xmp(const char* key) const
    {
        const auto found = xmp.findKey(Exiv2::XmpKey(key));
        return found == xmp.end() ? QString() : QString::fromStdString(found->toString());
    }
};

// A box of a JPEG XL file: its content, without the header.
QByteArray BoxOf(const QByteArray& file, const char* type)
{
    const int place = file.indexOf(type);
    if (place < 4) {
        return {};
    }
    const auto* size = reinterpret_cast<const uchar*>(file.constData() + place - 4);
    return file.mid(place + 4, int((size[0] << 24) | (size[1] << 16) | (size[2] << 8) | size[3]) - 8);
}

Found Read(const WorkerBench& bench, const QString& format)
{
    const QString file = bench.Path(NameIn(format));
    // Not a copy: blocks of HEIF files live no longer than the picture that was read.
    Picture picture;
    Found found;
    if (!MissingInTests(format)) {
        picture = Picture::new_from_file(file.toUtf8().constData());
        // The decoder of JPEG XL makes a profile up for files that are sRGB.
        const QByteArray profile = Block(picture, VIPS_META_ICC_NAME);
        QByteArray madeUp;
        for (const char letter : QByteArray("RGB_D65_SRG")) {
            madeUp.append('\0').append(letter);
        }
        found.hasProfile = !profile.isEmpty() && !profile.contains(madeUp);
    }
    const bool isRead = format != QLatin1String("HEIF") && format != QLatin1String("AVIF") &&
                        format != QLatin1String("JPEG XL") && format != QLatin1String("GIF");
    if (isRead) {
        const auto image = Exiv2::ImageFactory::open(file.toStdString());
        image->readMetadata();
        found.exif = image->exifData();
        found.iptc = image->iptcData();
        found.xmp = image->xmpData();
        found.hasProfile = found.hasProfile.value_or(false) || image->iccProfileDefined();
        return found;
    }
    const bool isJxl = format == QLatin1String("JPEG XL");
    QByteArray exif = isJxl ? BoxOf(bench.Bytes(NameIn(format)), "Exif").mid(4) : Block(picture, VIPS_META_EXIF_NAME);
    const QByteArray xmp = isJxl ? BoxOf(bench.Bytes(NameIn(format)), "xml ") : Block(picture, VIPS_META_XMP_NAME);
    exif = exif.startsWith("Exif") ? exif.mid(6) : exif;
    if (!exif.isEmpty()) {
        Exiv2::ExifParser::decode(found.exif, reinterpret_cast<const Exiv2::byte*>(exif.constData()),
                                  std::uint32_t(exif.size()));
    }
    if (!xmp.isEmpty()) {
        Exiv2::XmpParser::decode(found.xmp, xmp.toStdString());
    }
    return found;
}

QByteArray BigEndian(quint64 number, int size)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(number, bytes.data());
    return bytes.right(size);
}

QByteArray Packed(const QByteArray& content)
{
    QByteArray packed(int(BrotliEncoderMaxCompressedSize(std::size_t(content.size()))), '\0');
    std::size_t size = std::size_t(packed.size());
    BrotliEncoderCompress(BROTLI_MIN_QUALITY, BROTLI_DEFAULT_WINDOW, BROTLI_DEFAULT_MODE, std::size_t(content.size()),
                          reinterpret_cast<const std::uint8_t*>(content.constData()), &size,
                          reinterpret_cast<std::uint8_t*>(packed.data()));
    return packed.left(int(size));
}

const QStringList& AllKinds()
{
    static const QStringList kinds{Text("exif"), Text("gps"), Text("iptc"), Text("xmp"), Text("icc")};
    return kinds;
}

bool HoldsIptc(const QString& format)
{
    return format == QLatin1String("JPEG") || format == QLatin1String("TIFF") || format == QLatin1String("JPEG 2000");
}

} // namespace

/// What results say about themselves.
class tst_WorkerMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsEachKind_data();
    void keepsEachKind();
    void leavesTheWholeBlockOut_data();
    void leavesTheWholeBlockOut();
    void describesTheResult_data();
    void describesTheResult();
    void takesMetadataOutOfOtherFormats_data();
    void takesMetadataOutOfOtherFormats();
    void readsPackedBoxes();
    void survivesBrokenBoxes_data();
    void survivesBrokenBoxes();
    void survivesBrokenMetadata();
    void readsMetadataBesideBrokenProfiles_data();
    void readsMetadataBesideBrokenProfiles();
    void leavesOutWhatAJpegCannotHold();
    void saysNothingOfTagsThatItDoesNotKnow();
    void keepsTheFileTime_data();
    void keepsTheFileTime();

private:
    void WriteSource(const QString& name) const;

    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerMetadata::initTestCase()
{
    StartPictures();
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    Exiv2::XmpParser::initialize();
    bench = std::make_unique<WorkerBench>();
    // The trial of the HEIF encoders takes 20 s longer in a worker that has made another picture just before.
    WriteSource(Text("in.jpg"));
    if (!MissingEncoder(Text("HEIF"))) {
        QCOMPARE(bench->Make(Text("in.jpg"), NameIn(Text("HEIF")), Text("HEIF")).reason, QString());
    }
}

// A picture with metadata of every kind, turned by 90 degrees, with a profile that is not sRGB.
void tst_WorkerMetadata::WriteSource(const QString& name) const
{
    Picture picture = Chart(90, 60);
    VipsBlob* profile = nullptr;
    QCOMPARE(vips_profile_load("p3", &profile, nullptr), 0);
    picture.set(VIPS_META_ICC_NAME, nullptr, VIPS_AREA(profile)->data, VIPS_AREA(profile)->length);
    WritePicture(picture, bench->Path(name));
    vips_area_unref(VIPS_AREA(profile));
    const auto image = Exiv2::ImageFactory::open(bench->Path(name).toStdString());
    image->readMetadata();
    Exiv2::ExifData& exif = image->exifData();
    exif["Exif.Image.Artist"] = "A. Photographer";
    exif["Exif.Image.Orientation"] = std::uint16_t(6);
    exif["Exif.Photo.DateTimeOriginal"] = "2019:07:06 05:04:03";
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(9999);
    exif["Exif.GPSInfo.GPSLatitudeRef"] = "N";
    exif["Exif.GPSInfo.GPSLatitude"] = "48/1 30/1 0/1";
    exif["Exif.Thumbnail.Compression"] = std::uint16_t(6);
    image->iptcData()["Iptc.Application2.Caption"] = "A caption";
    image->xmpData()["Xmp.dc.creator"] = "A. Photographer";
    image->xmpData()["Xmp.tiff.Orientation"] = "6";
    image->xmpData()["Xmp.exif.GPSLatitude"] = "48,30.0N";
    image->writeMetadata();
}

void tst_WorkerMetadata::keepsEachKind_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QStringList>("keep");
    for (const FormatSchema& format : Formats()) {
        QTest::addRow("%s, all", qPrintable(format.name)) << format.name << AllKinds();
        QTest::addRow("%s, none", qPrintable(format.name)) << format.name << QStringList();
        for (const QString& kind : AllKinds()) {
            QTest::addRow("%s, only %s", qPrintable(format.name), qPrintable(kind)) << format.name << QStringList(kind);
            QStringList others = AllKinds();
            others.removeAll(kind);
            QTest::addRow("%s, all but %s", qPrintable(format.name), qPrintable(kind)) << format.name << others;
        }
    }
}

void tst_WorkerMetadata::keepsEachKind()
{
    QFETCH(const QString, format);
    QFETCH(const QStringList, keep);
    SKIP_WHERE(MissingEncoder(format));

    WriteSource(Text("in.jpg"));
    const Report report =
        bench->Make(Text("in.jpg"), NameIn(format), format, {{Text("keep"), QJsonArray::fromStringList(keep)}});
    QCOMPARE(report.reason, QString());
    const Found found = Read(*bench, format);
    const bool holdsAny = format != QLatin1String("GIF");
    const auto keeps = [&](const char* kind) { return holdsAny && keep.contains(QLatin1String(kind)); };
    QCOMPARE(found.Exif("Exif.Image.Artist"), keeps("exif") ? Text("A. Photographer") : QString());
    QCOMPARE(found.Exif("Exif.Photo.DateTimeOriginal"), keeps("exif") ? Text("2019:07:06 05:04:03") : QString());
    QCOMPARE(found.Exif("Exif.GPSInfo.GPSLatitude"), keeps("gps") ? Text("48/1 30/1 0/1") : QString());
    QCOMPARE(found.Xmp("Xmp.dc.creator"), keeps("xmp") ? Text("A. Photographer") : QString());
    QCOMPARE(found.Xmp("Xmp.exif.GPSLatitude"), keeps("xmp") && keeps("gps") ? Text("48,30.0N") : QString());
    QCOMPARE(found.Iptc("Iptc.Application2.Caption"),
             keeps("iptc") && HoldsIptc(format) ? Text("A caption") : QString());
    const QString inXmp = found.Xmp("Xmp.dc.description");
    QCOMPARE(inXmp, keeps("iptc") && !HoldsIptc(format) ? Text("lang=\"x-default\" A caption") : QString());
    QCOMPARE(found.hasProfile.value_or(keeps("icc")), keeps("icc"));
    const bool losesSomething = !holdsAny && keep != QStringList() && keep != QStringList(Text("icc"));
    QCOMPARE(report.warnings.isEmpty(), !losesSomething);
}

void tst_WorkerMetadata::leavesTheWholeBlockOut_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QStringList>("keep");
    const QVector<QPair<QByteArray, QStringList>> kinds{
        {"nothing kept", {}},
        {"profile kept", {Text("icc")}},
        {"XMP and IPTC kept", {Text("xmp"), Text("iptc")}},
        {"all but EXIF kept", {Text("iptc"), Text("xmp"), Text("icc")}},
    };
    QTest::newRow("AVIF, nothing kept") << Text("AVIF") << QStringList();
    for (const QString& format : {Text("JPEG"), Text("PNG"), Text("WebP"), Text("HEIF"), Text("JPEG XL")}) {
        for (const auto& kind : kinds) {
            QTest::addRow("%s, %s", qPrintable(format), kind.first.constData()) << format << kind.second;
        }
    }
}

/// Where no EXIF is to be kept, the encoder makes none up.
void tst_WorkerMetadata::leavesTheWholeBlockOut()
{
    QFETCH(const QString, format);
    QFETCH(const QStringList, keep);
    SKIP_WHERE(MissingEncoder(format));

    WriteSource(Text("in.jpg"));
    const auto make = [&](const QStringList& kinds) {
        return bench->Make(Text("in.jpg"), NameIn(format), format, {{Text("keep"), QJsonArray::fromStringList(kinds)}});
    };
    const auto isBlockThere = [&] {
        const QString file = bench->Path(NameIn(format));
        const bool isJxl = format == QLatin1String("JPEG XL");
        return (isJxl && !BoxOf(bench->Bytes(NameIn(format)), "Exif").isEmpty()) ||
               (!MissingInTests(format) &&
                !Block(Picture::new_from_file(file.toUtf8().constData()), VIPS_META_EXIF_NAME).isEmpty());
    };
    QCOMPARE(make(keep + QStringList(Text("exif"))).reason, QString());
    QVERIFY(isBlockThere());
    const Report report = make(keep);
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings), QStringList());
    QVERIFY(!isBlockThere());
    const Found found = Read(*bench, format);
    QCOMPARE(found.Xmp("Xmp.dc.creator"), keep.contains(Text("xmp")) ? Text("A. Photographer") : QString());
    QCOMPARE(found.hasProfile.value_or(keep.contains(Text("icc"))), keep.contains(Text("icc")));
    QCOMPARE(report.facts.outputSize, QSize(60, 90));
    if (!MissingInTests(format)) {
        const Picture result = ReadPicture(bench->Path(NameIn(format)));
        QCOMPARE(QSize(result.width(), result.height()), QSize(60, 90));
    }
}

void tst_WorkerMetadata::describesTheResult_data()
{
    QTest::addColumn<QString>("format");
    for (const FormatSchema& format : Formats()) {
        if (format.name != QLatin1String("GIF")) {
            QTest::newRow(qPrintable(format.name)) << format.name;
        }
    }
}

void tst_WorkerMetadata::describesTheResult()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    WriteSource(Text("in.jpg"));
    const auto edit = [](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchJob::SizeRestriction::Fit);
        size.side = int(BatchJob::SizeSide::Width);
        size.size = 40;
        size.resolution = 144;
        output.SetImageSizeSettings(size);
    };
    const Report report = bench->Make(Text("in.jpg"), NameIn(format), format, {}, edit);
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.facts.outputSize, QSize(40, 60));
    if (!MissingInTests(format)) {
        const Picture result = ReadPicture(bench->Path(NameIn(format)));
        QCOMPARE(QSize(result.width(), result.height()), QSize(40, 60));
    }
    const Found found = Read(*bench, format);
    QCOMPARE(found.Exif("Exif.Image.Orientation"), Text("1"));
    QCOMPARE(found.Exif("Exif.Photo.PixelXDimension"), Text("40"));
    QCOMPARE(found.Exif("Exif.Photo.PixelYDimension"), Text("60"));
    QCOMPARE(found.Exif("Exif.Image.ResolutionUnit"), Text("2"));
    const auto resolution = found.exif.findKey(Exiv2::ExifKey("Exif.Image.XResolution"));
    QVERIFY(resolution != found.exif.end());
    QVERIFY(std::abs(resolution->toFloat() - 144) < 0.1F);
    QCOMPARE(found.Xmp("Xmp.tiff.Orientation"), QString());
    QCOMPARE(found.Exif("Exif.Thumbnail.Compression"), QString());
}

void tst_WorkerMetadata::takesMetadataOutOfOtherFormats_data()
{
    describesTheResult_data();
}

void tst_WorkerMetadata::takesMetadataOutOfOtherFormats()
{
    QFETCH(const QString, format);
    SKIP_WHERE(MissingEncoder(format));

    // Into the format, and out of it again.
    WriteSource(Text("in.jpg"));
    QCOMPARE(bench->Make(Text("in.jpg"), NameIn(format), format).reason, QString());
    const QString middle = Text("middle.") + QFileInfo(NameIn(format)).suffix();
    QFile::remove(bench->Path(middle));
    QVERIFY(QFile::rename(bench->Path(NameIn(format)), bench->Path(middle)));
    QCOMPARE(bench->Make(middle, Text("out.jpg"), Text("JPEG")).reason, QString());
    const Found found = Read(*bench, Text("JPEG"));
    QCOMPARE(found.Exif("Exif.Image.Artist"), Text("A. Photographer"));
    QCOMPARE(found.Exif("Exif.GPSInfo.GPSLatitude"), Text("48/1 30/1 0/1"));
    QCOMPARE(found.Xmp("Xmp.dc.creator"), Text("A. Photographer"));
    QVERIFY(found.hasProfile.value());
    const Report probe = bench->Probe(middle);
    QCOMPARE(probe.captured, QDateTime(QDate(2019, 7, 6), QTime(5, 4, 3)));
}

/// As encoders write them that pack what they can.
void tst_WorkerMetadata::readsPackedBoxes()
{
    WriteSource(Text("in.jpg"));
    QCOMPARE(bench->Make(Text("in.jpg"), Text("out.jxl"), Text("JPEG XL")).reason, QString());
    QByteArray file = bench->Bytes(Text("out.jxl"));
    for (const char* type : {"Exif", "xml "}) {
        const QByteArray content = BoxOf(file, type);
        QVERIFY(!content.isEmpty());
        const QByteArray packed = type + Packed(content);
        const QByteArray box = BigEndian(quint64(packed.size()) + 8, 4) + "brob" + packed;
        file.replace(file.indexOf(type) - 4, content.size() + 8, box);
    }
    QVERIFY(!file.contains("A. Photographer"));
    bench->WriteBytes(Text("packed.jxl"), file);
    const Report report = bench->Make(Text("packed.jxl"), Text("out.jpg"), Text("JPEG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings), QStringList());
    const Found found = Read(*bench, Text("JPEG"));
    QCOMPARE(found.Exif("Exif.Image.Artist"), Text("A. Photographer"));
    QCOMPARE(found.Exif("Exif.Photo.DateTimeOriginal"), Text("2019:07:06 05:04:03"));
    QCOMPARE(found.Xmp("Xmp.dc.creator"), Text("A. Photographer"));
}

void tst_WorkerMetadata::survivesBrokenBoxes_data()
{
    QTest::addColumn<QByteArray>("box");
    QTest::newRow("EXIF that ends before it begins") << BigEndian(12, 4) + "Exif" + QByteArray(4, '\xFF');
    QTest::newRow("EXIF of nothing") << BigEndian(8, 4) + "Exif";
    QTest::newRow("EXIF of nonsense") << BigEndian(20, 4) + "Exif" + QByteArray(12, '\x7F');
    QTest::newRow("XMP of nonsense") << BigEndian(20, 4) + "xml " + QByteArray(12, '<');
    QTest::newRow("nonsense, packed") << BigEndian(20, 4) + "brob" + "Exif" + QByteArray(8, '\x55');
    QTest::newRow("packed by far") << QByteArray("brob") + "xml " + Packed(QByteArray(80 << 20, ' '));
}

void tst_WorkerMetadata::survivesBrokenBoxes()
{
    QFETCH(QByteArray, box);
    if (box.startsWith("brob")) {
        box.prepend(BigEndian(quint64(box.size()) + 4, 4));
    }
    WriteSource(Text("in.jpg"));
    QCOMPARE(bench->Make(Text("in.jpg"), Text("out.jxl"), Text("JPEG XL"), {{Text("keep"), QJsonArray{Text("iptc")}}})
                 .reason,
             QString());
    QByteArray file = bench->Bytes(Text("out.jxl"));
    // Behind the first two boxes, which say what kind of file it is.
    file.insert(12 + 20, box);
    bench->WriteBytes(Text("broken.jxl"), file);
    const Report report = bench->Make(Text("broken.jxl"), Text("broken.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(ReadPicture(bench->Path(Text("broken.png"))).height(), 90);
}

void tst_WorkerMetadata::survivesBrokenMetadata()
{
    WriteSource(Text("in.jpg"));
    QByteArray bytes = bench->Bytes(Text("in.jpg"));
    const int exif = bytes.indexOf(QByteArray("Exif\0\0", 6));
    QVERIFY(exif > 0);
    for (int i = 0; i < 40; ++i) {
        bytes[exif + 14 + i] = char(0xf0 + i * 7);
    }
    bench->WriteBytes(Text("in.jpg"), bytes);
    QCOMPARE(bench->Make(Text("in.jpg"), Text("out.jpg"), Text("JPEG")).reason, QString());
    QCOMPARE(ReadPicture(bench->Path(Text("out.jpg"))).bands(), 3);
}

void tst_WorkerMetadata::readsMetadataBesideBrokenProfiles_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("profile");
    const QVector<QPair<QByteArray, QByteArray>> profiles{
        {"of three bytes", QByteArray("abc")},
        {"of nonsense", QByteArray("no profile at all")},
        {"that says it is longer", BigEndian(100'000, 4) + QByteArray(400, '\x07')},
        {"that says it is shorter", BigEndian(100, 4) + QByteArray(400, '\x07')},
        {"of two segments", BigEndian(100'000, 4) + QByteArray(69'996, '\x07')},
    };
    for (const QString& format : {Text("JPEG"), Text("TIFF"), Text("WebP"), Text("JPEG 2000")}) {
        for (const auto& profile : profiles) {
            QTest::addRow("%s, %s", qPrintable(format), profile.first.constData()) << format << profile.second;
        }
    }
}

void tst_WorkerMetadata::readsMetadataBesideBrokenProfiles()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, profile);
    SKIP_WHERE(MissingEncoder(format));

    const QString name = Text("broken.") + FindFormat(format)->extensions.first();
    WriteSource(Text("in.jpg"));
    QCOMPARE(bench->Make(Text("in.jpg"), name, format).reason, QString());
    {
        const auto image = Exiv2::ImageFactory::open(bench->Path(name).toStdString());
        image->readMetadata();
        Exiv2::DataBuf bytes(reinterpret_cast<const Exiv2::byte*>(profile.constData()), profile.size());
        image->setIccProfile(bytes, false);
        image->writeMetadata();
    }
    const Report report = bench->Make(name, Text("out.jpg"), Text("JPEG"));
    QCOMPARE(report.reason, QString());
    const QString warnings = BatchJob::TextsOf(report.warnings).join(QLatin1Char('\n'));
    QVERIFY2(warnings.contains(Text("colour profile is damaged")), qPrintable(warnings));
    QVERIFY2(report.warnings.size() == 1, qPrintable(warnings));
    const Found found = Read(*bench, Text("JPEG"));
    QCOMPARE(found.Exif("Exif.Image.Artist"), Text("A. Photographer"));
    QCOMPARE(found.Exif("Exif.GPSInfo.GPSLatitude"), Text("48/1 30/1 0/1"));
    QCOMPARE(found.Xmp("Xmp.dc.creator"), Text("A. Photographer"));
    QCOMPARE(found.Iptc("Iptc.Application2.Caption"), HoldsIptc(format) ? Text("A caption") : QString());
    QVERIFY(!found.hasProfile.value());
    QCOMPARE(bench->Probe(name).captured, QDateTime(QDate(2019, 7, 6), QTime(5, 4, 3)));
}

void tst_WorkerMetadata::leavesOutWhatAJpegCannotHold()
{
    WritePicture(Chart(40, 30), bench->Path(Text("in.tif")));
    {
        const auto image = Exiv2::ImageFactory::open(bench->Path(Text("in.tif")).toStdString());
        image->readMetadata();
        image->xmpData()["Xmp.dc.title"] = std::string(100'000, 'x');
        image->exifData()["Exif.Image.Artist"] = "A. Photographer";
        image->writeMetadata();
    }
    const Report report = bench->Make(Text("in.tif"), Text("out.jpg"), Text("JPEG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.warnings.size(), 1);
    QVERIFY2(report.warnings.first().text.contains(Text("XMP")), qPrintable(report.warnings.first().text));
    QCOMPARE(Read(*bench, Text("JPEG")).Exif("Exif.Image.Artist"), Text("A. Photographer"));
}

/// Every maker and every program has some of its own.
void tst_WorkerMetadata::saysNothingOfTagsThatItDoesNotKnow()
{
    WritePicture(Chart(40, 30), bench->Path(Text("in.tif")));
    {
        const auto image = Exiv2::ImageFactory::open(bench->Path(Text("in.tif")).toStdString());
        image->readMetadata();
        image->exifData()["Exif.Image.0xfdab"] = std::uint16_t(1);
        image->exifData()["Exif.Image.0xfdac"] = "A text";
        image->exifData()["Exif.Photo.0xfdad"] = std::uint16_t(2);
        image->writeMetadata();
    }
    bench->Worker().ErrorOutput();
    const Report report = bench->Make(Text("in.tif"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings).join(QLatin1Char('\n')), QString());
    QCOMPARE(bench->Worker().ErrorOutput(), QByteArray());
}

void tst_WorkerMetadata::keepsTheFileTime_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("kept") << Text("JPEG") << true;
    QTest::newRow("kept in TIFF, which is completed after encoding") << Text("TIFF") << true;
    QTest::newRow("not kept") << Text("JPEG") << false;
}

void tst_WorkerMetadata::keepsTheFileTime()
{
    QFETCH(const QString, format);
    QFETCH(const bool, isKept);

    WriteSource(Text("in.jpg"));
    const QDateTime before(QDate(2001, 2, 3), QTime(4, 5, 6));
    {
        QFile source(bench->Path(Text("in.jpg")));
        QVERIFY(source.open(QIODevice::ReadWrite));
        QVERIFY(source.setFileTime(before, QFileDevice::FileModificationTime));
    }
    QCOMPARE(bench->Make(Text("in.jpg"), NameIn(format), format, {{Text("keepFileTime"), isKept}}).reason, QString());
    QCOMPARE(QFileInfo(bench->Path(NameIn(format))).lastModified() == before, isKept);
}

QTEST_GUILESS_MAIN(tst_WorkerMetadata)
#include "tst_workermetadata.moc"
