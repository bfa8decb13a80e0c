// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QtTest>

/// Values of options as users type them: what the real command makes of them, and what it refuses with which words.
class tst_CliValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lengthsAreNotGuessed_data();
    void lengthsAreNotGuessed();
    void lengthsThatAreClear_data();
    void lengthsThatAreClear();
    void cropsTakeUnits_data();
    void cropsTakeUnits();
    void cropsTakeTheResolutionOfTheSavedJob();
    void cropsThatAreUnclear_data();
    void cropsThatAreUnclear();
    void shownCropsCanBeGivenAgain();
    void contradictionsAreRefused_data();
    void contradictionsAreRefused();
    void optionsThatGoTogether_data();
    void optionsThatGoTogether();
    void sizesOfFiles_data();
    void sizesOfFiles();
    void sizesOfFilesThatAreUnclear_data();
    void sizesOfFilesThatAreUnclear();
    void switchesTakeNoValue_data();
    void switchesTakeNoValue();
    void coloursHaveNames_data();
    void coloursHaveNames();
    void namesOfColoursAreSuggested();
    void formatsAreFoundByExtension_data();
    void formatsAreFoundByExtension();
    void listsAreShownAsTheyAreTyped();

private:
    CliRun Run(const QStringList& arguments) const { return CliRun::Of(arguments, root->path()); }
    CliRun Run(const QString& arguments) const { return Run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts)); }
    /// Writes a job with `options` to standard output.
    CliRun Create(const QString& options) const { return Run(QStringLiteral("create - photo.jpg -ox ") + options); }
    static bool Read(const CliRun& run, ZTBatchDocument& job)
    {
        return run.exitCode == 0 && job.Deserialize(QString::fromUtf8(run.out));
    }

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliValues::init()
{
    root = std::make_unique<QTemporaryDir>();
    QFile photo(root->filePath(QStringLiteral("photo.jpg")));
    QVERIFY(photo.open(QIODevice::WriteOnly));
}

void tst_CliValues::lengthsAreNotGuessed_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("understood");
    QTest::addColumn<QString>("toType");
    const auto row = [](const char* size, const char* understood, const char* toType) {
        QTest::newRow(size) << QString::fromUtf8(size) << QString::fromUtf8(understood) << QString::fromUtf8(toType);
    };
    row("100,200", "a comma", "--crop fill:100x200");
    row("100,200px", "a comma", "100200px");
    row("1,600", "a comma", "1600");
    row("20,5cm", "a comma", "20.5cm");
    row("33,3%", "a comma", "33.3%");
    row("1.600", "means 1.6 pixels", "type 1600 ");
    row("1.000", "means 1 pixel", "type 1000 ");
    row("1.600px", "means 1.6 pixels", "type 1600px ");
    row("1600.0", "means 1600 pixels", "type 1600 ");
    row("12.5", "means 12.5 pixels", "type 12 or 13,");
    row("0.5", "means 0.5 pixels", "type 1,");
    row("15e-1", "means 1.5 pixels", "type 1 or 2,");
    row("800x600", "a width and a height", "--crop fill:800x600");
    row("15x10cm", "a width and a height", "--crop fill:15x10cm");
    row("1'600", "is not a length", "such as 1600, 50%");
    row("1600dpi", "is not a length", "such as 1600, 50%");
}

void tst_CliValues::lengthsAreNotGuessed()
{
    QFETCH(QString, size);
    QFETCH(QString, understood);
    QFETCH(QString, toType);
    const CliRun run = Create(QStringLiteral("--size ") + size);
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY2(run.Err().startsWith(QStringLiteral("velkora-batch: --size: \"%1\"").arg(size)), run.err.constData());
    QVERIFY2(run.Err().contains(understood), run.err.constData());
    QVERIFY2(run.Err().contains(toType), run.err.constData());
}

void tst_CliValues::lengthsThatAreClear_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<double>("length");
    QTest::addColumn<int>("unit");
    const auto row = [](const char* size, double length, int unit) {
        QTest::newRow(size) << QString::fromLatin1(size) << length << unit;
    };
    row("1600", 1600, 0);
    row("1600px", 1600, 0);
    row("1e3", 1000, 0);
    row("33.3%", 33.3, 1);
    row("1.600in", 1.6, 2);
    row("20.5cm", 20.5, 3);
    row("0.5mm", 0.5, 4);
}

void tst_CliValues::lengthsThatAreClear()
{
    QFETCH(QString, size);
    QFETCH(double, length);
    QFETCH(int, unit);
    const CliRun run = Create(QStringLiteral("--size ") + size);
    ZTBatchDocument job;
    QVERIFY2(Read(run, job), run.err.constData());
    QCOMPARE(job.GetOutputSettings()->GetImageSizeSettings().size, length);
    QCOMPARE(job.GetOutputSettings()->GetImageSizeSettings().unit, unit);
}

void tst_CliValues::cropsTakeUnits_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QSize>("size");
    const auto row = [](const char* options, const QSize& size) {
        QTest::newRow(options) << QString::fromLatin1(options) << size;
    };
    row("--crop fill:800x600", {800, 600});
    row("--crop fill:800x600px", {800, 600});
    // 300 dots per inch unless something else is said: 15 / 2.54 * 300 = 1771.65, 10 / 2.54 * 300 = 1181.10
    row("--crop fill:15x10cm", {1772, 1181});
    row("--crop fill:15cmx10cm", {1772, 1181});
    row("--crop exact:6x4in", {1800, 1200});
    row("--crop exact:3.5x2.5in", {1050, 750});
    row("--crop fill:150x100mm", {1772, 1181});
    row("--crop FILL:15X10CM", {1772, 1181});
    row("--crop fill:6x4in --resolution 100", {600, 400});
    row("--resolution 100 --crop fill:6x4in", {600, 400});
    row("--crop fill:15x10cm --size 15cm", {1772, 1181});
    row("--size 15cm --resolution 254 --crop fill:15x10cm", {1500, 1000});
    row("--crop fill:1500x1000px --size 15cm", {1500, 1000});
    row("--crop fill:1500x1000 --size 50%", {1500, 1000});
    row("--crop fill:1500x1000 --size 750", {1500, 1000});
}

void tst_CliValues::cropsTakeUnits()
{
    QFETCH(QString, options);
    QFETCH(QSize, size);
    const CliRun run = Create(options);
    ZTBatchDocument job;
    QVERIFY2(Read(run, job), run.err.constData());
    QCOMPARE(job.GetOutputSettings()->GetCropSettings().size, size);
}

void tst_CliValues::cropsTakeTheResolutionOfTheSavedJob()
{
    QCOMPARE(Run(QStringLiteral("create job.xml photo.jpg -ox --resolution 100")).exitCode, 0);
    const CliRun run = Run(QStringLiteral("create - --from job.xml --crop fill:6x4in"));
    ZTBatchDocument job;
    QVERIFY2(Read(run, job), run.err.constData());
    QCOMPARE(job.GetOutputSettings()->GetCropSettings().size, QSize(600, 400));
}

void tst_CliValues::cropsThatAreUnclear_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("understood");
    QTest::addColumn<QString>("toType");
    const auto row = [](const char* options, const char* understood, const char* toType) {
        QTest::newRow(options) << QString::fromLatin1(options) << QString::fromLatin1(understood)
                               << QString::fromLatin1(toType);
    };
    row("--crop fill:15x10 --size 15cm --resolution 300", "\"fill:15x10\" is 15 x 10 pixels, but the size is 15cm",
        "type fill:15x10cm");
    row("--size 6in --crop exact:6x4", "\"exact:6x4\" is 6 x 4 pixels, but the size is 6in", "type exact:6x4in");
    row("--size 150mm --crop exact:150x100", "is 150 x 100 pixels", "or exact:150x100px");
    row("--crop fill:800.5x600", "means 800.5 x 600 pixels", "such as 800x600");
    row("--crop fill:1.600x1.200", "means 1.6 x 1.2 pixels", "such as 1600x1200");
    row("--crop fill:15,5x10cm", "a comma", "15.5x10cm");
    row("--crop fill:50%", "WIDTHxHEIGHT", "15x10cm");
    row("--crop fill:15cm", "WIDTHxHEIGHT", "15x10cm");
    row("--crop fill:0.001x1cm", "is 0 x 118 pixels at 300 dots per inch", "from 1 to 1000000");
    row("--crop fill:-1x1cm", "WIDTHxHEIGHT", "800x600");
    row("--crop ratio:15x10cm", "a ratio has no unit", "type ratio:15x10, or fill:15x10cm");
    row("--crop fill:3x2!", "\"!\"", "ratio and interesting");
    row("--crop trim:!", "takes no size", "trim");
    row("--crop ratio:!", "\"ratio:!\" needs a size", "ratio:3x2!");
    row("--crop fill:3x2x1", "WIDTHxHEIGHT", "800x600");
    row("--crop fill:15cmx10in", "WIDTHxHEIGHT", "15x10cm");
    row("--crop fill:9999x9999in", "is 2999700 x 2999700 pixels at 300 dots per inch", "from 1 to 1000000");
}

void tst_CliValues::cropsThatAreUnclear()
{
    QFETCH(QString, options);
    QFETCH(QString, understood);
    QFETCH(QString, toType);
    const CliRun run = Create(options);
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY2(run.Err().startsWith(QStringLiteral("velkora-batch: --crop: ")), run.err.constData());
    QVERIFY2(run.Err().contains(understood), run.err.constData());
    QVERIFY2(run.Err().contains(toType), run.err.constData());
}

void tst_CliValues::shownCropsCanBeGivenAgain()
{
    const QString options = QStringLiteral("--size 15cm --crop fill:15x10cm");
    const CliRun shown = Run(QStringLiteral("show photo.jpg ") + options);
    QCOMPARE(shown.exitCode, 0);
    QVERIFY2(shown.out.contains("crop                 fill:1772x1181px\n"), shown.out.constData());
    const CliRun again = Create(QStringLiteral("--size 15cm --crop fill:1772x1181px"));
    QCOMPARE(again.exitCode, 0);
    QCOMPARE(again.out, Create(options).out);
}

void tst_CliValues::contradictionsAreRefused_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* options, const char* wanted) {
        QTest::newRow(options) << QString::fromLatin1(options) << QString::fromLatin1(wanted);
    };
    row("--size 100 --resize none", "--size 100 and --resize none contradict each other");
    row("--resize none --size 100", "--size 100 and --resize none contradict each other");
    row("--size none --resize fit", "--size none and --resize fit contradict each other");
    row("--size none --side long", "--size none and --side long contradict each other");
    row("--side long --resize none", "--resize none and --side long contradict each other");
    row("--side long", "--side: \"long\" has no effect without a size; add --size");
    row("--resize fit", "--resize: \"fit\" has no effect without a size; add --size");
    row("--frame none --shadow drop", "--frame none and --shadow drop contradict each other");
    row("--shadow none --frame none", "--frame none and --shadow none contradict each other");
    row("--frame none --background colour:red", "--frame none and --background colour:red contradict each other");
    row("--frame none --frame-size 10x10", "--frame none and --frame-size 10x10 contradict each other");
    row("--frame none --frame-opacity 0.5", "--frame none and --frame-opacity 0.5 contradict each other");
    row("--shadow-colour red", "--shadow-colour: \"red\" has no effect without a shadow; add --shadow");
    row("--shadow none --shadow-size 3", "--shadow-size: \"3\" has no effect without a shadow; add --shadow");
    row("--frame 10 --shadow-angle 3", "--shadow-angle: \"3\" has no effect without a shadow; add --shadow");
    row("--background none --background-opacity 0.5",
        "--background-opacity: \"0.5\" has no effect without a background; add --background");
    row("--crop-position top", "--crop-position: \"top\" has no effect without --crop ratio, fill or exact");
    row("--crop trim --crop-position top",
        "--crop-position: \"top\" has no effect without --crop ratio, fill or exact");
    row("--crop interesting:3x2 --crop-position top", "has no effect without --crop ratio, fill or exact");
    row("--prefix-separator _", "--prefix-separator: \"_\" has no effect without a prefix; add --prefix");
    row("--suffix-separator _ --suffix nothing",
        "--suffix-separator: \"_\" has no effect without a suffix; add --suffix");
    row("-qv", "--quiet and --verbose contradict each other");
    row("--verbose --quiet", "--quiet and --verbose contradict each other");
}

void tst_CliValues::contradictionsAreRefused()
{
    QFETCH(QString, options);
    QFETCH(QString, wanted);
    const CliRun create = Create(options);
    QCOMPARE(create.exitCode, 2);
    QVERIFY(create.out.isEmpty());
    QVERIFY2(create.Err().contains(wanted), create.err.constData());
    for (const char* command : {"run photo.jpg -oout ", "plan photo.jpg -oout ", "show photo.jpg "}) {
        const CliRun run = Run(QLatin1String(command) + options);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.Err().contains(wanted), run.err.constData());
    }
    QVERIFY(!QFile::exists(root->filePath(QStringLiteral("out"))));
}

// What a saved job says is no contradiction to what a command line adds or takes away.
void tst_CliValues::optionsThatGoTogether_data()
{
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("options");
    const auto row = [](const char* saved, const char* options) {
        QTest::addRow("%s, then %s", saved, options) << QString::fromLatin1(saved) << QString::fromLatin1(options);
    };
    row("--size 100", "--resize none");
    row("--size 100", "--size none");
    row("--size 100", "--side short");
    row("--size 100", "--resize fit");
    row("--resize none", "--size none --resize none");
    row("--frame 10 --shadow drop", "--frame none");
    row("--frame 10 --shadow drop", "--shadow-colour red");
    row("--shadow drop", "--shadow none");
    row("--background colour:red", "--background-opacity 0.5");
    row("--crop fill:800x600", "--crop-position top");
    row("--crop fill:800x600", "--size 15cm");
    row("--crop ratio:3x2", "--crop-position top");
    row("--crop ratio:3x2!", "--crop-position top");
    row("--prefix date", "--prefix-separator _");
    row("--resolution 72", "--resolution 300");
    row("", "--format jpeg --format-option background=white --quiet");
}

void tst_CliValues::optionsThatGoTogether()
{
    QFETCH(QString, saved);
    QFETCH(QString, options);
    const CliRun create = Run(QStringLiteral("create job.xml photo.jpg -ox ") + saved);
    QVERIFY2(create.exitCode == 0, create.err.constData());
    const CliRun run = Run(QStringLiteral("create - --from job.xml ") + options);
    QVERIFY2(run.exitCode == 0, run.err.constData());
}

void tst_CliValues::sizesOfFiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("bytes");
    const auto row = [](const char* text, int bytes) { QTest::newRow(text) << QString::fromLatin1(text) << bytes; };
    row("250000", 250'000);
    row("250000B", 250'000);
    row("500kB", 500'000);
    row("500KB", 500'000);
    row("500k", 500'000);
    row("1.5MB", 1'500'000);
    row("2M", 2'000'000);
    row("1GB", 1'000'000'000);
    row("300KiB", 307'200);
    row("1MiB", 1'048'576);
}

void tst_CliValues::sizesOfFiles()
{
    QFETCH(QString, text);
    QFETCH(int, bytes);
    const CliRun run = Create(QStringLiteral("-f jpeg --max-size ") + text);
    ZTBatchDocument job;
    QVERIFY2(Read(run, job), run.err.constData());
    QString format;
    QByteArray options;
    job.GetOutputSettings()->GetFormat(format, options);
    QCOMPARE(QString::fromUtf8(options), QStringLiteral("{\"maxBytes\":%1}").arg(bytes));
}

void tst_CliValues::sizesOfFilesThatAreUnclear_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* arguments, const char* text) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(text);
    };
    row("-f jpeg --max-size small", "\"small\" is no number of bytes; write it like 500kB, 1.5MB or 300KiB");
    row("-f jpeg --max-size -5kB", "\"-5kB\" is no number of bytes");
    row("-f jpeg --max-size 1,5MB", "\"1,5MB\" is no number of bytes");
    row("-f jpeg --max-size 5iB", "\"5iB\" is no number of bytes");
    row("-f jpeg --max-size 10", "it must be a whole number from 100 to 2000000000 (bytes)");
    row("-f jpeg --max-size 5GB", "it must be a whole number from 100 to 2000000000 (bytes)");
    row("-f png --max-size 500kB", "the size of PNG files follows from their pixels; JPEG, WebP");
    row("-f webp --max-size 500kB --format-option lossless=yes", "\"maxBytes\" lowers the quality");
}

void tst_CliValues::sizesOfFilesThatAreUnclear()
{
    QFETCH(QString, arguments);
    QFETCH(QString, text);
    const CliRun run = Create(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY2(run.Err().contains(text), run.err.constData());
}

void tst_CliValues::switchesTakeNoValue_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* arguments, const char* name) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(name);
    };
    row("run photo.jpg -oout --json=no", "--json");
    row("run photo.jpg -oout --json=false", "--json");
    row("run photo.jpg -oout --json=true", "--json");
    row("run photo.jpg -oout --json=1", "--json");
    row("run photo.jpg -oout --json=", "--json");
    row("plan photo.jpg -oout --quiet=no", "--quiet");
    row("create a.xml photo.jpg -ox --force=no", "--force");
    row("formats --json=no", "--json");
    row("show photo.jpg --no-inputs=false", "--no-inputs");
}

void tst_CliValues::switchesTakeNoValue()
{
    QFETCH(QString, arguments);
    QFETCH(QString, name);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.out.isEmpty());
    QCOMPARE(run.Err(), QStringLiteral("velkora-batch: %1 is a switch and takes no value; type %1 alone, or leave it "
                                       "out.\n")
                            .arg(name));
    // It is the value of another option here.
    QCOMPARE(Run(QStringLiteral("create - photo.jpg -ox --job-name --json=no")).exitCode, 0);
}

void tst_CliValues::coloursHaveNames_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* options, const char* written) {
        QTest::newRow(options) << QString::fromLatin1(options) << QByteArray(written);
    };
    row("--effect border:colour=red", R"({"colour":"#ff0000"})");
    row("--effect border:colour=ff0000", R"({"colour":"#ff0000"})");
    row("--effect border:colour=#12345678", R"({"colour":"#12345678"})");
    row("--effect border:colour=LightGoldenrodYellow", R"({"colour":"#fafad2"})");
    row("--effect border:colour=transparent", R"({"colour":"#00000000"})");
    row("--effect rotate:angle=5,background=white", R"({"angle":5,"background":"#ffffff"})");
    row("--effect watermark-text:text=Ann,colour=grey", R"({"colour":"#808080","text":"Ann"})");
    row("--format jpeg --format-option background=white", R"({"background":"#ffffff"})");
    row(R"(--effect border:{"colour":"red"})", R"({"colour":"#ff0000"})");
}

void tst_CliValues::coloursHaveNames()
{
    QFETCH(QString, options);
    QFETCH(QByteArray, written);
    const CliRun run = Create(options);
    ZTBatchDocument job;
    QVERIFY2(Read(run, job), run.err.constData());
    QString format;
    QByteArray data;
    job.GetOutputSettings()->GetFormat(format, data);
    if (job.GetStyle()->GetEffectCount() > 0) {
        data = job.GetStyle()->DataAt(0);
    }
    QCOMPARE(data, written);
}

void tst_CliValues::namesOfColoursAreSuggested()
{
    const CliRun run = Create(QStringLiteral("--effect border:colour=blakc"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QStringLiteral("a name such as white; did you mean black?")), run.err.constData());
}

void tst_CliValues::formatsAreFoundByExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("jpg") << QStringLiteral("jpg") << QByteArray("JPEG");
    QTest::newRow("JPG") << QStringLiteral("JPG") << QByteArray("JPEG");
    QTest::newRow("tif") << QStringLiteral("tif") << QByteArray("TIFF");
    QTest::newRow("jxl") << QStringLiteral("jxl") << QByteArray("JPEG XL");
    QTest::newRow("jpeg") << QStringLiteral("jpeg") << QByteArray("JPEG");
    QTest::newRow("original") << QStringLiteral("original") << QByteArray("Original");
}

void tst_CliValues::formatsAreFoundByExtension()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, format);
    const CliRun run = Run(QStringLiteral("formats ") + name);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(run.out.startsWith(format), run.out.constData());
    // As the option of the same value does.
    QVERIFY(Create(QStringLiteral("--format ") + name).out.contains("format=\"" + format + '"'));
    const CliRun json = Run(QStringLiteral("formats --json ") + name);
    QCOMPARE(json.exitCode, 0);
    QVERIFY2(json.out.contains("\"name\": \"" + format + '"'), json.out.constData());
    const CliRun wrong = Run(QStringLiteral("formats jgp"));
    QCOMPARE(wrong.exitCode, 2);
    QVERIFY2(wrong.Err().contains(QStringLiteral("is not one of")), wrong.err.constData());
}

void tst_CliValues::listsAreShownAsTheyAreTyped()
{
    const CliRun formats = Run(QStringLiteral("formats jpeg"));
    QVERIFY2(!formats.out.contains('['), formats.out.constData());
    const QString text = formats.Out().simplified();
    const QRegularExpression keep(QStringLiteral(" keep: .* joined with \\+, or none, default ([a-z+]+) "));
    const QString standard = keep.match(text).captured(1);
    QVERIFY2(standard.contains(QStringLiteral("exif+gps")), formats.out.constData());
    QCOMPARE(Create(QStringLiteral("--format jpeg --format-option keep=") + standard).exitCode, 0);

    const CliRun curve = Run(QStringLiteral("effects curve"));
    QVERIFY2(!curve.out.contains("[["), curve.out.constData());
    QVERIFY2(curve.Out().simplified().contains(QStringLiteral("default 0:0+100:100")), curve.out.constData());
    QCOMPARE(Create(QStringLiteral("--effect curve:points=0:0+100:100")).exitCode, 0);
}

QTEST_GUILESS_MAIN(tst_CliValues)
#include "tst_clivalues.moc"
