// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/cli/options/CommandLine.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/ShellLine.h"
#include "hosts/common/options/CommandOptions.h"
#include "hosts/common/options/JobOptions.h"
#include "job/settings/NamePart.h"
#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

using namespace BatchHost;
using namespace BatchCli;

using Output = ZTBatchOutputSettings;

/// Jobs said in options, and commands as lines of shells.
class tst_CommandOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newJobsNeedOnlyTheFolder();
    void optionsMakeTheSameJob_data();
    void optionsMakeTheSameJob();
    void whatOptionsCannotSayIsRefused();
    void posixShellsKeepEveryCharacter();
    void theWindowsPromptGetsEscapedMarks_data();
    void theWindowsPromptGetsEscapedMarks();
};

namespace {

using Change = std::function<void(ZTBatchDocument&)>;

const BatchJob::PolicyValues skipping{};

void Build(ZTBatchDocument& job)
{
    SetJobDefaults(job);
    job.GetOutputSettings()->SetPath(QDir::rootPath() + QStringLiteral("some where/results"));
}

/// The job that the command line makes of `options`.
void BuildFrom(const QStringList& options, ZTBatchDocument& job)
{
    const ParsedArguments parsed = ParseArguments(QStringList{QStringLiteral("run")} + options);
    QVERIFY(parsed.inputs.isEmpty());
    SetJobDefaults(job);
    for (const JobOption& option : JobOptions()) {
        for (const QString& value : parsed.Values(option.info.name)) {
            option.apply(job, value);
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(Change)

void tst_CommandOptions::newJobsNeedOnlyTheFolder()
{
    ZTBatchDocument job;
    Build(job);
    job.SetDocumentName(QStringLiteral("a name"));
    QCOMPARE(CommandOptions(job, skipping, QString()).join(QLatin1Char(' ')),
             QStringLiteral("--output %1some where/results --on-input-error skip --on-output-error skip "
                            "--on-processing-error skip --on-name-exists skip --on-format skip")
                 .arg(QDir::rootPath()));
}

void tst_CommandOptions::optionsMakeTheSameJob_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("size on paper", [](ZTBatchDocument& job) {
        Output::ImageSize size = job.GetOutputSettings()->GetImageSizeSettings();
        size.restriction = 3;
        size.size = 20.5;
        size.unit = 3;
        size.side = 1;
        size.resolution = 240;
        job.GetOutputSettings()->SetImageSizeSettings(size);
    });
    row("crop", [](ZTBatchDocument& job) {
        for (const JobOption& option : JobOptions()) {
            if (option.info.name == QLatin1String("--crop")) {
                option.apply(job, QStringLiteral("ratio:3x2!"));
            }
        }
    });
    row("frame with shadow", [](ZTBatchDocument& job) {
        Output::Transformation frame = job.GetOutputSettings()->GetTransformationSettings();
        frame.state = true;
        frame.margins = {1, 2, 3, 4};
        frame.shadowEnabled = true;
        frame.shadowAngle = -30;
        frame.shadowOpacity = 0.3;
        frame.shadowColor = QColor(1, 2, 3);
        job.GetOutputSettings()->SetTransformationSettings(frame);
    });
    row("texts that look like options", [](ZTBatchDocument& job) {
        Output& output = *job.GetOutputSettings();
        output.SetNamingTemplate(Output::PartPrefix, Output::TemplateCustomText);
        output.SetCustomTemplate(Output::PartPrefix, QStringLiteral("--no, 'it' \"is\": $x"));
        output.SetPrefixSeparator(QStringLiteral("-"));
    });
    row("tokens", [](ZTBatchDocument& job) {
        Output& output = *job.GetOutputSettings();
        BatchJob::SetNamePart(
            output, Output::PartMiddle,
            {BatchJob::TemplateTokens, QStringLiteral("{{x}} {date:YYYY-MM-DD}: {number:4}, '$HOME'"), 40});
        job.GetStyle()->AppendEffect(QStringLiteral("watermark-text"), R"({"text":"{name}, x=1","tokens":true})", true);
        job.GetStyle()->AppendEffect(QStringLiteral("set-metadata"),
                                     R"({"copyright":"(c) {date:YYYY}, a=b","keywords":"a, b; c"})", true);
    });
    row("tokens that begin like a word", [](ZTBatchDocument& job) {
        Output& output = *job.GetOutputSettings();
        BatchJob::SetNamePart(output, Output::PartSuffix, {BatchJob::TemplateTokens, QStringLiteral("text:{name}"), 1});
    });
    row("braces without tokens", [](ZTBatchDocument& job) {
        Output& output = *job.GetOutputSettings();
        output.SetNamingTemplate(Output::PartMiddle, Output::TemplateCustomText);
        output.SetCustomTemplate(Output::PartMiddle, QStringLiteral("{date} {x}"));
    });
    row("format with options", [](ZTBatchDocument& job) {
        job.GetOutputSettings()->SetFormat(QStringLiteral("JPEG"), R"({"keep":["exif","icc"],"quality":91})");
    });
    row("effects", [](ZTBatchDocument& job) {
        job.GetStyle()->AppendEffect(QStringLiteral("exposure"), R"({"stops":0.5})", true);
        job.GetStyle()->AppendEffect(QStringLiteral("blur"), R"({"sigma":2})", false);
        job.GetStyle()->AppendEffect(QStringLiteral("curve"), R"({"points":[[0,0],[50,60],[100,100]]})", true);
        job.GetStyle()->AppendEffect(QStringLiteral("watermark-text"), R"({"text":"a, size=3"})", true);
    });
}

void tst_CommandOptions::optionsMakeTheSameJob()
{
    QFETCH(Change, change);
    ZTBatchDocument job;
    Build(job);
    change(job);
    ZTBatchDocument made;
    BuildFrom(CommandOptions(job, skipping, QString()), made);
    for (const JobOption& option : JobOptions()) {
        QVERIFY2(option.texts(made) == option.texts(job), qPrintable(option.info.name));
    }
    QVERIFY(job.GetStyle()->GetEffectCount() == made.GetStyle()->GetEffectCount());
}

void tst_CommandOptions::whatOptionsCannotSayIsRefused()
{
    ZTBatchDocument job;
    Build(job);
    Output::ImageSize size = job.GetOutputSettings()->GetImageSizeSettings();
    size.restriction = 2;
    size.unit = 77;
    job.GetOutputSettings()->SetImageSizeSettings(size);
    QVERIFY_EXCEPTION_THROWN(CommandOptions(job, skipping, QString()), RequestError);
}

void tst_CommandOptions::posixShellsKeepEveryCharacter()
{
    const QStringList words{QStringLiteral("plain-1.5_a/b:c=d"), QString(),
                            QStringLiteral("two words"),         QStringLiteral("it's \"quoted\" $HOME `x` \\n !"),
                            QStringLiteral("line\nbreak\ttab"),  QStringLiteral("*?[a]{b}~#&|;<>()"),
                            QStringLiteral("\u00e4\u65e5\u672c")};
    const QStringList command = QStringList{QStringLiteral("printf"), QStringLiteral("%s\\0")} + words;
    QCOMPARE(PosixShellLine(words).section(QLatin1Char(' '), 0, 0), words.first());
#ifdef Q_OS_UNIX
    QProcess shell;
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), PosixShellLine(command)});
    QVERIFY(shell.waitForFinished());
    QByteArray expected;
    for (const QString& word : words) {
        expected += word.toUtf8() + '\0';
    }
    QCOMPARE(shell.readAllStandardOutput(), expected);
#endif
}

void tst_CommandOptions::theWindowsPromptGetsEscapedMarks_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const char* word, const char* line) {
        QTest::newRow(name) << QString::fromLatin1(word) << QString::fromLatin1(line);
    };
    row("plain", "C:/a/b.jpg", "C:/a/b.jpg");
    row("blank", "C:/my photos", "^\"C:/my photos^\"");
    row("mark", "say \"a\"", "^\"say \\^\"a\\^\"^\"");
    row("backslash at the end", "C:\\my photos\\", "^\"C:\\my photos\\\\^\"");
    row("variable", "%PATH% & more", "^\"^%PATH^% ^& more^\"");
    row("line break", "a\nb", "^\"a b^\"");
    row("empty", "", "^\"^\"");
}

void tst_CommandOptions::theWindowsPromptGetsEscapedMarks()
{
    QFETCH(QString, word);
    QFETCH(QString, line);
    QCOMPARE(WindowsShellLine({word}), line);
}

QTEST_GUILESS_MAIN(tst_CommandOptions)
#include "tst_commandoptions.moc"
