// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PhotoStage.h"

#include <QImage>
#include <QRandomGenerator>
#include <QtTest>

/// Texts with tokens in names and watermarks, from real photos to their results.
class tst_CliTokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void namesSayWhatPicturesSay_data();
    void namesSayWhatPicturesSay();
    void missingValuesAreEmpty();
    void uprightSizes();
    void numbersFollowTheJob();
    void planAndRunAgree();
    void savedJobsKeepTheirTokens();
    void plainTextsStayAsTheyAre();
    void wrongTokensAreRefusedBeforeAnyWork_data();
    void wrongTokensAreRefusedBeforeAnyWork();
    void hostileValuesStayInTheFolder();
    void randomValuesStayInTheFolder();
    void watermarksAreThoseOfTheirText_data();
    void watermarksAreThoseOfTheirText();
    void watermarksThatSayNothingChangeNothing();

private:
    QStringList Written(const QStringList& naming) const;

    std::unique_ptr<PhotoStage> stage;
};

namespace {

const QStringList& Assignments()
{
    static const QStringList assignments{QStringLiteral("EXIF:DateTimeOriginal=2023:07:04 18:30:05"),
                                         QStringLiteral("EXIF:Make=Maker"),
                                         QStringLiteral("EXIF:Model=EOS 5D"),
                                         QStringLiteral("EXIF:LensModel=EF50mm f/1.8"),
                                         QStringLiteral("EXIF:FocalLength=50"),
                                         QStringLiteral("EXIF:FNumber=2.8"),
                                         QStringLiteral("EXIF:ExposureTime=1/250"),
                                         QStringLiteral("EXIF:ISO=400"),
                                         QStringLiteral("XMP-dc:Title=Fr\u00FCh am Meer"),
                                         QStringLiteral("EXIF:Artist=\u5199\u771F\u5BB6")};
    return assignments;
}

const QString name = QStringLiteral("--name");

} // namespace

void tst_CliTokens::init()
{
    if (!PhotoStage::HasExifTool()) {
        QSKIP("exiftool is not installed");
    }
    stage = std::make_unique<PhotoStage>();
}

/// The names that a run over the folder "in" gives; none when it fails.
QStringList tst_CliTokens::Written(const QStringList& naming) const
{
    const QStringList common{
        QStringLiteral("run"),    QStringLiteral("in"), QStringLiteral("-o"),      QStringLiteral("out"),
        QStringLiteral("--size"), QStringLiteral("60"), QStringLiteral("--quiet"), QStringLiteral("--on-name-exists"),
        QStringLiteral("rename")};
    const CliRun run = stage->Run(common + naming);
    if (run.exitCode != 0) {
        qWarning("%s", run.err.constData());
        return {};
    }
    return stage->Names(QStringLiteral("out"));
}

void tst_CliTokens::namesSayWhatPicturesSay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* text, const char* expected) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(expected);
    };
    row("{date:YYYY-MM-DD}_{number:4}", "2023-07-04_0001");
    row("{date} {time}", "20230704 183005");
    row("{time:HH.MM} {date:DD.MM.YY}", "18.30 04.07.23");
    row("{camera}, {lens}", "EOS 5D, EF50mm f_1.8");
    row("{focal}mm f{aperture} {shutter} ISO{iso}", "50mm f2.8 1_250 ISO400");
    row("{title} - {creator}", "Früh am Meer - 写真家");
    row("{folder} {name} {width}x{height}", "in Dune 1680x1050");
    row("{{{name}}}", "{Dune}");
}

void tst_CliTokens::namesSayWhatPicturesSay()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QVERIFY(stage->Plant(QStringLiteral("in/Dune.jpg"), Assignments()));
    QCOMPARE(Written({name, text}), QStringList{expected + QStringLiteral(".jpg")});
}

void tst_CliTokens::missingValuesAreEmpty()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.png"), {}));
    QCOMPARE(Written({name, QStringLiteral("{camera}{lens}{focal}{aperture}{shutter}{iso}{title}{creator}")}),
             QStringList{QStringLiteral("a.png")});
    QFile::remove(stage->Path(QStringLiteral("out/a.png")));
    QCOMPARE(Written({name, QStringLiteral("x{camera}{iso}y")}), QStringList{QStringLiteral("xy.png")});
    QFile::remove(stage->Path(QStringLiteral("out/xy.png")));
    // The time of the file, as in other names.
    QFile file(stage->Path(QStringLiteral("in/a.png")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2011, 2, 3), QTime(4, 5, 6)), QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(Written({name, QStringLiteral("{date}-{time}")}), QStringList{QStringLiteral("20110203-040506.png")});
}

void tst_CliTokens::uprightSizes()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.jpg"), {QStringLiteral("EXIF:Orientation#=6")}));
    QCOMPARE(Written({name, QStringLiteral("{width}x{height}")}), QStringList{QStringLiteral("32x48.jpg")});
}

void tst_CliTokens::numbersFollowTheJob()
{
    for (const char* file : {"in/a.png", "in/b.png", "in/c.png"}) {
        QVERIFY(stage->PlantSmall(QString::fromLatin1(file), {}));
    }
    QCOMPARE(
        Written({name, QStringLiteral("{number:3}{name}"), QStringLiteral("--number-start"), QStringLiteral("99")}),
        (QStringList{QStringLiteral("099a.png"), QStringLiteral("100b.png"), QStringLiteral("101c.png")}));
}

void tst_CliTokens::planAndRunAgree()
{
    QVERIFY(stage->Plant(QStringLiteral("in/Dune.jpg"), Assignments()));
    const QString text = QStringLiteral("{camera} {shutter} {number:2}");
    const CliRun plan = stage->Run({QStringLiteral("plan"), QStringLiteral("in"), QStringLiteral("-o"),
                                    QStringLiteral("out"), QStringLiteral("--no-sizes"), name, text});
    QVERIFY2(plan.exitCode == 0, plan.err.constData());
    QVERIFY2(plan.Out().contains(QStringLiteral("/out/EOS 5D 1_250 01.jpg")), plan.out.constData());
    QCOMPARE(Written({name, text}), QStringList{QStringLiteral("EOS 5D 1_250 01.jpg")});
}

void tst_CliTokens::savedJobsKeepTheirTokens()
{
    QVERIFY(stage->Plant(QStringLiteral("in/Dune.jpg"), Assignments()));
    const CliRun saved =
        stage->Run({QStringLiteral("create"), QStringLiteral("job.xml"), QStringLiteral("in"), QStringLiteral("-o"),
                    QStringLiteral("out"), QStringLiteral("--size"), QStringLiteral("60"), name,
                    QStringLiteral("{date:YYYY} {number:3}"), QStringLiteral("--number-start"), QStringLiteral("70")});
    QVERIFY2(saved.exitCode == 0, saved.err.constData());
    const CliRun shown = stage->Run({QStringLiteral("show"), QStringLiteral("job.xml")});
    QVERIFY2(shown.Out().contains(QStringLiteral("tokens:{date:YYYY} {number:3}")), shown.out.constData());
    const CliRun run = stage->Run({QStringLiteral("run"), QStringLiteral("job.xml"), QStringLiteral("--quiet")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList{QStringLiteral("2023 070.jpg")});
}

void tst_CliTokens::plainTextsStayAsTheyAre()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.png"), {}));
    QCOMPARE(Written({name, QStringLiteral("text:{name} {{x} {")}), QStringList{QStringLiteral("{name} {{x} {.png")});
}

void tst_CliTokens::wrongTokensAreRefusedBeforeAnyWork_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("effect");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown") << QStringLiteral("{tokens}{nme}") << QString()
                             << "The name's middle: \"{nme}\" at character 1 is not a token; did you mean \"{name}\"?";
    QTest::newRow("digits") << QStringLiteral("{tokens}{number:99}") << QString()
                            << "the number of digits must be a whole number from 1 to 64";
    QTest::newRow("date") << QStringLiteral("{tokens}{date:YYYY-mm}") << QString()
                          << "a date is made of YYYY, YY, MM and DD";
    QTest::newRow("watermark") << QStringLiteral("{nme}")
                               << QStringLiteral(R"(<effect UID="watermark-text" enabled="1" data="%1"/>)")
                                      .arg(QString::fromLatin1(QByteArray(R"({"text":"{nme}","tokens":true})").toHex()))
                               << "Effect 1, \"watermark-text\": text: \"{nme}\" at character 1 is not a token";
    QTest::newRow("metadata") << QStringLiteral("a")
                              << QStringLiteral(R"(<effect UID="set-metadata" enabled="1" data="%1"/>)")
                                     .arg(QString::fromLatin1(QByteArray(R"({"title":"}"})").toHex()))
                              << "Effect 1, \"set-metadata\": title: \"}\" at character 1 closes no token";
}

// In a saved job, which options have not checked.
void tst_CliTokens::wrongTokensAreRefusedBeforeAnyWork()
{
    QFETCH(QString, text);
    QFETCH(QString, effect);
    QFETCH(QString, error);
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.png"), {}));
    QFile job(stage->Path(QStringLiteral("job.xml")));
    QVERIFY(job.open(QIODevice::WriteOnly));
    job.write(QStringLiteral(R"(<!DOCTYPE batch><root name=""><input/><style>%1</style><output><folder fileName="%2"/>)"
                             R"(<naming><prefix type="5"/><middle type="4" name="%3"/><suffix type="5"/></naming>)"
                             R"(</output></root>)")
                  .arg(effect, stage->Path(QStringLiteral("out")), text)
                  .toUtf8());
    job.close();
    const CliRun run = stage->Run({QStringLiteral("run"), QStringLiteral("job.xml"), QStringLiteral("in")});
    QVERIFY2(run.exitCode == 2, run.err.constData());
    QVERIFY2(run.Err().contains(error), run.err.constData());
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out"))));
}

void tst_CliTokens::hostileValuesStayInTheFolder()
{
    const QStringList values{QStringLiteral("../../../up"),
                             QStringLiteral("/etc/passwd"),
                             QStringLiteral("..\\..\\x"),
                             QStringLiteral(".."),
                             QStringLiteral("."),
                             QStringLiteral("NUL"),
                             QStringLiteral("a\u202Egpj.exe"),
                             QStringLiteral("~root"),
                             QString(5000, QLatin1Char('x')),
                             QString(2000, QChar(0x5199)),
                             QStringLiteral("a\u2028b"),
                             QStringLiteral("%1%n%s{name}"),
                             QStringLiteral("-rf"),
                             QStringLiteral("$(touch x)")};
    for (int i = 0; i < values.size(); ++i) {
        QVERIFY(stage->PlantSmall(QStringLiteral("in/%1.jpg").arg(i), {QStringLiteral("EXIF:Model=") + values[i],
                                                                       QStringLiteral("XMP-dc:Title=") + values[i]}));
    }
    const QStringList before = stage->Names(QStringLiteral("."));
    const QStringList written = Written({name, QStringLiteral("{camera}{title}")});
    QCOMPARE(written.size(), values.size());
    for (const QString& file : written) {
        QVERIFY2(!file.contains(QLatin1Char('/')) && !file.contains(QChar(0x202E)) && !file.contains(QChar(0x2028)),
                 qPrintable(file));
        QVERIFY2(file.toUtf8().size() <= 255, qPrintable(file));
    }
    QVERIFY(written.contains(QStringLiteral(".._.._.._up.._.._.._up.jpg")));
    QVERIFY(written.contains(QStringLiteral("%1%n%s{name}%1%n%s{name}.jpg")));
    const QStringList after = stage->Names(QStringLiteral("."));
    QCOMPARE(after.size(), before.size() + values.size());
}

void tst_CliTokens::randomValuesStayInTheFolder()
{
    QRandomGenerator random(20261123);
    constexpr int files = 24;
    for (int i = 0; i < files; ++i) {
        QString value;
        const int length = random.bounded(1, 60);
        for (int c = 0; c < length; ++c) {
            const QString likely = QStringLiteral("./\\: |?*<>\"~");
            // No zero and no line end: exiftool takes them from files only.
            value += random.bounded(2) == 0 ? likely.at(random.bounded(likely.size()))
                                            : QChar(ushort(random.bounded(0x20, 0xD7FF)));
        }
        QVERIFY(stage->PlantSmall(QStringLiteral("in/%1.jpg").arg(i), {QStringLiteral("XMP-dc:Title=") + value}));
    }
    const int before = stage->Names(QStringLiteral(".")).size();
    const QStringList written = Written({name, QStringLiteral("{title}")});
    QCOMPARE(written.size(), files);
    QVERIFY(written.filter(QStringLiteral("/")).isEmpty());
    QCOMPARE(stage->Names(QStringLiteral(".")).size(), before + files);
}

void tst_CliTokens::watermarksAreThoseOfTheirText_data()
{
    QTest::addColumn<QString>("tokens");
    QTest::addColumn<QString>("literal");
    const auto row = [](const char* tokens, const char* literal) {
        QTest::newRow(tokens) << QString::fromUtf8(tokens) << QString::fromUtf8(literal);
    };
    row("© {date:YYYY} {creator}", "© 2023 写真家");
    row("{camera} f/{aperture} {shutter}s", "EOS 5D f/2.8 1/250s");
    row("{name} {folder} {number:3}", "Dune in 007");
    row("{width} x {height} {{}}", "1680 x 1050 {}");
}

void tst_CliTokens::watermarksAreThoseOfTheirText()
{
    QFETCH(QString, tokens);
    QFETCH(QString, literal);
    QVERIFY(stage->Plant(QStringLiteral("in/Dune.jpg"), Assignments()));
    const auto make = [this](const QString& text, bool hasTokens, const QString& output) {
        const CliRun run =
            stage->Run({QStringLiteral("run"), QStringLiteral("in"), QStringLiteral("-o"), output,
                        QStringLiteral("--format"), QStringLiteral("png"), QStringLiteral("--size"),
                        QStringLiteral("300"), QStringLiteral("--quiet"), name, QStringLiteral("text:r"),
                        QStringLiteral("--suffix"), QStringLiteral("number:7:1"), QStringLiteral("--effect"),
                        QStringLiteral("watermark-text:text=%1,size=20,tokens=%2")
                            .arg(text, hasTokens ? QStringLiteral("true") : QStringLiteral("false"))});
        return run.exitCode == 0 ? QImage(stage->Path(output + QStringLiteral("/r7.png"))) : QImage();
    };
    const QImage expected = make(literal, false, QStringLiteral("literal"));
    QVERIFY(!expected.isNull());
    QVERIFY(make(tokens, true, QStringLiteral("tokens")) == expected);
    QVERIFY(make(tokens, false, QStringLiteral("braces")) != expected);
}

void tst_CliTokens::watermarksThatSayNothingChangeNothing()
{
    QVERIFY(stage->PlantSmall(QStringLiteral("in/a.png"), {}));
    const CliRun run = stage->Run({QStringLiteral("run"), QStringLiteral("in"), QStringLiteral("-o"),
                                   QStringLiteral("out"), QStringLiteral("--quiet"), QStringLiteral("--effect"),
                                   QStringLiteral("watermark-text:text={title} {camera},tokens=true")});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/a.png"))), QImage(stage->Path(QStringLiteral("in/a.png"))));
}

QTEST_GUILESS_MAIN(tst_CliTokens)
#include "tst_clitokens.moc"
