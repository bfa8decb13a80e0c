// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PhotoStage.h"

#include <QImage>
#include <QJsonArray>
#include <QtTest>

/// The effect "set-metadata", as exiftool sees it in the results of whole runs.
class tst_CliMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyFormatHoldsTheTexts_data();
    void everyFormatHoldsTheTexts();
    void keptEntriesAreReplaced();
    void emptyTextsLeaveWhatIsKept();
    void latinTextsOfIptcBecomeUtf8();
    void longTextsAreCutInIptcOnly();
    void laterEffectsWin();
    void textsThatLookLikeInstructions();
    void gifSaysThatItHoldsNone();
    void pixelsStay();

private:
    CliRun Run(const QString& format, const QStringList& more) const;

    std::unique_ptr<PhotoStage> stage;
};

namespace {

struct Format
{
    const char* extension;
    bool holdsIptc;
};

constexpr Format formats[] = {
    {"jpg", true},   {"png", false}, {"tif", true}, {"webp", false}, {"avif", false}, {"jxl", false},
#ifdef Q_OS_UNIX // On Windows they have no encoder.
    {"heic", false}, {"jp2", true},
#endif
};

const QString effect = QStringLiteral("--effect");

QString Text(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

void tst_CliMetadata::init()
{
    if (!PhotoStage::HasExifTool()) {
        QSKIP("exiftool is not installed");
    }
    stage = std::make_unique<PhotoStage>();
}

CliRun tst_CliMetadata::Run(const QString& format, const QStringList& more) const
{
    return stage->Run(QStringList{QStringLiteral("run"), QStringLiteral("in"), QStringLiteral("-o"),
                                  QStringLiteral("out"), QStringLiteral("--quiet"), QStringLiteral("--format"), format,
                                  QStringLiteral("--name"), QStringLiteral("text:r")} +
                      more);
}

void tst_CliMetadata::everyFormatHoldsTheTexts_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("holdsIptc");
    QTest::addColumn<QString>("keep");
    for (const Format& format : formats) {
        for (const char* keep : {"none", "exif+gps+iptc+xmp+icc"}) {
            QTest::addRow("%s, keep=%s", format.extension, keep)
                << Text(format.extension) << format.holdsIptc << Text(keep);
        }
    }
}

// In any script, also where all other metadata are removed.
void tst_CliMetadata::everyFormatHoldsTheTexts()
{
    QFETCH(QString, extension);
    QFETCH(bool, holdsIptc);
    QFETCH(QString, keep);
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"), {QStringLiteral("EXIF:DateTimeOriginal=2023:07:04 18:30:05"),
                                                           QStringLiteral("EXIF:Make=Maker")}));
    const CliRun run = Run(extension, {QStringLiteral("--format-option"), QStringLiteral("keep=") + keep, effect,
                                       Text("set-metadata:creator=Ana Díaz,copyright=© {date:YYYY} 写真家,"
                                            "credit=Агентство,title={folder} {{{number:3}}},"
                                            "keywords=море; sea,mer;sea,usageTerms=Nur für die Presse")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.") + extension);
    const QString copyright = Text("© 2023 写真家");
    const QJsonArray keywords{Text("море"), Text("sea"), Text("mer")};
    QCOMPARE(found[Text("IFD0:Artist")].toString(), Text("Ana Díaz"));
    QCOMPARE(found[Text("IFD0:Copyright")].toString(), copyright);
    QCOMPARE(found[Text("IFD0:XPTitle")].toString(), Text("in {001}"));
    QCOMPARE(found[Text("IFD0:XPKeywords")].toString(), Text("море;sea;mer"));
    QCOMPARE(found[Text("XMP-dc:Creator")].toString(), Text("Ana Díaz"));
    QCOMPARE(found[Text("XMP-dc:Rights")].toString(), copyright);
    QCOMPARE(found[Text("XMP-dc:Title")].toString(), Text("in {001}"));
    QCOMPARE(found[Text("XMP-dc:Subject")].toArray(), keywords);
    QCOMPARE(found[Text("XMP-photoshop:Credit")].toString(), Text("Агентство"));
    QCOMPARE(found[Text("XMP-xmpRights:UsageTerms")].toString(), Text("Nur für die Presse"));
    QCOMPARE(found[Text("IPTC:By-line")].toString(), holdsIptc ? Text("Ana Díaz") : QString());
    QCOMPARE(found[Text("IPTC:CopyrightNotice")].toString(), holdsIptc ? copyright : QString());
    QCOMPARE(found[Text("IPTC:Credit")].toString(), holdsIptc ? Text("Агентство") : QString());
    QCOMPARE(found[Text("IPTC:ObjectName")].toString(), holdsIptc ? Text("in {001}") : QString());
    QCOMPARE(found[Text("IPTC:Keywords")].toArray(), holdsIptc ? keywords : QJsonArray());
    QCOMPARE(found[Text("IPTC:CodedCharacterSet")].toString(), holdsIptc ? Text("UTF8") : QString());
    QCOMPARE(found.contains(Text("IFD0:Make")), keep != QLatin1String("none"));
}

void tst_CliMetadata::keptEntriesAreReplaced()
{
    QVERIFY(
        stage->PlantSmall(QStringLiteral("in/a.jpg"),
                          {Text("EXIF:Artist=old"), Text("EXIF:XPAuthor=old"), Text("EXIF:XPTitle=old"),
                           Text("EXIF:XPKeywords=old"), Text("EXIF:ImageDescription=caption"), Text("IPTC:By-line=old"),
                           Text("IPTC:By-line=older"), Text("IPTC:Keywords=old"), Text("IPTC:Keywords=older"),
                           Text("IPTC:ObjectName=old"), Text("XMP-dc:Creator=old"), Text("XMP-dc:Creator=older"),
                           Text("XMP-dc:Subject=old"), Text("XMP-dc:Title=old"), Text("XMP-dc:Title-de=alt"),
                           Text("XMP-tiff:Artist=old"), Text("XMP-dc:Rights=mine"), Text("EXIF:Copyright=mine")}));
    const CliRun run = Run(QStringLiteral("jpg"), {effect, Text("set-metadata:creator=new,title=new,keywords=new")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.jpg"));
    for (const char* key : {"IFD0:Artist", "IFD0:XPAuthor", "IFD0:XPTitle", "IFD0:XPKeywords", "IPTC:By-line",
                            "IPTC:Keywords", "IPTC:ObjectName", "XMP-dc:Creator", "XMP-dc:Subject", "XMP-dc:Title"}) {
        QVERIFY2(found[Text(key)].toString() == QLatin1String("new"), key);
    }
    QVERIFY(!found.contains(Text("XMP-tiff:Artist")));
    QVERIFY(!found.contains(Text("XMP-dc:Title-de")));
    QCOMPARE(found[Text("IFD0:ImageDescription")].toString(), Text("caption"));
    QCOMPARE(found[Text("IFD0:Copyright")].toString(), Text("mine"));
    QCOMPARE(found[Text("XMP-dc:Rights")].toString(), Text("mine"));
}

void tst_CliMetadata::emptyTextsLeaveWhatIsKept()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"),
                              {Text("EXIF:Artist=old"), Text("XMP-dc:Title=old"), Text("IPTC:Credit=old")}));
    // No camera is known, so the title is empty.
    const CliRun run = Run(QStringLiteral("jpg"), {effect, Text("set-metadata:creator=,title={camera},credit= ")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.jpg"));
    QCOMPARE(found[Text("IFD0:Artist")].toString(), Text("old"));
    QCOMPARE(found[Text("XMP-dc:Title")].toString(), Text("old"));
    QCOMPARE(found[Text("IPTC:Credit")].toString(), Text("old"));
    QVERIFY(!found.contains(Text("IFD0:XPTitle")));
}

void tst_CliMetadata::latinTextsOfIptcBecomeUtf8()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"), {Text("IPTC:Caption-Abstract=Grün")}));
    const CliRun run = Run(QStringLiteral("jpg"), {effect, Text("set-metadata:credit=写真")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.jpg"));
    QCOMPARE(found[Text("IPTC:CodedCharacterSet")].toString(), Text("UTF8"));
    QCOMPARE(found[Text("IPTC:Caption-Abstract")].toString(), Text("Grün"));
    QCOMPARE(found[Text("IPTC:Credit")].toString(), Text("写真"));
}

void tst_CliMetadata::longTextsAreCutInIptcOnly()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"), {}));
    const QString longText = QString(300, QChar(0x5199));
    const CliRun run = Run(QStringLiteral("jpg"), {effect, QStringLiteral("set-metadata:creator=") + longText});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.jpg"));
    QCOMPARE(found[Text("XMP-dc:Creator")].toString(), longText);
    QCOMPARE(found[Text("IFD0:Artist")].toString(), longText);
    QCOMPARE(found[Text("IPTC:By-line")].toString(), longText.left(10)); // of 3 bytes each
}

void tst_CliMetadata::laterEffectsWin()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"), {}));
    const CliRun run =
        Run(QStringLiteral("jpg"), {effect, Text("set-metadata:creator=first,title=first"), effect,
                                    Text("set-metadata:title=second"), effect, Text("off:set-metadata:creator=third")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.jpg"));
    QCOMPARE(found[Text("XMP-dc:Creator")].toString(), Text("first"));
    QCOMPARE(found[Text("XMP-dc:Title")].toString(), Text("second"));
}

// The metadata library reads such beginnings as more than text.
void tst_CliMetadata::textsThatLookLikeInstructions()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"), {}));
    const CliRun run =
        Run(QStringLiteral("jpg"),
            {effect, Text(R"(set-metadata:{"title":"lang=de x","credit":"type=Seq y","creator":"<a>&\"b",)"
                          R"("copyright":"charset=Jis \u0000\u0007z","usageTerms":"one\ntwo \uffff"})")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = stage->Found(QStringLiteral("out/r.jpg"));
    QCOMPARE(found[Text("XMP-dc:Title")].toString(), Text("lang=de x"));
    QCOMPARE(found[Text("XMP-photoshop:Credit")].toString(), Text("type=Seq y"));
    QCOMPARE(found[Text("XMP-dc:Creator")].toString(), Text("<a>&\"b"));
    QCOMPARE(found[Text("IFD0:Copyright")].toString(), Text("charset=Jis   z"));
    QCOMPARE(found[Text("XMP-xmpRights:UsageTerms")].toString(), Text("one\ntwo"));
}

void tst_CliMetadata::gifSaysThatItHoldsNone()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.png"), {}));
    const CliRun run =
        stage->Run({QStringLiteral("run"), QStringLiteral("in"), QStringLiteral("-o"), QStringLiteral("out"),
                    QStringLiteral("--format"), QStringLiteral("gif"), effect, QStringLiteral("set-metadata:title=x")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(run.err.contains("GIF files cannot hold metadata"), run.err.constData());
}

void tst_CliMetadata::pixelsStay()
{
    QVERIFY(stage->Plant(QStringLiteral("in/a.jpg"), {}));
    QCOMPARE(Run(QStringLiteral("png"), {effect, QStringLiteral("set-metadata:title=x")}).exitCode, 0);
    const QImage with(stage->Path(QStringLiteral("out/r.png")));
    QVERIFY(QFile::remove(stage->Path(QStringLiteral("out/r.png"))));
    QCOMPARE(Run(QStringLiteral("png"), {}).exitCode, 0);
    QVERIFY(!with.isNull());
    QVERIFY(with == QImage(stage->Path(QStringLiteral("out/r.png"))));
}

QTEST_GUILESS_MAIN(tst_CliMetadata)
#include "tst_climetadata.moc"
