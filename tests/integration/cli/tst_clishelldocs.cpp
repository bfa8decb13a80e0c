// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "PseudoTerminal.h"

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/options/Examples.h"
#include "server/protocol/ServerLimits.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

using namespace BatchCli;

/// The manual page and the completions, as the shells and the readers of manual pages understand them.
class tst_CliShellDocs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bashCompletes_data();
    void bashCompletes();
    void bashKnowsEveryOption();
    void bashAtTheTerminal();
    void zshKnowsEveryOption();
    void zshOffersEveryWord();
    void zshDescribes_data();
    void zshDescribes();
    void zshKeepsLines();
    void fishKnowsEveryOption();
    void fishDescribesOnce_data();
    void fishDescribesOnce();
    void fishOffersOptionsByFormat();
    void manualPageHasEveryOption();
    void manualPageTells_data();
    void manualPageTells();
    void manualPageIsSound_data();
    void manualPageIsSound();

private:
    QString Path(const char* name) const { return QStringLiteral(SHELL_DOCS "/") + QLatin1String(name); }
    QStringList Output(const QString& program, const QStringList& arguments) const;
    QStringList Bash(const QStringList& words) const;
    QStringList Fish(const QString& line) const;
    QStringList DescribedByFish(const QString& line) const;
    QStringList HelpOptions(const QString& command) const;

    std::unique_ptr<QTemporaryDir> root;
};

namespace {

QStringList Sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList CommandNames()
{
    QStringList names;
    for (const CommandInfo& command : Commands()) {
        names.append(command.name);
    }
    return names;
}

/// The words of an option as they are easily typed.
QStringList Typed(const OptionInfo& option)
{
    QStringList words = option.words;
    if (option.name == QLatin1String("--format")) {
        words = QStringLiteral("original jpeg png tiff webp heif avif jxl jp2 gif").split(QLatin1Char(' '));
    }
    return words;
}

bool IsThere(const char* program)
{
    return !QStandardPaths::findExecutable(QLatin1String(program)).isEmpty();
}

} // namespace

void tst_CliShellDocs::initTestCase()
{
    root = std::make_unique<QTemporaryDir>();
    for (const char* folder : {"photos/below", "other place"}) {
        QVERIFY(QDir(root->path()).mkpath(QLatin1String(folder)));
    }
    for (const char* name : {"job.xml", "photo.jpg"}) {
        QFile file(root->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

/// The lines that a program writes. A program that writes to standard error has failed.
QStringList tst_CliShellDocs::Output(const QString& program, const QStringList& arguments) const
{
    QProcess process;
    process.setWorkingDirectory(root->path());
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(60'000) || process.exitCode() != 0) {
        return {QStringLiteral("%1 failed: ").arg(program) + QString::fromUtf8(process.readAllStandardError())};
    }
    const QByteArray error = process.readAllStandardError();
    return error.isEmpty()
               ? QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
               : QStringList{QString::fromUtf8(error)};
}

/// The completions of the last of the words.
QStringList tst_CliShellDocs::Bash(const QStringList& words) const
{
    const QString script = QStringLiteral("set -u; source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); "
                                          "_velkora_batch; printf '%s\\n' \"${COMPREPLY[@]}\"");
    return Output(QStringLiteral("bash"), QStringList{QStringLiteral("--norc"), QStringLiteral("-c"), script,
                                                      Path("velkora-batch.bash"), QStringLiteral("velkora-batch")} +
                                              words);
}

/// Candidates with their descriptions behind a tabulator.
QStringList tst_CliShellDocs::DescribedByFish(const QString& line) const
{
    return Output(QStringLiteral("fish"), {QStringLiteral("--no-config"), QStringLiteral("-c"),
                                           QStringLiteral("source $argv[1]; complete -C $argv[2]"),
                                           Path("velkora-batch.fish"), QStringLiteral("velkora-batch ") + line});
}

QStringList tst_CliShellDocs::Fish(const QString& line) const
{
    QStringList offered = DescribedByFish(line);
    for (QString& candidate : offered) {
        candidate = candidate.section(QLatin1Char('\t'), 0, 0);
    }
    return offered;
}

/// The long names of the options that the real help of a command lists.
QStringList tst_CliShellDocs::HelpOptions(const QString& command) const
{
    static const QRegularExpression entry(QStringLiteral("^ +(?:-[a-z0-9], )?(--[a-z-]+)"),
                                          QRegularExpression::MultilineOption);
    QStringList options;
    auto found =
        entry.globalMatch(QString::fromUtf8(CliRun::Of({command, QStringLiteral("--help")}, root->path()).out));
    while (found.hasNext()) {
        options.append(found.next().captured(1));
    }
    return options;
}

void tst_CliShellDocs::bashCompletes_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("offered");
    const auto row = [](const char* words, const char* offered) {
        QTest::newRow(words) << QString::fromLatin1(words).split(QLatin1Char(' '))
                             << QString::fromLatin1(offered).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };
    row("", "run|watch|create|show|plan|split|collect|presets|effects|formats|help|--help|--version");
    row("s", "show|split");
    row("--v", "--version");
    row("run --on-in", "--on-input-error");
    row("run --on-name-exists ", "skip|overwrite|rename|ask");
    row("run --on-name-exists = re", "rename");
    row("run --on-name-exists =", "skip|overwrite|rename|ask");
    row("run --format JPEG", "jpeg");
    row("run --format j", "jpeg|jxl|jp2");
    row("run --format J", "jpeg|jxl|jp2");
    row("run --format = j", "jpeg|jxl|jp2");
    row("run -f we", "webp");
    row("run --side W", "width");
    row("run --format-option qual", "quality=");
    row("run --format jpeg --format-option qual", "quality=");
    row("run --format = JPG --format-option qual", "quality=");
    row("run --format png --format-option qual", "");
    row("run -f png --format-option qual", "");
    row("run -fpng --format-option qual", "");
    row("run -f png --format-option = comp", "compressionLevel=");
    row("run --format jpeg --format-option prog", "progressive=true|progressive=false");
    row("run --format jpeg --format-option progressive =", "true|false");
    row("run --format jpeg --format-option progressive = T", "true");
    row("run --format jpeg --format-option chromaSubsampling = 4 : 4", "4:4");
    row("run --format jxl --format-option prog", "");
    row("run --effect blu", "blur");
    row("run --effect off : blu", "blur");
    row("run --effect off :", "");
    row("run --crop ratio :", "");
    row("run --crop ratio : n", "");
    row("run photo.jpg --size 100 p", "photos|photo.jpg");
    row("run --output p", "photos");
    row("run -o ", "photos|other place");
    row("run --size p", "");
    row("create --from j", "job.xml");
    row("run --quiet p", "photos|photo.jpg");
    row("presets s", "save");
    row("effects sep", "sepia");
    row("effects se", "sepia|set-metadata");
    row("formats W", "WebP");
    row("formats w", "WebP");
    row("help cr", "create");
    row("nonsense --", "");
}

void tst_CliShellDocs::bashCompletes()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, offered);
    if (!IsThere("bash")) {
        QSKIP("bash is not installed.");
    }
    if (words.contains(QStringLiteral("off")) && offered.isEmpty()) {
        offered = Bash({QStringLiteral("effects"), QString()}); // Every effect.
        QVERIFY(offered.size() > 20);
    }
    QCOMPARE(Sorted(Bash(words)), Sorted(offered));
}

void tst_CliShellDocs::bashKnowsEveryOption()
{
    if (!IsThere("bash")) {
        QSKIP("bash is not installed.");
    }
    for (const CommandInfo& command : Commands()) {
        const QStringList options = HelpOptions(command.name);
        QVERIFY(!options.isEmpty());
        QCOMPARE(Sorted(Bash({command.name, QStringLiteral("--")})), Sorted(options));
        for (const OptionInfo& option : command.options) {
            if (option.completion == Completion::Words) {
                QVERIFY(option.words.size() > 1);
                QCOMPARE(Sorted(Bash({command.name, option.name, QString()})), Sorted(Typed(option)));
            }
        }
        if (command.completion == Completion::Words) {
            QCOMPARE(Sorted(Bash({command.name, QString()})), Sorted(command.words));
        }
    }
}

// Splitting a line into words is up to readline.
void tst_CliShellDocs::bashAtTheTerminal()
{
    if (!IsThere("bash")) {
        QSKIP("bash is not installed.");
    }
    PseudoTerminal terminal(QStandardPaths::findExecutable(QStringLiteral("bash")),
                            {QStringLiteral("--norc"), QStringLiteral("-i")}, 200);
    terminal.Type("PS1='ready> '; bind 'set enable-bracketed-paste off'; source '" +
                  QFile::encodeName(Path("velkora-batch.bash")) + "'; echo loaded-$((1+1))\n");
    QVERIFY2(terminal.WaitFor("loaded-2\r\n"), terminal.Output().constData());
    terminal.Type("echo velkora-batch; velkora-batch run --on-format=nea\t--struc\tflat --effect off:sep\t");
    QVERIFY2(terminal.WaitFor("--on-format=nearest --structure flat"), terminal.Output().constData());
    QVERIFY2(terminal.WaitFor("off:sepia "), terminal.Output().constData());
}

void tst_CliShellDocs::zshKnowsEveryOption()
{
    if (!IsThere("zsh")) {
        QSKIP("zsh is not installed.");
    }
    // A replacement of _arguments shows what the function passes to it.
    const QString script = QStringLiteral("_arguments() { print -rl -- \"$@\" }; _files() { }; compadd() { }; "
                                          "words=(velkora-batch $2 ''); CURRENT=3; source $1");
    for (const CommandInfo& command : Commands()) {
        const QStringList entries =
            Output(QStringLiteral("zsh"), {QStringLiteral("-f"), QStringLiteral("-c"), script, QStringLiteral("zsh"),
                                           Path("_velkora-batch"), command.name});
        QStringList options;
        static const QRegularExpression name(QStringLiteral("^(?:\\([^)]*\\)|\\*)?(--[a-z-]+)=?\\["));
        for (const QString& entry : entries) {
            const QRegularExpressionMatch match = name.match(entry);
            if (match.hasMatch()) {
                options.append(match.captured(1));
            }
        }
        QCOMPARE(Sorted(options), Sorted(HelpOptions(command.name)));
    }
}

void tst_CliShellDocs::zshOffersEveryWord()
{
    if (!IsThere("zsh")) {
        QSKIP("zsh is not installed.");
    }
    qputenv("TERM", "xterm");
    PseudoTerminal terminal(QStandardPaths::findExecutable(QStringLiteral("zsh")),
                            {QStringLiteral("-f"), QStringLiteral("-i")}, 200);
    terminal.Type("unsetopt prompt_sp; cd '" + QFile::encodeName(root->path()) + "'; fpath=('" +
                  QFile::encodeName(QStringLiteral(SHELL_DOCS)) +
                  "' $fpath); autoload -U compinit; compinit -u -D; LISTMAX=10000; PS1='ready> '; echo "
                  "loaded-$((1+1))\n");
    QVERIFY2(terminal.WaitFor("loaded-2\r\n"), terminal.Output().constData());
    // Ambiguous completions are listed; control-U erases the line.
    const auto offers = [&terminal](const QString& line, QStringList words) {
        words.replaceInStrings(QStringLiteral(" "), QStringLiteral("\\ "));
        terminal.Type("\x15" + line.toUtf8() + '\t');
        const int before = terminal.Output().size();
        while (!words.isEmpty()) {
            // In any order.
            words.erase(std::remove_if(
                            words.begin(), words.end(),
                            [&](const QString& word) { return terminal.Output().mid(before).contains(word.toUtf8()); }),
                        words.end());
            if (!words.isEmpty() && !terminal.WaitFor(words.first().toUtf8())) {
                return false;
            }
        }
        return true;
    };
    QVERIFY2(offers(QStringLiteral("velkora-batch "), CommandNames()), terminal.Output().constData());
    for (const CommandInfo& command : Commands()) {
        for (const OptionInfo& option : command.options) {
            if (option.completion == Completion::Words && command.name == QLatin1String("run")) {
                const QString line = QStringLiteral("velkora-batch %1 %2 ").arg(command.name, option.name);
                QVERIFY2(offers(line, Typed(option)), terminal.Output().constData());
            }
        }
    }
    QVERIFY2(offers(QStringLiteral("velkora-batch effects "), Commands()[4].words), terminal.Output().constData());
    QVERIFY2(offers(QStringLiteral("velkora-batch run --on-name-exists=re"), {QStringLiteral("exists=rename")}),
             terminal.Output().constData());
    QVERIFY2(offers(QStringLiteral("velkora-batch run -o oth"), {QStringLiteral("er place")}),
             terminal.Output().constData());
    QVERIFY2(offers(QStringLiteral("velkora-batch run photo"), {QStringLiteral("photos"), QStringLiteral("photo.jpg")}),
             terminal.Output().constData());
}

void tst_CliShellDocs::zshDescribes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArrayList>("wanted");
    QTest::addColumn<QByteArray>("unwanted");
    const auto row = [](const char* line, const char* wanted, const char* unwanted = "") {
        QTest::newRow(line) << QByteArray(line) << QByteArray(wanted).split('|') << QByteArray(unwanted);
    };
    row("velkora-batch ", "plan     -- prints every input with its output|help     -- prints the help of a command");
    row("velkora-batch run --for", "--format         -- the format of results|--format-option  -- an option of");
    row("velkora-batch run --structure ",
        "flat   -- everything in the output folder|input  -- folders as in the input");
    row("velkora-batch run --format j", "jpeg  -- |jxl   -- |jp2   -- ", "png");
    row("velkora-batch run --format J", "jpeg  -- |jxl   -- |jp2   -- ", "png");
    row("velkora-batch run --format=j", "jpeg  -- |jxl   -- |jp2   -- ", "png");
    row("velkora-batch effects s", "sepia         -- |set-metadata  -- |sharpen       -- ");
    row("velkora-batch run --name t",
        "text    -- |time    -- |tokens  -- a text with tokens, such as {date}_{number:4}");
    row("velkora-batch run -f png --format-option ", "compressionLevel|bitDepth", "quality");
    row("velkora-batch run --format=jpeg --format-option ", "quality|progressive=true", "compressionLevel");
    row("velkora-batch run --format-option ", "quality|compressionLevel|keep=exif");
}

void tst_CliShellDocs::zshDescribes()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArrayList, wanted);
    QFETCH(QByteArray, unwanted);
    if (!IsThere("zsh")) {
        QSKIP("zsh is not installed.");
    }
    qputenv("TERM", "xterm");
    PseudoTerminal terminal(QStandardPaths::findExecutable(QStringLiteral("zsh")),
                            {QStringLiteral("-f"), QStringLiteral("-i")}, 200);
    terminal.Type(
        "unsetopt prompt_sp list_types; setopt no_always_last_prompt no_auto_menu no_list_ambiguous; fpath=('" +
        QFile::encodeName(QStringLiteral(SHELL_DOCS)) +
        "' $fpath); autoload -U compinit; compinit -u -D; LISTMAX=10000; PS1='ready> '; echo "
        "loaded-$((1+1))\n");
    QVERIFY2(terminal.WaitFor("loaded-2\r\n"), terminal.Output().constData());
    QVERIFY2(terminal.WaitFor("ready> "), terminal.Output().constData());
    const int before = terminal.Output().size();
    terminal.Type(line + '\t');
    QVERIFY2(terminal.WaitFor("ready> "), terminal.Output().constData()); // The prompt comes again below the list.
    const QByteArray list = terminal.Output().mid(before);
    const QByteArray shown = list.mid(list.indexOf('\n'));
    for (const QByteArray& text : qAsConst(wanted)) {
        QVERIFY2(shown.contains(text), shown.constData());
    }
    QVERIFY2(unwanted.isEmpty() || !shown.contains(unwanted), shown.constData());
}

/// Descriptions that do not fit a line are cut off.
void tst_CliShellDocs::zshKeepsLines()
{
    QFile file(Path("_velkora-batch"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression description(QStringLiteral("(?<!\\\\)\\[((?:[^\\]\\\\]|\\\\.)+)\\]"));
    auto found = description.globalMatch(QString::fromUtf8(file.readAll()));
    int count = 0;
    while (found.hasNext()) {
        const QString text = found.next().captured(1);
        QVERIFY2(text.size() <= 100, qPrintable(text));
        ++count;
    }
    QVERIFY(count > 100);
}

void tst_CliShellDocs::fishDescribesOnce_data()
{
    QTest::addColumn<QString>("line");
    for (const char* line : {"", "run -", "run --", "run --format ", "run --structure ", "run --on-name-exists ",
                             "run --effect ", "run --side ", "run --format-option ", "effects ", "formats ", "help ",
                             "plan run --js", "run plan --js", "run effects --js"}) {
        QTest::newRow(line) << QString::fromLatin1(line);
    }
}

/// Each candidate comes once, with one description of its own.
void tst_CliShellDocs::fishDescribesOnce()
{
    QFETCH(QString, line);
    if (!IsThere("fish")) {
        QSKIP("fish is not installed.");
    }
    QHash<QString, int> descriptions;
    QSet<QString> candidates;
    const QStringList offered = DescribedByFish(line);
    QVERIFY(!offered.isEmpty());
    for (const QString& candidate : offered) {
        const QString description = candidate.section(QLatin1Char('\t'), 1);
        QVERIFY2(!description.isEmpty(), qPrintable(candidate));
        QVERIFY2(description.size() <= 120, qPrintable(candidate));
        QVERIFY2(!candidates.contains(candidate.section(QLatin1Char('\t'), 0, 0)), qPrintable(candidate));
        candidates.insert(candidate.section(QLatin1Char('\t'), 0, 0));
        ++descriptions[description];
    }
    // An option's short and long name share a description, and so do the values of one key.
    QVERIFY2(offered.size() == 1 || descriptions.size() * 2 > offered.size() || line.contains(QStringLiteral("option")),
             qPrintable(offered.join(QLatin1Char('\n'))));
    if (line.endsWith(QStringLiteral("--js"))) {
        const bool isRun = line.startsWith(QStringLiteral("run"));
        QCOMPARE(offered.size(), 1);
        QCOMPARE(offered.first().contains(QStringLiteral("event")), isRun);
    }
}

void tst_CliShellDocs::fishOffersOptionsByFormat()
{
    if (!IsThere("fish")) {
        QSKIP("fish is not installed.");
    }
    const QString quality = QStringLiteral("quality=");
    QVERIFY(Fish(QStringLiteral("run --format-option ")).contains(quality));
    for (const char* jpeg : {"--format jpeg", "--format=JPG", "-f jpeg"}) {
        const QStringList offered = Fish(QStringLiteral("run %1 --format-option ").arg(QLatin1String(jpeg)));
        QVERIFY2(offered.contains(quality), jpeg);
        QVERIFY2(!offered.contains(QStringLiteral("compressionLevel=")), jpeg);
    }
    for (const char* png : {"--format png", "--format=PNG", "-f png", "-fpng"}) {
        const QStringList offered = Fish(QStringLiteral("run %1 --format-option ").arg(QLatin1String(png)));
        QVERIFY2(!offered.contains(quality), png);
        QVERIFY2(offered.contains(QStringLiteral("compressionLevel=")), png);
    }
    QCOMPARE(Sorted(Fish(QStringLiteral("run --format j"))),
             QStringList({QStringLiteral("jp2"), QStringLiteral("jpeg"), QStringLiteral("jxl")}));
}

void tst_CliShellDocs::fishKnowsEveryOption()
{
    if (!IsThere("fish")) {
        QSKIP("fish is not installed.");
    }
    QCOMPARE(Sorted(Fish(QString())), Sorted(CommandNames()));
    for (const CommandInfo& command : Commands()) {
        QCOMPARE(Sorted(Fish(command.name + QStringLiteral(" --"))), Sorted(HelpOptions(command.name)));
        if (command.completion == Completion::Words) {
            QCOMPARE(Sorted(Fish(command.name + QLatin1Char(' '))), Sorted(command.words));
        }
    }
    for (const OptionInfo& option : Commands().first().options) {
        if (option.completion == Completion::Words) {
            QCOMPARE(Sorted(Fish(QStringLiteral("run %1 ").arg(option.name))), Sorted(Typed(option)));
        }
    }
    QCOMPARE(Fish(QStringLiteral("run -o oth")), QStringList{QStringLiteral("other place/")});
    QCOMPARE(Sorted(Fish(QStringLiteral("run pho"))),
             QStringList({QStringLiteral("photo.jpg"), QStringLiteral("photos/")}));
    QCOMPARE(Fish(QStringLiteral("run --on-name-exists=re")), QStringList{QStringLiteral("--on-name-exists=rename")});
}

void tst_CliShellDocs::manualPageHasEveryOption()
{
    if (!IsThere("groff")) {
        QSKIP("groff is not installed.");
    }
    const QString page = Output(QStringLiteral("groff"), {QStringLiteral("-man"), QStringLiteral("-Tascii"),
                                                          QStringLiteral("-P-cbou"), Path("velkora-batch.1")})
                             .join(QLatin1Char('\n'));
    QVERIFY2(page.contains(QStringLiteral("EXIT STATUS")), qPrintable(page));
    for (const CommandInfo& command : Commands()) {
        QVERIFY2(page.contains(QStringLiteral("velkora-batch ") + command.name), qPrintable(command.name));
        const QStringList options = HelpOptions(command.name);
        QVERIFY(!options.isEmpty());
        for (const QString& option : options) {
            const QRegularExpression entry(QStringLiteral("^ +(?:-[a-z0-9], )?%1(?: |$)").arg(option),
                                           QRegularExpression::MultilineOption);
            QVERIFY2(entry.match(page).hasMatch(), qPrintable(option));
        }
    }
}

void tst_CliShellDocs::manualPageTells_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char* section, const QStringList& texts) {
        QTest::newRow(section) << QString::fromLatin1(section) << texts;
    };
    row("EXIT STATUS", {QStringLiteral("5"), QStringLiteral("6"), QStringLiteral("7")});
    row("ENVIRONMENT", {QStringLiteral("NO_COLOR"), QStringLiteral("TERM"), QStringLiteral("TMPDIR"),
                        QStringLiteral("XDG_CONFIG_HOME"), QLatin1String(BatchProtocol::workersLimit.variable),
                        QLatin1String(BatchProtocol::megapixelsLimit.variable),
                        QLatin1String(BatchProtocol::workerMemoryLimit.variable),
                        QLatin1String(BatchProtocol::pictureTimeLimit.variable),
                        QLatin1String(BatchProtocol::followLinksLimit.variable),
                        QLatin1String(BatchProtocol::normalPriorityLimit.variable)});
    row("FILES",
        {QStringLiteral("~/.config/velkora-batch/BatchExceptionPolicy.ini"), QStringLiteral(".velkora-batch-*.journal"),
         QStringLiteral("VelkoraBatchProcessing"), QStringLiteral("VelkoraBatchWorker")});
    QStringList examples;
    for (const Example& example : ExamplesOf()) {
        examples.append(example.line);
    }
    row("EXAMPLES", examples);
    row("SEE ALSO", {QStringLiteral("find(1)")});
    row("INPUTS", {QStringLiteral("**"), QStringLiteral("{a,b}"), QStringLiteral("--files-from")});
    row("COMMANDS", {QStringLiteral("Values: width, height, long, short"), QStringLiteral("top-left, top-right"),
                     QStringLiteral("soft-light")});
}

void tst_CliShellDocs::manualPageTells()
{
    QFETCH(QString, section);
    QFETCH(QStringList, texts);
    if (!IsThere("groff")) {
        QSKIP("groff is not installed.");
    }
    const QString page =
        Output(QStringLiteral("groff"), {QStringLiteral("-man"), QStringLiteral("-Tascii"), QStringLiteral("-rLL=200n"),
                                         QStringLiteral("-P-cbou"), Path("velkora-batch.1")})
            .join(QLatin1Char('\n'));
    const QRegularExpression part(QStringLiteral("^%1\n(.*?)(?=^\\S)").arg(section),
                                  QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    const QString text = part.match(page).captured(1).simplified();
    QVERIFY2(!text.isEmpty(), qPrintable(page));
    for (const QString& wanted : qAsConst(texts)) {
        QVERIFY2(text.contains(wanted), qPrintable(wanted + QStringLiteral(" in ") + text));
    }
}

void tst_CliShellDocs::manualPageIsSound_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("groff") << QStringList{QStringLiteral("groff"), QStringLiteral("-man"), QStringLiteral("-ww"),
                                          QStringLiteral("-z"), Path("velkora-batch.1")};
    QTest::newRow("man") << QStringList{QStringLiteral("man"), QStringLiteral("--warnings"), QStringLiteral("-l"),
                                        QStringLiteral("-E"),  QStringLiteral("UTF-8"),      QStringLiteral("-Z"),
                                        QStringLiteral("-T"),  Path("velkora-batch.1")};
}

void tst_CliShellDocs::manualPageIsSound()
{
    QFETCH(QStringList, command);
    const QString program = command.takeFirst();
    if (!IsThere(qPrintable(program))) {
        QSKIP(qPrintable(program + QStringLiteral(" is not installed.")));
    }
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, command);
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_CliShellDocs)
#include "tst_clishelldocs.moc"
