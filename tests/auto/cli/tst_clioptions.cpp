// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/cli/options/CommandLine.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/options/JobOptions.h"
#include "job/settings/NamePart.h"
#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QtTest>

#include <algorithm>

using namespace BatchHost;
using namespace BatchCli;

namespace {

const JobOption& Option(const QString& name)
{
    return *std::find_if(JobOptions().begin(), JobOptions().end(),
                         [&name](const JobOption& option) { return option.info.name == name; });
}

/// The error message; empty when there is none.
QString ErrorOf(ZTBatchDocument& job, const QString& option, const QString& value)
{
    try {
        Option(option).apply(job, value);
    } catch (const RequestError& error) {
        return error.text;
    }
    return {};
}

/// Fills a job by options only, without leaving a single default.
void Fill(ZTBatchDocument& job)
{
    const QVector<QPair<const char*, const char*>> values{{"--output", "/tmp/results"},
                                                          {"--structure", "date"},
                                                          {"--format", "jpg"},
                                                          {"--format-option", "quality=91"},
                                                          {"--format-option", "keep=exif+icc"},
                                                          {"--prefix", "date"},
                                                          {"--name", "text:a: b, c"},
                                                          {"--suffix", "number:7:4"},
                                                          {"--prefix-separator", "_"},
                                                          {"--suffix-separator", " "},
                                                          {"--size", "20.5cm"},
                                                          {"--side", "short"},
                                                          {"--resize", "fit"},
                                                          {"--resolution", "240"},
                                                          {"--crop", "fill:640x480px"},
                                                          {"--crop-position", "top-left"},
                                                          {"--frame", "1,2,3,4"},
                                                          {"--frame-size", "1000x900"},
                                                          {"--frame-angle", "-15"},
                                                          {"--frame-opacity", "0.25"},
                                                          {"--frame-blending", "soft-light"},
                                                          {"--background", "pattern:3:150"},
                                                          {"--background-opacity", "0.5"},
                                                          {"--shadow", "glow"},
                                                          {"--shadow-colour", "#102030"},
                                                          {"--shadow-opacity", "0.125"},
                                                          {"--shadow-angle", "135"},
                                                          {"--shadow-distance", "11"},
                                                          {"--shadow-size", "12"},
                                                          {"--effect", "exposure:stops=0.5"},
                                                          {"--effect", "off:blur:sigma=2"},
                                                          {"--effect", "exposure"}};
    for (const auto& [option, value] : values) {
        QCOMPARE(ErrorOf(job, QLatin1String(option), QLatin1String(value)), QString());
    }
}

} // namespace

class tst_CliOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesReachTheJob();
    void everyValueCanBeReadBack();
    void bracesMakeTokens_data();
    void bracesMakeTokens();
    void numbersOfTokensBeginWhereTheyAreTold();
    void wrongValuesAreExplained_data();
    void wrongValuesAreExplained();
    void anotherFormatDropsOptions();
    void frameIsAskedForByItsOptions();
    void argumentsAreParsed();
    void wrongArgumentsAreExplained_data();
    void wrongArgumentsAreExplained();
};

void tst_CliOptions::valuesReachTheJob()
{
    ZTBatchDocument job;
    Fill(job);
    const ZTBatchOutputSettings& output = *job.GetOutputSettings();
    QCOMPARE(output.GetPath(), QFileInfo(QStringLiteral("/tmp/results")).absoluteFilePath());
    QCOMPARE(int(output.GetFolderStructure()), 2);
    QString format;
    QByteArray options;
    output.GetFormat(format, options);
    QCOMPARE(format, QStringLiteral("JPEG"));
    QCOMPARE(options, QByteArray(R"({"keep":["exif","icc"],"quality":91})"));
    QCOMPARE(int(output.GetNamingTemplate(ZTBatchOutputSettings::PartPrefix)), 2);
    QCOMPARE(output.GetCustomTemplate(ZTBatchOutputSettings::PartMiddle), QStringLiteral("a: b, c"));
    QCOMPARE(output.GetStartNumber(ZTBatchOutputSettings::PartSuffix), 7);
    QCOMPARE(output.GetDigitsCount(ZTBatchOutputSettings::PartSuffix), 4);
    QCOMPARE(output.GetPrefixSeparator(), QStringLiteral("_"));
    QCOMPARE(output.GetSuffixSeparator(), QStringLiteral(" "));

    const ZTBatchOutputSettings::ImageSize size = output.GetImageSizeSettings();
    QCOMPARE(size.size, 20.5);
    QCOMPARE(size.unit, 3);
    QCOMPARE(size.side, 3);
    QCOMPARE(size.restriction, 1);
    QCOMPARE(size.resolution, 240);

    const ZTBatchOutputSettings::Crop crop = output.GetCropSettings();
    QCOMPARE(crop.type, 4);
    QCOMPARE(crop.size, QSize(640, 480));
    QCOMPARE(crop.alignment, int(Qt::AlignTop | Qt::AlignLeft));

    const ZTBatchOutputSettings::Transformation frame = output.GetTransformationSettings();
    QVERIFY(frame.state);
    QCOMPARE(frame.margins, QMargins(1, 2, 3, 4));
    QVERIFY(frame.backgroundCustomOutput);
    QCOMPARE(frame.backgroundCustomSize, QSize(1000, 900));
    QCOMPARE(frame.angle, -15);
    QCOMPARE(frame.opacity, 0.25);
    QCOMPARE(frame.blending, 6);
    QCOMPARE(frame.backgroundType, 2);
    QCOMPARE(frame.backgroundPattern[0], 3);
    QCOMPARE(frame.backgroundPattern[1], 150);
    QCOMPARE(frame.backgroundOpacity, 0.5);
    QVERIFY(frame.shadowEnabled);
    QCOMPARE(frame.shadowMode, 1);
    QCOMPARE(frame.shadowColor, QColor(0x10, 0x20, 0x30));
    QCOMPARE(frame.shadowOpacity, 0.125);
    QCOMPARE(frame.shadowAngle, 135);
    QCOMPARE(frame.shadowDistance, 11);
    QCOMPARE(frame.shadowSize, 12);

    const ZTStyle& style = *job.GetStyle();
    QCOMPARE(style.GetEffectCount(), 3);
    QCOMPARE(style.EffectAt(0), QStringLiteral("exposure"));
    QCOMPARE(style.DataAt(0), QByteArray(R"({"stops":0.5})"));
    QVERIFY(style.IsEnabled(0));
    QCOMPARE(style.EffectAt(1), QStringLiteral("blur"));
    QVERIFY(!style.IsEnabled(1));
    QVERIFY(style.DataAt(2).isEmpty());
}

// The options that are shown for a job produce the same job.
void tst_CliOptions::everyValueCanBeReadBack()
{
    ZTBatchDocument job;
    Fill(job);
    ZTBatchDocument copy;
    for (const JobOption& option : JobOptions()) {
        for (const QString& text : option.texts(job)) {
            QCOMPARE(ErrorOf(copy, option.info.name, text), QString());
        }
    }
    QCOMPARE(copy.Serialize(nullptr), job.Serialize(nullptr));
}

void tst_CliOptions::bracesMakeTokens_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("custom");
    const auto row = [](const char* text, int kind, const char* custom) {
        QTest::newRow(text) << QString::fromLatin1(text) << kind << QString::fromLatin1(custom);
    };
    row("{name}", BatchJob::TemplateTokens, "{name}");
    row("IMG {date:YYYY}: {number:4}", BatchJob::TemplateTokens, "IMG {date:YYYY}: {number:4}");
    row("original {name}", BatchJob::TemplateTokens, "original {name}");
    row("tokens:plain", BatchJob::TemplateTokens, "plain");
    row("tokens:text:{name}", BatchJob::TemplateTokens, "text:{name}");
    row("text:{name}", 4, "{name}");
    row("text:{nme", 4, "{nme");
}

void tst_CliOptions::bracesMakeTokens()
{
    QFETCH(QString, text);
    ZTBatchDocument job;
    QCOMPARE(ErrorOf(job, QStringLiteral("--name"), text), QString());
    const BatchJob::NamePart named = BatchJob::NamePartOf(*job.GetOutputSettings(), ZTBatchOutputSettings::PartMiddle);
    QTEST(int(named.kind), "kind");
    QTEST(named.text, "custom");
}

// They are saved with the job.
void tst_CliOptions::numbersOfTokensBeginWhereTheyAreTold()
{
    ZTBatchDocument job;
    Option(QStringLiteral("--name")).apply(job, QStringLiteral("{number:2}"));
    const auto middle = [](const ZTBatchDocument& of) {
        return BatchJob::NamePartOf(*of.GetOutputSettings(), ZTBatchOutputSettings::PartMiddle);
    };
    QCOMPARE(middle(job).startNumber, 1);
    Option(QStringLiteral("--number-start")).apply(job, QStringLiteral("700"));
    ZTBatchDocument read;
    QVERIFY(read.Deserialize(job.Serialize(nullptr)));
    QCOMPARE(middle(read).startNumber, 700);
    QCOMPARE(middle(read).text, QStringLiteral("{number:2}"));
    QCOMPARE(Option(QStringLiteral("--number-start")).texts(read), QStringList{QStringLiteral("700")});
}

void tst_CliOptions::wrongValuesAreExplained_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* option, const char* value, const char* wanted) {
        QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(option), QLatin1String(value))))
            << QString::fromLatin1(option) << QString::fromUtf8(value) << QString::fromLatin1(wanted);
    };
    row("--output", "", "the name of the folder is empty");
    row("--structure", "flta", "did you mean \"flat\"?");
    row("--format", "JPGE", "did you mean \"JPEG\"?");
    row("--format", "bmp", "is not one of Original, JPEG");
    row("--format-option", "quality", "KEY=VALUE");
    row("--format-option", "qualty=3", "did you mean \"quality\"?");
    row("--format-option", "quality=101", "from 1 to 100");
    row("--icc", "/nowhere.icc", "/nowhere.icc cannot be read");
    row("--icc", "/dev/null", "not an ICC profile");
    row("--name", "Holiday", "text:Holiday");
    row("--name", "date:3", "takes no value");
    row("--name", "{dat}", "\"{dat}\" at character 1 is not a token; did you mean \"{date}\"?");
    row("--prefix", "a{number:9x}", "at character 2 cannot be used: the number of digits");
    row("--suffix", "tokens:}", "\"}\" at character 1 closes no token");
    row("--number-start", "5", "has no effect without {number} in a name");
    row("--name", "number:x", "not a whole number");
    row("--name", "number:1:21", "from 1 to 20");
    row("--size", "0", "not a length above 0");
    row("--size", "1000001", "not a length above 0 and up to 1000000, such as");
    row("--size", "-5", "not a length above 0");
    row("--size", "5 miles", "not a length above 0");
    row("--size", "nan", "not a length above 0");
    row("--side", "longest", "is not one of width, height, long, short; did you mean");
    row("--resolution", "0", "from 1 to");
    row("--resolution", "%1", "\"%1\" is not a whole number from 1 to 100000");
    row("--size", "inf", "not a length above 0");
    row("--crop", "ratio", "needs a size");
    row("--crop", "trim:3x2", "takes no size");
    row("--crop", "ratio:3", "WIDTHxHEIGHT");
    row("--crop", "ratio:0x2", "WIDTHxHEIGHT");
    row("--frame", "1,2", "LEFT,TOP,RIGHT,BOTTOM");
    row("--frame", "-1", "LEFT,TOP,RIGHT,BOTTOM");
    row("--frame-opacity", "1.5", "from 0 to 1");
    row("--frame-opacity", "0,5", "from 0 to 1");
    row("--background", "red", "is not one of none, colour, pattern, image");
    row("--background", "colour", "is incomplete");
    row("--background", "colour:blakc", "did you mean \"black\"?");
    row("--background", "pattern:8", "from 0 to 7");
    row("--shadow", "dorp", "did you mean \"drop\"?");
    row("--effect", "expsure", "did you mean \"exposure\"?");
    row("--effect", "exposure:stop=1", "did you mean \"stops\"?");
    row("--effect", "exposure:stops=many", "a number from -10 to 10");
    row("--effect", "exposure:stops", "KEY=VALUE");
    row("--effect", "exposure:{\"stops\":", "effect exposure: ");
}

void tst_CliOptions::wrongValuesAreExplained()
{
    QFETCH(QString, option);
    QFETCH(QString, value);
    QFETCH(QString, wanted);
    ZTBatchDocument job;
    const QString before = job.Serialize(nullptr);
    const QString error = ErrorOf(job, option, value);
    QVERIFY2(error.contains(wanted), qPrintable(error));
    QCOMPARE(job.Serialize(nullptr), before);
}

void tst_CliOptions::anotherFormatDropsOptions()
{
    ZTBatchDocument job;
    Option(QStringLiteral("--format")).apply(job, QStringLiteral("JPEG"));
    Option(QStringLiteral("--format-option")).apply(job, QStringLiteral("quality=70"));
    Option(QStringLiteral("--format")).apply(job, QStringLiteral("jpeg"));
    QString format;
    QByteArray options;
    job.GetOutputSettings()->GetFormat(format, options);
    QCOMPARE(options, QByteArray(R"({"quality":70})"));
    Option(QStringLiteral("--format")).apply(job, QStringLiteral("PNG"));
    job.GetOutputSettings()->GetFormat(format, options);
    QCOMPARE(format, QStringLiteral("PNG"));
    QVERIFY(options.isEmpty());
}

void tst_CliOptions::frameIsAskedForByItsOptions()
{
    ZTBatchDocument job;
    Option(QStringLiteral("--shadow")).apply(job, QStringLiteral("drop"));
    QVERIFY(job.GetOutputSettings()->GetTransformationSettings().state);
    Option(QStringLiteral("--frame")).apply(job, QStringLiteral("none"));
    QVERIFY(!job.GetOutputSettings()->GetTransformationSettings().state);
}

void tst_CliOptions::argumentsAreParsed()
{
    const ParsedArguments parsed = ParseArguments(
        {QStringLiteral("show"), QStringLiteral("a.jpg"), QStringLiteral("--frame-angle"), QStringLiteral("-5"),
         QStringLiteral("--effect"), QStringLiteral("x"), QStringLiteral("b.jpg"), QStringLiteral("--effect=y"),
         QStringLiteral("-oout"), QStringLiteral("-q"), QStringLiteral("[2024,05]"), QStringLiteral("++"),
         QStringLiteral("-"), QStringLiteral("--"), QStringLiteral("-c.jpg"), QStringLiteral("--")});
    QCOMPARE(parsed.command, QStringLiteral("show"));
    QCOMPARE(parsed.inputs,
             QStringList({QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("[2024,05]"),
                          QStringLiteral("++"), QStringLiteral("-"), QStringLiteral("-c.jpg"), QStringLiteral("--")}));
    QCOMPARE(parsed.Values(QStringLiteral("--effect")), QStringList({QStringLiteral("x"), QStringLiteral("y")}));
    QCOMPARE(parsed.Value(QStringLiteral("--frame-angle")), QStringLiteral("-5"));
    QCOMPARE(parsed.Value(QStringLiteral("--output")), QStringLiteral("out"));
    QVERIFY(parsed.Has(QStringLiteral("--quiet")));
    QVERIFY(!parsed.Has(QStringLiteral("--verbose")));
    QVERIFY(
        ParseArguments({QStringLiteral("show"), QStringLiteral("--help")}).message.contains(QStringLiteral("--crop")));
}

void tst_CliOptions::wrongArgumentsAreExplained_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                 << QString::fromLatin1(wanted);
    };
    row("", "no command: use one of run, watch, create, show");
    row("shwo", "did you mean \"show\"?");
    row("--versoin", "did you mean \"--version\"?");
    row("--output x show", "is not allowed before the command");
    row("show --ouput x", "unknown option --ouput; did you mean \"--output\"?");
    row("show --ouput=x", "unknown option --ouput; did you mean \"--output\"?");
    row("show --xyzzy", "--help");
    row("show --size", "--size");
    row("show --size 1 --size 2", "--size");
    row("effects --output x", "unknown option --output");
    row("show -5", "unknown option -5");
    row("show a\xEF\xBF\xBFz", "argument 2, \"a");
    row("show \xEF\xBF\xBE", "contains a character that a job cannot hold");
    QTest::newRow("empty input") << QStringList{QStringLiteral("show"), QString()}
                                 << QStringLiteral("an input of show has an empty name");
    QTest::newRow("empty name of a file")
        << QStringList{QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("--from"), QString()}
        << QStringLiteral("--from: the name is empty");
}

void tst_CliOptions::wrongArgumentsAreExplained()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, wanted);
    QString text;
    try {
        ParseArguments(arguments);
    } catch (const RequestError& error) {
        text = error.text;
    }
    QVERIFY2(text.contains(wanted), qPrintable(text));
}

QTEST_GUILESS_MAIN(tst_CliOptions)
#include "tst_clioptions.moc"
