// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/formats/NearestFormat.h"

#include "ZTBatchOutputSettings.h"

#include <QtTest>

#include <QJsonArray>
#include <QSet>

using namespace BatchJob;

class tst_FormatCatalog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEveryFormat();
    void describesEveryFormatSoundly();
    void findsFormats_data();
    void findsFormats();
    void completesOptions();
    void checksOptions_data();
    void checksOptions();
    void checksOptionsOfOriginals_data();
    void checksOptionsOfOriginals();
    void picksTheOptionsOfAFormat_data();
    void picksTheOptionsOfAFormat();
    void tellsFormatsByTheirBytes_data();
    void tellsFormatsByTheirBytes();
    void tellsFormatsByTheirRecords();
    void listsReadableExtensions();
    void namesTheNearestFormat_data();
    void namesTheNearestFormat();
};

void tst_FormatCatalog::listsEveryFormat()
{
    QStringList names;
    for (const FormatSchema& format : Formats()) {
        names.append(format.name);
    }
    QCOMPARE(names, (QStringList{QStringLiteral("JPEG"), QStringLiteral("PNG"), QStringLiteral("TIFF"),
                                 QStringLiteral("WebP"), QStringLiteral("HEIF"), QStringLiteral("AVIF"),
                                 QStringLiteral("JPEG XL"), QStringLiteral("JPEG 2000"), QStringLiteral("GIF")}));
}

void tst_FormatCatalog::describesEveryFormatSoundly()
{
    QSet<QString> extensions;
    for (int i = 0; i < ReadableFormats().size(); ++i) {
        const FormatSchema& format = ReadableFormats()[i];
        QCOMPARE(int(format.id), i);
        QCOMPARE(&FormatOf(format.id), &format);
        QCOMPARE(FindReadableFormat(format.name), &format);
        QCOMPARE(FindFormat(format.name) != nullptr, format.isWritten);
        QVERIFY(!format.description.isEmpty());
    }
    for (const FormatSchema& format : Formats()) {
        QVERIFY2(!format.extensions.isEmpty(), qPrintable(format.name));
        for (const QString& extension : format.extensions) {
            QCOMPARE(extension, extension.toLower());
            QVERIFY2(!extensions.contains(extension), qPrintable(extension));
            extensions.insert(extension);
            QCOMPARE(FindFormatByExtension(extension), &format);
            QCOMPARE(FindFormatByExtension(extension.toUpper()), &format);
        }
        QVERIFY(!format.bitDepths.isEmpty());
        QVERIFY(std::is_sorted(format.bitDepths.begin(), format.bitDepths.end()));
        QVERIFY(format.longestSide > 0);
        const auto isChoice = [](const ParameterSchema& option) {
            return option.name == QLatin1String("lossless") || option.name == QLatin1String("compression");
        };
        const bool hasChoice = std::any_of(format.options.begin(), format.options.end(), isChoice);
        QCOMPARE(format.loss == FormatLoss::Optional, hasChoice);
        const bool holdsMetadata = format.metadata.holdsExif || format.metadata.holdsIptc || format.metadata.holdsXmp;
        QCOMPARE(format.metadata.writing != MetadataWriting::None, holdsMetadata);
        QCOMPARE(FindFormat(format.name), &format);

        // Every default has to pass its own check, and every option says what it is.
        const CheckedParameters defaults = CheckParameters(format.options, QByteArray());
        QVERIFY2(defaults.IsValid(), qPrintable(defaults.error));
        const CheckedParameters again = CheckParameters(format.options, defaults.values);
        QVERIFY2(again.IsValid(), qPrintable(again.error));
        QCOMPARE(again.values, defaults.values);
        QSet<QString> names;
        for (const ParameterSchema& option : format.options) {
            QVERIFY(!option.description.isEmpty());
            QVERIFY(!names.contains(option.name));
            names.insert(option.name);
        }
    }
}

void tst_FormatCatalog::findsFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isThere");

    QTest::newRow("JPEG") << QStringLiteral("JPEG") << true;
    QTest::newRow("lower case") << QStringLiteral("jpeg") << false;
    QTest::newRow("Original") << QStringLiteral("Original") << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("BMP") << QStringLiteral("BMP") << false;
}

void tst_FormatCatalog::findsFormats()
{
    QFETCH(QString, name);
    QFETCH(bool, isThere);

    QCOMPARE(FindFormat(name) != nullptr, isThere);
    QCOMPARE(FindFormatByExtension(QString()), nullptr);
    QCOMPARE(FindFormatByExtension(QStringLiteral("dng")), nullptr);
}

void tst_FormatCatalog::completesOptions()
{
    const CheckedParameters checked = CheckFormatOptions(QStringLiteral("JPEG"), "{\"quality\": 91}");

    QVERIFY2(checked.IsValid(), qPrintable(checked.error));
    QCOMPARE(checked.values.value(QStringLiteral("quality")), QJsonValue(91));
    QCOMPARE(checked.values.value(QStringLiteral("chromaSubsampling")), QJsonValue(QStringLiteral("auto")));
    QCOMPARE(checked.values.value(QStringLiteral("keep")).toArray().size(), 5);
    QVERIFY(CheckFormatOptions(ZTBatchOutputSettings::GetOriginalFormat(), "{}").values.isEmpty());
}

void tst_FormatCatalog::checksOptions_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* format, const QByteArray& options, const char* error) {
        QTest::addRow("%s %s", format, options.constData())
            << QString::fromLatin1(format) << options << QString::fromLatin1(error);
    };
    row("JPEG", "{\"quality\":100,\"progressive\":true,\"chromaSubsampling\":\"4:2:0\"}", "");
    row("JPEG", "{\"quality\":0}", "\"quality\" is 0; it must be a whole number from 1 to 100");
    row("JPEG", "{\"lossless\":true}",
        "\"lossless\" is unknown; known are quality, progressive, chromaSubsampling, maxBytes, minQuality, mayShrink, "
        "keep, background, keepFileTime");
    row("JPEG", "{\"bitDepth\":8}",
        "\"bitDepth\" is unknown; known are quality, progressive, chromaSubsampling, maxBytes, minQuality, mayShrink, "
        "keep, background, keepFileTime");
    row("JPEG", "{\"maxBytes\":500000,\"minQuality\":40,\"mayShrink\":true}", "");
    row("JPEG", "{\"maxBytes\":0}", "\"maxBytes\" is 0; it must be a whole number from 100 to 2000000000 (bytes)");
    row("JPEG", "{\"maxBytes\":500000,\"minQuality\":90}", "\"minQuality\" is 90, above \"quality\", which is 85");
    row("JPEG", "{\"minQuality\":90}", "");
    row("WebP", "{\"maxBytes\":500000,\"lossless\":true}",
        "\"maxBytes\" lowers the quality, and \"lossless\" has none");
    row("Original", "{\"maxBytes\":500000,\"lossless\":true}",
        "\"maxBytes\" lowers the quality, and \"lossless\" has none");
    row("JPEG", "{\"keep\":[\"exif\",\"icc\"],\"background\":\"#102030\",\"keepFileTime\":true}", "");
    row("JPEG", "{\"keep\":[\"maker\"]}",
        "\"keep\" is [\"maker\"]; it must be a list of exif, gps, iptc, xmp, icc, copyright");
    row("PNG", "{\"compressionLevel\":9,\"bitDepth\":16}", "");
    row("PNG", "{\"compressionLevel\":10}", "\"compressionLevel\" is 10; it must be a whole number from 0 to 9");
    row("PNG", "{\"bitDepth\":12}", "\"bitDepth\" is 12; PNG takes 8, 16");
    row("TIFF", "{\"compression\":\"zstd\"}", "");
    row("TIFF", "{\"compression\":\"jpeg\",\"bitDepth\":8}", "");
    row("TIFF", "{\"compression\":\"jpeg\",\"bitDepth\":16}", "\"bitDepth\" is 16; \"compression\" jpeg takes 8");
    row("TIFF", "{\"compression\":\"rar\"}",
        "\"compression\" is \"rar\"; it must be one of none, lzw, deflate, zstd, jpeg");
    row("AVIF", "{\"bitDepth\":12,\"effort\":0,\"lossless\":true}", "");
    row("AVIF", "{\"bitDepth\":16}", "\"bitDepth\" is 16; AVIF takes 8, 10, 12");
    row("WebP", "{\"qualty\":3}", "\"qualty\" is unknown; did you mean \"quality\"?");
    row("JPEG XL", "{\"effort\":7}", "");
    row("GIF", "not json", "not valid JSON at byte 1: illegal value");
    row("BMP", "{}", "the format \"BMP\" is unknown");
}

void tst_FormatCatalog::checksOptions()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, options);
    QFETCH(QString, error);

    const CheckedParameters checked = CheckFormatOptions(format, options);

    QCOMPARE(checked.error, error);
    QCOMPARE(checked.values.isEmpty(), !error.isEmpty());
}

void tst_FormatCatalog::checksOptionsOfOriginals_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QString>("error");

    QTest::newRow("of several formats") << QByteArray("{\"quality\":90,\"compression\":\"lzw\",\"bitDepth\":10}")
                                        << QString();
    QTest::newRow("depth") << QByteArray("{\"bitDepth\":9}")
                           << QStringLiteral("\"bitDepth\" is 9; it must be 8, 10, 12 or 16");
    QTest::newRow("range") << QByteArray("{\"effort\":11}")
                           << QStringLiteral("\"effort\" is 11; it must be a whole number from 0 to 9");
}

void tst_FormatCatalog::checksOptionsOfOriginals()
{
    QFETCH(QByteArray, options);
    QFETCH(QString, error);

    const CheckedParameters checked = CheckFormatOptions(ZTBatchOutputSettings::GetOriginalFormat(), options);

    QCOMPARE(checked.error, error);
    QCOMPARE(checked.values.size(), error.isEmpty() ? 3 : 0);
}

void tst_FormatCatalog::picksTheOptionsOfAFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("expected");

    QTest::newRow("PNG 16") << QStringLiteral("PNG") << 16 << 16;
    QTest::newRow("PNG 12") << QStringLiteral("PNG") << 12 << 8;
    QTest::newRow("PNG 8") << QStringLiteral("PNG") << 8 << 8;
    QTest::newRow("AVIF 16") << QStringLiteral("AVIF") << 16 << 12;
    QTest::newRow("AVIF 10") << QStringLiteral("AVIF") << 10 << 10;
}

void tst_FormatCatalog::picksTheOptionsOfAFormat()
{
    QFETCH(QString, format);
    QFETCH(int, depth);
    QFETCH(int, expected);

    const QJsonObject accepted{
        {QStringLiteral("bitDepth"), depth}, {QStringLiteral("quality"), 33}, {QStringLiteral("keepFileTime"), true}};
    const QJsonObject own = OptionsFor(*FindFormat(format), accepted);

    QCOMPARE(own.value(QStringLiteral("bitDepth")).toInt(), expected);
    QCOMPARE(own.value(QStringLiteral("keepFileTime")), QJsonValue(true));
    QCOMPARE(own.contains(QStringLiteral("quality")), format == QLatin1String("AVIF"));
    QCOMPARE(OptionsFor(*FindFormat(QStringLiteral("JPEG")), accepted).contains(QStringLiteral("bitDepth")), false);
}

void tst_FormatCatalog::tellsFormatsByTheirBytes_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("format");

    const auto row = [](const char* name, const QByteArray& head, const char* extension, const char* format) {
        QTest::newRow(name) << head << QString::fromLatin1(extension) << QString::fromLatin1(format);
    };
    row("JPEG", QByteArray::fromHex("ffd8ffe000104a464946"), "jpg", "JPEG");
    row("JPEG under another name", QByteArray::fromHex("ffd8ffe000104a464946"), "png", "JPEG");
    row("PNG", QByteArray::fromHex("89504e470d0a1a0a0000000d"), "", "PNG");
    row("GIF 87", "GIF87a..", "gif", "GIF");
    row("GIF 89", "GIF89a..", "gif", "GIF");
    row("WebP", QByteArray("RIFF\x10\0\0\0WEBPVP8 ", 16), "webp", "WebP");
    row("another RIFF", QByteArray("RIFF\x10\0\0\0WAVEfmt ", 16), "webp", "");
    row("bare JPEG XL", QByteArray::fromHex("ff0a7f00"), "jxl", "JPEG XL");
    row("JPEG XL box", QByteArray::fromHex("0000000c4a584c200d0a870a"), "jxl", "JPEG XL");
    row("JPEG 2000 box", QByteArray::fromHex("0000000c6a5020200d0a870a"), "jp2", "JPEG 2000");
    row("JPEG 2000 codestream", QByteArray::fromHex("ff4fff51002f"), "j2k", "JPEG 2000");
    row("AVIF",
        QByteArray("\0\0\0\x20"
                   "ftypavif",
                   12),
        "avif", "AVIF");
    row("HEIC",
        QByteArray("\0\0\0\x20"
                   "ftypheic",
                   12),
        "heic", "HEIF");
    row("CR3",
        QByteArray("\0\0\0\x18"
                   "ftypcrx ",
                   12),
        "cr3", "RAW");
    row("a film",
        QByteArray("\0\0\0\x18"
                   "ftypisom",
                   12),
        "mp4", "");
    row("little-endian TIFF", QByteArray("II*\0\x08\0\0\0", 8), "tif", "TIFF");
    row("big-endian TIFF", QByteArray("MM\0*\0\0\0\x08", 8), "tif", "TIFF");
    row("big TIFF", QByteArray("II+\0\x08\0\0\0", 8), "tif", "TIFF");
    row("DNG", QByteArray("II*\0\x08\0\0\0", 8), "dng", "RAW");
    row("NEF in capitals", QByteArray("MM\0*\0\0\0\x08", 8), "NEF", "RAW");
    row("CR2 by its bytes", QByteArray("II*\0\x10\0\0\0CR\x02\0", 12), "tif", "RAW");
    row("RAF", "FUJIFILMCCD-RAW 0201", "raf", "RAW");
    row("text", "hello, world", "jpg", "");
    row("empty", "", "jpg", "");
    row("cut JPEG", QByteArray::fromHex("ffd8"), "jpg", "");
}

void tst_FormatCatalog::tellsFormatsByTheirBytes()
{
    QFETCH(QByteArray, head);
    QFETCH(QString, extension);
    QFETCH(QString, format);

    QCOMPARE(FormatOfFile(head, extension), format);
}

void tst_FormatCatalog::tellsFormatsByTheirRecords()
{
    for (const FormatSchema& format : ReadableFormats()) {
        QVERIFY2(!format.signatures.isEmpty(), qPrintable(format.name));
        for (const FormatSignature& signature : format.signatures) {
            QByteArray head(64, '.');
            for (const BytesAt& piece : signature.pieces) {
                head.replace(piece.offset, piece.bytes.size(), piece.bytes);
            }
            QCOMPARE(FormatOfFile(head, format.extensions.first()), format.name);
            QCOMPARE(FormatOfFile(head, QStringLiteral("txt")) == format.name, !signature.needsExtension);
        }
    }
}

void tst_FormatCatalog::listsReadableExtensions()
{
    const QStringList extensions = ReadableExtensions();

    QVERIFY(std::is_sorted(extensions.begin(), extensions.end()));
    QCOMPARE(QSet<QString>(extensions.begin(), extensions.end()).size(), extensions.size());
    for (const char* extension :
         {"jpg", "tiff", "heic", "dng", "nef", "jxl", "hif", "mpo", "jpf", "j2c", "jph", "avifs", "gpr"}) {
        QVERIFY2(extensions.contains(QLatin1String(extension)), extension);
    }
    QVERIFY(!extensions.contains(QStringLiteral("txt")));
}

void tst_FormatCatalog::namesTheNearestFormat_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<bool>("isDeep");
    QTest::addColumn<bool>("hasAlpha");
    QTest::addColumn<bool>("isCmyk");
    QTest::addColumn<int>("side");
    QTest::addColumn<QString>("nearest");

    const auto row = [](const char* name, const char* input, bool isDeep, bool hasAlpha, bool isCmyk, int side,
                        const char* nearest) {
        QTest::newRow(name) << QString::fromLatin1(input) << isDeep << hasAlpha << isCmyk << side
                            << QString::fromLatin1(nearest);
    };
    row("nothing known", "", false, false, false, 0, "JPEG");
    row("format unknown", "PSD", false, false, false, 100, "JPEG");
    row("plain", "WebP", false, false, false, 100, "JPEG");
    row("RAW", "RAW", false, false, false, 0, "TIFF");
    row("RAW in 8 bits", "RAW", false, true, false, 100, "TIFF");
    row("deep", "HEIF", true, false, false, 100, "TIFF");
    row("deep with alpha", "PNG", true, true, false, 100, "TIFF");
    row("alpha", "GIF", false, true, false, 100, "PNG");
    row("CMYK", "JPEG", false, false, true, 100, "JPEG");
    row("CMYK with alpha", "TIFF", false, true, true, 100, "JPEG");
    row("deep CMYK", "TIFF", true, false, true, 100, "TIFF");
    row("as long as JPEG holds", "PNG", false, false, false, 65'500, "JPEG");
    row("too long for JPEG", "PNG", false, false, false, 65'501, "TIFF");
    row("CMYK, too long for JPEG", "TIFF", false, false, true, 65'501, "TIFF");
    row("as long as PNG holds", "GIF", false, true, false, 1'000'000, "PNG");
    row("too long for PNG", "GIF", false, true, false, 1'000'001, "TIFF");
}

void tst_FormatCatalog::namesTheNearestFormat()
{
    QFETCH(QString, input);
    QFETCH(bool, isDeep);
    QFETCH(bool, hasAlpha);
    QFETCH(bool, isCmyk);
    QFETCH(int, side);
    QFETCH(QString, nearest);

    QCOMPARE(NearestFormat(input, {isDeep, hasAlpha, isCmyk, QSize(side, 2)}).name, nearest);
    QCOMPARE(NearestFormat(input, {isDeep, hasAlpha, isCmyk, QSize(2, side)}).name, nearest);
}

QTEST_GUILESS_MAIN(tst_FormatCatalog)
#include "tst_formatcatalog.moc"
