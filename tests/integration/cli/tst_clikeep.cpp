// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "ExifTool.h"

#include <QColorSpace>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// The option `keep`, as exiftool sees it in the results of whole runs: what stays, and what is said of the rest.
class tst_CliKeep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void copyrightIsKeptAlone_data();
    void copyrightIsKeptAlone();
    void copyrightOfIptcReachesEveryFormat_data();
    void copyrightOfIptcReachesEveryFormat();
    void blankEntriesAreNoCopyright_data();
    void blankEntriesAreNoCopyright();
    void nothingIsKept_data();
    void nothingIsKept();
    void coloursStayRightWithoutProfile_data();
    void coloursStayRightWithoutProfile();
    void lostCopyrightIsTold_data();
    void lostCopyrightIsTold();
    void lostCopyrightFailsAStrictRun();
    void wrongWordsAreRefused_data();
    void wrongWordsAreRefused();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    void Plant(const QStringList& assignments) const;
    void PlantAll();
    CliRun Run(const QString& format, const QString& keep, const QStringList& more = {}) const;
    QJsonObject Found(const QString& extension) const;

    std::unique_ptr<QTemporaryDir> root;
    QByteArray planted; ///< the source with everything that can be planted, once it has been made
};

namespace {

struct Format
{
    const char* extension;
    bool holdsIptc;
};

constexpr Format formats[] = {
    {"jpg", true},   {"png", false}, {"tif", true}, {"webp", false}, {"avif", false}, {"jxl", false}, {"jp2", true},
#ifdef Q_OS_UNIX // On Windows it has no encoder.
    {"heic", false},
#endif
};

const QColor colour(210, 60, 50);

QStringList Lines(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// Who made the picture, and whose it is. Each value is unique.
const char* const ofCopyright = "EXIF:Artist=exif maker\n"
                                "EXIF:Copyright=exif rights\n"
                                "EXIF:XPAuthor=exif author\n"
                                "IPTC:By-line=iptc maker\n"
                                "IPTC:By-lineTitle=iptc profession\n"
                                "IPTC:Credit=iptc credit\n"
                                "IPTC:Source=iptc source\n"
                                "IPTC:CopyrightNotice=iptc rights\xC2\xA9\n"
                                "IPTC:CodedCharacterSet=UTF8\n"
                                "XMP-dc:Creator=xmp maker\n"
                                "XMP-dc:Rights=xmp rights\n"
                                "XMP-tiff:Artist=xmp artist\n"
                                "XMP-tiff:Copyright=xmp copyright\n"
                                "XMP-xmpRights:Owner=xmp owner\n"
                                "XMP-xmpRights:UsageTerms=xmp terms\n"
                                "XMP-xmpRights:WebStatement=xmp statement\n"
                                "XMP-photoshop:Credit=xmp credit\n"
                                "XMP-photoshop:Source=xmp source\n"
                                "XMP-photoshop:AuthorsPosition=xmp profession\n"
                                "XMP-iptcCore:CreatorWorkEmail=xmp mail\n"
                                "XMP-plus:LicensorName=xmp licensor\n"
                                "XMP-plus:CopyrightOwnerName=xmp holder\n"
                                "XMP-plus:ImageCreatorName=xmp drawer\n"
                                "XMP-cc:License=xmp license\n";

const char* const ofOthers = "EXIF:Make=other exif camera\n"
                             "EXIF:ImageDescription=other exif caption\n"
                             "EXIF:OwnerName=other exif owner\n"
                             "EXIF:UserComment=other exif comment\n"
                             "EXIF:GPSLatitude=48.5\n"
                             "EXIF:GPSMapDatum=other gps datum\n"
                             "IPTC:Caption-Abstract=other iptc caption\n"
                             "IPTC:Keywords=other iptc keyword\n"
                             "IPTC:City=other iptc city\n"
                             "XMP-dc:Title=other xmp title\n"
                             "XMP-dc:Subject=other xmp keyword\n"
                             "XMP-photoshop:City=other xmp city\n"
                             "XMP-xmp:CreatorTool=other xmp tool\n"
                             "XMP-plus:ImageSupplierName=other xmp supplier\n"
                             "XMP-exif:GPSLatitude=48.5\n";

/// The planted values with `start` in `found`; the values of lists are taken one by one.
QStringList Values(const QJsonObject& found, const QString& start)
{
    QStringList values;
    for (const QJsonValue& value : found) {
        const QJsonArray list = value.isArray() ? value.toArray() : QJsonArray{value};
        for (const QJsonValue& item : list) {
            if (item.toString().startsWith(start) && !values.contains(item.toString())) {
                values.append(item.toString());
            }
        }
    }
    values.sort();
    return values;
}

/// The values that are planted by `assignments` and start with `start`.
QStringList Planted(const char* assignments, const QString& start)
{
    QStringList values;
    for (const QString& line : Lines(assignments)) {
        const QString value = line.section(QLatin1Char('='), 1);
        if (value.startsWith(start)) {
            values.append(value);
        }
    }
    values.sort();
    return values;
}

bool HasGroup(const QJsonObject& found, const QString& group)
{
    const QStringList keys = found.keys();
    return std::any_of(keys.begin(), keys.end(), [&](const QString& key) { return key.startsWith(group); });
}

} // namespace

void tst_CliKeep::initTestCase()
{
    if (!ExifTool::IsThere()) {
        QSKIP("There is no exiftool.");
    }
}

void tst_CliKeep::init()
{
    root = std::make_unique<QTemporaryDir>();
    // In smaller pictures of one colour the encoder of JPEG 2000 makes errors that it does not make in photos.
    QImage picture(160, 120, QImage::Format_RGB32);
    picture.fill(colour);
    picture.setColorSpace(QColorSpace::DisplayP3);
    QVERIFY(picture.save(Path(QStringLiteral("in.jpg")), "JPEG", 100));
}

void tst_CliKeep::Plant(const QStringList& assignments) const
{
    QStringList arguments{QStringLiteral("-q"), QStringLiteral("-overwrite_original")};
    for (const QString& assignment : assignments) {
        arguments.append(QLatin1Char('-') + assignment);
    }
    QVERIFY(ExifTool::Run(arguments, Path(QStringLiteral("in.jpg"))).has_value());
}

// Once for all rows: exiftool takes longer than the run.
void tst_CliKeep::PlantAll()
{
    QFile source(Path(QStringLiteral("in.jpg")));
    if (planted.isEmpty()) {
        Plant(Lines(ofCopyright) + Lines(ofOthers));
        QVERIFY(source.open(QIODevice::ReadOnly));
        planted = source.readAll();
        return;
    }
    QVERIFY(source.open(QIODevice::WriteOnly));
    QCOMPARE(source.write(planted), qint64(planted.size()));
}

CliRun tst_CliKeep::Run(const QString& format, const QString& keep, const QStringList& more) const
{
    return CliRun::Of(QStringList{QStringLiteral("run"), QStringLiteral("in.jpg"), QStringLiteral("-o"),
                                  QStringLiteral("out"), QStringLiteral("--format"), format,
                                  QStringLiteral("--format-option"), QStringLiteral("keep=") + keep,
                                  QStringLiteral("--on-name-exists"), QStringLiteral("overwrite")} +
                          more,
                      root->path());
}

QJsonObject tst_CliKeep::Found(const QString& extension) const
{
    const QByteArray text = ExifTool::Run({QStringLiteral("-j"), QStringLiteral("-a"), QStringLiteral("-u"),
                                           QStringLiteral("-G1"), QStringLiteral("-ee")},
                                          Path(QStringLiteral("out/in.") + extension))
                                .value_or(QByteArray());
    return QJsonDocument::fromJson(text).array().first().toObject();
}

void tst_CliKeep::copyrightIsKeptAlone_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("holdsIptc");
    QTest::addColumn<QString>("more");
    const auto row = [](const Format& format, const char* more) {
        QTest::addRow("%s, copyright %s", format.extension, more)
            << QString::fromLatin1(format.extension) << format.holdsIptc << QString::fromLatin1(more);
    };
    for (const Format& format : formats) {
        row(format, "");
        row(format, "icc");
    }
    for (const char* more : {"iptc", "exif+gps"}) {
        row(formats[0], more);
        row(formats[1], more);
    }
}

void tst_CliKeep::copyrightIsKeptAlone()
{
    QFETCH(const QString, extension);
    QFETCH(const bool, holdsIptc);
    QFETCH(const QString, more);
    PlantAll();
    const CliRun run =
        Run(extension, QStringLiteral("copyright") + (more.isEmpty() ? QString() : QLatin1Char('+') + more));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(!run.err.contains("warning"), run.err.constData());
    const QJsonObject found = Found(extension);
    const QByteArray all = QJsonDocument(found).toJson();

    for (const QString& group : {QStringLiteral("exif "), QStringLiteral("xmp "), QStringLiteral("iptc ")}) {
        if (group != QLatin1String("iptc ") || holdsIptc) {
            QCOMPARE(Values(found, group), Planted(ofCopyright, group));
        }
    }
    QStringList others;
    if (more.contains(QLatin1String("exif"))) {
        others += Planted(ofOthers, QStringLiteral("other exif"));
        others += Planted(ofOthers, QStringLiteral("other gps"));
        others.sort();
    }
    if (more == QLatin1String("iptc")) {
        // Without "gps" the city goes. In XMP a caption is a description.
        others = QStringList{QStringLiteral("other iptc caption"), QStringLiteral("other iptc keyword")};
    }
    QCOMPARE(Values(found, QStringLiteral("other")), others);
    QVERIFY2(HasGroup(found, QStringLiteral("GPS:")) == more.contains(QLatin1String("gps")), all.constData());
    const bool hasProfile = HasGroup(found, QStringLiteral("ICC")) && extension != QLatin1String("jxl");
    QVERIFY2(hasProfile == (more == QLatin1String("icc") && extension != QLatin1String("jxl")), all.constData());
}

/// Formats without a place for IPTC say in XMP what stood only there.
void tst_CliKeep::copyrightOfIptcReachesEveryFormat_data()
{
    QTest::addColumn<QString>("extension");
    for (const Format& format : formats) {
        QTest::newRow(format.extension) << QString::fromLatin1(format.extension);
    }
}

void tst_CliKeep::copyrightOfIptcReachesEveryFormat()
{
    QFETCH(const QString, extension);
    Plant({QStringLiteral("IPTC:CopyrightNotice=Only here"), QStringLiteral("IPTC:By-line=Only she"),
           QStringLiteral("IPTC:Keywords=other keyword"), QStringLiteral("EXIF:Make=other camera")});
    const CliRun run = Run(extension, QStringLiteral("copyright"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = Found(extension);
    QCOMPARE(Values(found, QStringLiteral("Only")),
             QStringList({QStringLiteral("Only here"), QStringLiteral("Only she")}));
    QCOMPARE(Values(found, QStringLiteral("other")), QStringList());
}

/// Cameras write such entries when nobody has told them a name.
void tst_CliKeep::blankEntriesAreNoCopyright_data()
{
    QTest::addColumn<QString>("extension");
    for (const Format& format : formats) {
        QTest::newRow(format.extension) << QString::fromLatin1(format.extension);
    }
}

void tst_CliKeep::blankEntriesAreNoCopyright()
{
    QFETCH(const QString, extension);
    Plant({QStringLiteral("EXIF:Artist=   "), QStringLiteral("EXIF:Copyright=    ")});
    const CliRun run = Run(extension, QStringLiteral("copyright"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject found = Found(extension);
    QVERIFY(!HasGroup(found, QStringLiteral("ExifIFD:")));
    QVERIFY(!found.contains(QStringLiteral("IFD0:Copyright")));
}

void tst_CliKeep::nothingIsKept_data()
{
    blankEntriesAreNoCopyright_data();
}

void tst_CliKeep::nothingIsKept()
{
    QFETCH(const QString, extension);
    PlantAll();
    const CliRun run = Run(extension, QStringLiteral("none"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    // Whoever says "none" means the copyright too.
    QVERIFY2(!run.err.contains("warning"), run.err.constData());
    const QJsonObject found = Found(extension);
    const QByteArray all = QJsonDocument(found).toJson();
    for (const char* group : {"ExifIFD:", "GPS:", "IPTC:", "XMP-"}) {
        QVERIFY2(!HasGroup(found, QLatin1String(group)), all.constData());
    }
    for (const char* word : {"exif ", "iptc ", "xmp ", "other "}) {
        QVERIFY2(!all.contains(QByteArray("\"") + word), all.constData());
    }
}

void tst_CliKeep::coloursStayRightWithoutProfile_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("keep");
    for (const Format& format : formats) {
        QTest::addRow("%s, none", format.extension) << QString::fromLatin1(format.extension) << QStringLiteral("none");
    }
    for (const char* keep : {"copyright", "exif", "copyright+icc"}) {
        QTest::newRow(keep) << QStringLiteral("jpg") << QString::fromLatin1(keep);
    }
}

/// The source has a wide profile. A result without it is converted; it never just lacks it.
void tst_CliKeep::coloursStayRightWithoutProfile()
{
    QFETCH(const QString, extension);
    QFETCH(const QString, keep);
    QCOMPARE(Run(extension, keep, {QStringLiteral("--strict")}).exitCode, 0);
    const QString back = QStringLiteral("out/in.") + extension;
    const CliRun run = CliRun::Of({QStringLiteral("run"), back, QStringLiteral("-o"), QStringLiteral("back"),
                                   QStringLiteral("--format"), QStringLiteral("png"), QStringLiteral("--format-option"),
                                   QStringLiteral("keep=none")},
                                  root->path());
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QImage seen(Path(QStringLiteral("back/in.png")));
    QVERIFY(!seen.isNull());
    const QColor wanted = QColorSpace(QColorSpace::DisplayP3).transformationToColorSpace(QColorSpace::SRgb).map(colour);
    const QColor got = seen.pixelColor(32, 24);
    // Codecs are off by up to 8, colours that were not converted by 18 and more.
    const auto isNear = [](int a, int b) { return qAbs(a - b) <= 9; };
    QVERIFY2(isNear(got.red(), wanted.red()) && isNear(got.green(), wanted.green()) &&
                 isNear(got.blue(), wanted.blue()),
             qPrintable(got.name() + QLatin1Char(' ') + wanted.name()));
}

void tst_CliKeep::lostCopyrightIsTold_data()
{
    QTest::addColumn<QStringList>("planted");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("keep");
    QTest::addColumn<QString>("told"); // empty: nothing
    const QString inExif = QStringLiteral("EXIF:Copyright=\xC2\xA9 Ann, in EXIF");
    const QString inIptc = QStringLiteral("IPTC:CopyrightNotice=Ann, in IPTC");
    const QString inXmp = QStringLiteral("XMP-dc:Rights=Ann, in XMP");
    const QString blank = QStringLiteral("EXIF:Copyright=     ");
    const auto row = [](const char* name, const QStringList& planted, const char* extension, const char* keep,
                        const char* told) {
        QTest::newRow(name) << planted << QString::fromLatin1(extension) << QString::fromLatin1(keep)
                            << QString::fromLatin1(told);
    };
    row("EXIF, keep iptc", {inExif}, "jpg", "iptc", "is only in EXIF");
    row("EXIF, keep iptc, PNG", {inExif}, "png", "iptc", "is only in EXIF");
    row("EXIF, keep iptc, GIF", {inExif}, "gif", "iptc", "is only in EXIF");
    row("EXIF, keep icc", {inExif}, "jpg", "icc", "is only in EXIF");
    row("EXIF, keep gps", {inExif}, "jpg", "gps", "is only in EXIF");
    row("EXIF, keep all others", {inExif}, "webp", "gps+iptc+xmp+icc", "is only in EXIF");
    row("EXIF, keep exif", {inExif}, "jpg", "exif", "");
    row("EXIF, keep copyright", {inExif}, "jpg", "copyright", "");
    row("EXIF, keep copyright and iptc", {inExif}, "jpg", "copyright+iptc", "");
    row("EXIF, keep none", {inExif}, "jpg", "none", "");
    row("IPTC, keep exif", {inIptc}, "jpg", "exif", "is only in IPTC");
    row("IPTC, keep iptc", {inIptc}, "jpg", "iptc", "");
    row("IPTC, keep iptc, in XMP then", {inIptc}, "png", "iptc", "");
    row("XMP, keep exif and iptc", {inXmp}, "jpg", "exif+iptc", "is only in XMP");
    row("XMP, keep xmp", {inXmp}, "jpg", "xmp", "");
    row("EXIF and IPTC, keep iptc", {inExif, inIptc}, "jpg", "iptc", "");
    row("EXIF and XMP, keep iptc", {inExif, inXmp}, "jpg", "iptc", "is only in EXIF and XMP");
    row("all three, keep icc", {inExif, inIptc, inXmp}, "jpg", "icc", "is only in EXIF, IPTC and XMP");
    row("blank, keep iptc", {blank}, "jpg", "iptc", "");
    row("terms of use, keep exif", {QStringLiteral("XMP-xmpRights:UsageTerms=Ask Ann")}, "jpg", "exif",
        "is only in XMP");
    row("nothing, keep iptc", {}, "jpg", "iptc", "");
}

void tst_CliKeep::lostCopyrightIsTold()
{
    QFETCH(const QStringList, planted);
    QFETCH(const QString, extension);
    QFETCH(const QString, keep);
    QFETCH(const QString, told);
    Plant(planted + QStringList{QStringLiteral("EXIF:Make=Camera"), QStringLiteral("IPTC:Keywords=sea")});
    const CliRun run = Run(extension, keep);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(run.Err().contains(QStringLiteral("copyright")), !told.isEmpty());
    if (!told.isEmpty()) {
        const QString notice = planted.first().section(QLatin1Char('='), 1);
        QVERIFY2(run.Err().contains(told), run.err.constData());
        QVERIFY2(run.Err().contains(notice), run.err.constData());
        QVERIFY2(run.Err().contains(QStringLiteral("keep=copyright")), run.err.constData());
    }
}

void tst_CliKeep::lostCopyrightFailsAStrictRun()
{
    Plant({QStringLiteral("EXIF:Copyright=Ann")});
    const QStringList strict{QStringLiteral("--strict")};
    QCOMPARE(Run(QStringLiteral("jpg"), QStringLiteral("iptc"), strict).exitCode, 1);
    QCOMPARE(Run(QStringLiteral("jpg"), QStringLiteral("iptc+copyright"), strict).exitCode, 0);
}

void tst_CliKeep::wrongWordsAreRefused_data()
{
    QTest::addColumn<QString>("keep");
    QTest::newRow("misspelt") << QStringLiteral("copyrigth");
    QTest::newRow("none and another") << QStringLiteral("none+icc");
    QTest::newRow("twice") << QStringLiteral("copyright+copyright");
}

void tst_CliKeep::wrongWordsAreRefused()
{
    QFETCH(const QString, keep);
    const CliRun run = Run(QStringLiteral("jpg"), keep);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("copyright"), run.err.constData());
    QVERIFY(!QFile::exists(Path(QStringLiteral("out"))));
}

QTEST_GUILESS_MAIN(tst_CliKeep)
#include "tst_clikeep.moc"
