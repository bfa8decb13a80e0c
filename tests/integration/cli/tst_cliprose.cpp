// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "PictureFiles.h"

#include "hosts/cli/options/TextLayout.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/// Many commands and mistakes, in all languages: no prose stays English, and what programs read stays as it is.
class tst_CliProse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void proseIsTranslated_data();
    void proseIsTranslated();
    void dataStayEnglish_data();
    void dataStayEnglish();
    void linesOfHelpFit_data();
    void linesOfHelpFit();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    void Write(const QString& name, const QByteArray& content) const;

    /// Runs the command with `arguments`, which are split at blanks; "''" is an empty one.
    CliRun Run(const QString& arguments, const QString& locale) const;

    std::optional<QTemporaryDir> root;
};

namespace {

const QString english = QStringLiteral("C");

QStringList Locales()
{
    return {QStringLiteral("de_DE.UTF-8"), QStringLiteral("es_ES.UTF-8"), QStringLiteral("fr_FR.UTF-8"),
            QStringLiteral("ja_JP.UTF-8")};
}

/// Those that every command is tried in. Processes start slowly under Wine.
QStringList TriedLocales()
{
#ifdef Q_OS_WIN
    return Locales().mid(0, 1);
#else
    return Locales();
#endif
}

/// `line` without what is the same in all languages: what is quoted, and command lines.
QString WithoutNames(QString line)
{
    static const QRegularExpression quoted(
        QStringLiteral("\"[^\"]*\"|\u201E[^\u201C]*\u201C|\u00AB[^\u00BB]*\u00BB|\u300C[^\u300D]*\u300D"));
    static const QRegularExpression command(
        QStringLiteral("velkora-batch (run|create|plan|show|presets|effects|formats|help) .*$"));
    return line.remove(quoted).remove(command);
}

/// Words that English sentences are made of, and that the language of `locale` does not have.
QRegularExpression EnglishWords(const QString& locale)
{
    const QString inAll = QStringLiteral(
        "the|is|are|and|of|not|with|without|for|has|have|does|cannot|be|to|this|that|which|it|its|from|by|when|did|you|"
        "there|but|needs|must|takes|such|only|matches|found|expected|tag|range|invalid|already|file|folder|line|"
        "pictures|"
        "missing|unknown|exists");
    const QString words = locale.startsWith(QLatin1String("es")) ? inAll : inAll + QStringLiteral("|use");
    return QRegularExpression(QStringLiteral("(?<![\\w=:/-])(%1)(?![\\w=:/-])").arg(words));
}

/// The first sign of English in the lines of `text`; empty if there is none. `original` is the same in English.
QString EnglishIn(const QString& text, const QString& original, const QString& locale)
{
    static const QRegularExpression twoWords(QStringLiteral("(?<![\\w-])[A-Za-z]{2,} [a-z]{2,}(?![\\w-])"));
    const QRegularExpression words = EnglishWords(locale);
    const QStringList originals = original.split(QLatin1Char('\n'));
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QString prose = WithoutNames(line);
        if (prose.contains(words) || (prose.contains(twoWords) && originals.contains(line))) {
            return line;
        }
    }
    return {};
}

} // namespace

void tst_CliProse::Write(const QString& name, const QByteArray& content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(Path(name)).path()));
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

void tst_CliProse::initTestCase()
{
    root.emplace();
    for (const char* const name : {"fotos/a.jpg", "fotos/b.jpg", "doppelt/x/a.jpg", "doppelt/y/a.jpg"}) {
        PictureFiles::WriteJpeg(Path(QString::fromLatin1(name)));
    }
    PictureFiles::WriteTruncated(Path(QStringLiteral("halb/cut.jpg")));
    Write(QStringLiteral("halb/other.jpg"), "xyz");
    Write(QStringLiteral("halb/x.dat"), "\xFF\xD8\xFF\xE0 JFIF");
    Write(QStringLiteral("leer/x.txt"), "xyz");
    Write(QStringLiteral("rest/a.jpg/x.txt"), "xyz");
    Write(QStringLiteral("p/BatchExceptionPolicy.ini"), "[General]\nNamingPolicy=9\n");
    Write(QStringLiteral("s/presets/kaputt.xml"), "xyz");
    Write(QStringLiteral("list1"), "fotos/a.jpg\nfotos/lost.jpg\nfotos/gone.jpg\n");
    Write(QStringLiteral("list2"), QByteArray("fotos/a.jpg\0fotos/lost.jpg", 26));
    Write(QStringLiteral("list3"), "\xFF\xFE x");
    Write(QStringLiteral("list4"), "fotos/a.jpg\nx\xFFy\n");
    Write(QStringLiteral("nojob.xml"), "xyz");
    const CliRun created = Run(QStringLiteral("create job.xml fotos -o %1").arg(Path(QStringLiteral("j"))), english);
    QVERIFY2(created.exitCode == 0, created.err.constData());
    QFile job(Path(QStringLiteral("job.xml")));
    QVERIFY(job.open(QIODevice::ReadOnly));
    Write(QStringLiteral("new.xml"), job.readAll().replace("</batch>", "<later x=\"1\"/></batch>"));
}

CliRun tst_CliProse::Run(const QString& arguments, const QString& locale) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), root->path());
    environment.insert(QStringLiteral("TMPDIR"), root->path());
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE", "XDG_CONFIG_HOME"}) {
        environment.remove(QString::fromLatin1(name));
    }
    environment.insert(QStringLiteral("LANG"), locale);
    QDir(Path(QStringLiteral("out"))).removeRecursively();
    QFile::remove(Path(QStringLiteral("made.xml")));
    QStringList list;
    for (const QString& argument : arguments.split(QLatin1Char(' '))) {
        list.append(argument == QLatin1String("''") ? QString() : argument);
    }
    return CliRun::Of(list, root->path(), environment);
}

void tst_CliProse::proseIsTranslated_data()
{
    QTest::addColumn<int>("code");

    const auto rows = [](int code, const QStringList& commands) {
        for (const QString& command : commands) {
            QTest::newRow(qPrintable(command)) << code;
        }
    };
    const QStringList commands{QStringLiteral("run"),     QStringLiteral("create"),  QStringLiteral("show"),
                               QStringLiteral("plan"),    QStringLiteral("effects"), QStringLiteral("formats"),
                               QStringLiteral("presets"), QStringLiteral("help")};
    for (const QString& command : commands) {
        rows(0, {QStringLiteral("help ") + command});
    }
    const QString working = QStringLiteral(
        "--help\n--version --verbose\nshow halb --verbose -o out\neffects\nformats\npresets\nshow job.xml\nshow "
        "--preset print --job-name "
        "Druck\nshow fotos -o out "
        "--name number:1:4 --frame 10\ncreate made.xml fotos\ncreate made.xml fotos -o out\ncreate made.xml -o out\n"
        "create made.xml\nplan fotos/a.jpg -o out\nplan fotos/a.jpg --in-place\nrun fotos/a.jpg -o out\n"
        "run fotos/a.jpg -o out --dry-run\nrun leer -o out --allow-empty\nplan new.xml\nshow new.xml\n"
        "presets save mine --settings t --force --format jpeg");
    rows(0, working.split(QLatin1Char('\n')));
    const QString incomplete = QStringLiteral(
        "run fotos halb -o out\nplan doppelt --structure flat -o out\nplan halb -o out\n"
        "run halb -o out --strict\npresets --settings s\nrun fotos/a.jpg -o out --workers 1 --on-input-error stop "
        "halb/other.jpg\nrun fotos/a.jpg -o rest");
    rows(1, incomplete.split(QLatin1Char('\n')));
    const QString refused = QStringLiteral(
        "run fotos -o out --on-name-exists overwrite --structure fla\nrun\nrunn\nplan\ncreate\nx/*.jpg\nfotos\n"
        "fotos/a.jpg\nconvert x\n--recursive\nhelp a b\nhelp runn\nrun fotos\nrun nowhere -o out\nrun fotos -o\n"
        "run fotos -o out --sise 5\nrun fotos -o out --width 800\nrun fotos -o out --recursive\n"
        "run fotos -o out --blur 2\nshow fotos --report x.csv\nrun fotos -o out --keep-metadata\n"
        "run fotos -o out --size 12,5\nrun fotos -o out --size 1,600\nrun fotos -o out --size 1.600\n"
        "run fotos -o out --size 2.0\nrun fotos -o out --size 0.5\nrun fotos -o out --size 15.5\n"
        "run fotos -o out --size 800x600\nrun fotos -o out --size huge\nrun fotos -o out --crop square\n"
        "run fotos -o out --crop ratio\nrun fotos -o out --crop ratio:3x2cm\nrun fotos -o out --crop ratio:3\n"
        "run fotos -o out --crop fill:15,5x10cm\nrun fotos -o out --crop fill:2.5x3\nrun fotos -o out --crop trim:3x2\n"
        "run fotos -o out --crop fill:3x2!\nrun fotos -o out --crop fill:99999999x2\nrun fotos -o out --side width\n"
        "run fotos -o out --crop-position middle\nrun fotos -o out --shadow-size 3\n"
        "run fotos -o out --prefix-separator x\nrun fotos -o out --suffix-separator x\n"
        "run fotos -o out --background-opacity 1 --frame 3\nrun fotos -o out --frame 1,2\n"
        "run fotos -o out --frame-size 3\nrun fotos -o out --frame-opacity 2\nrun fotos -o out --frame-angle x\n"
        "run fotos -o out --background pattern\nrun fotos -o out --background colour:wihte\n"
        "run fotos -o out --shadow drop --shadow-colour whit\nrun fotos -o out --name foo\n"
        "run fotos -o out --name date:3\nrun fotos -o out --format jpg2\nrun fotos -o out --format-option quality\n"
        "run fotos -o out -f jpeg --format-option quality=300\nrun fotos -o out -f jpeg --format-option qualty=30\n"
        "run fotos -o out --quality 300 -f jpeg\nrun fotos -o out --quality 30 -f bmp\n"
        "run fotos -o out --quality 30 -f jpeg --format-option quality=40\nrun fotos -o out --effect blurr\n"
        "run fotos -o out --effect blur:sigma=x\nrun fotos -o out --effect blur:sigm=1\n"
        "run fotos -o out --effect blur:1\nrun fotos -o out --effect invert:x=1\nrun fotos -o out --effect blur:{x\n"
        "run fotos -o out --icc lost.icc\nrun fotos -o out --icc list1\nrun fotos -o out -o out2\n"
        "run fotos -o out --quiet=yes\nrun fotos -o out --quiet --verbose\nrun fotos -o ''\nrun '' -o out\n"
        "run fotos -o out --size none --side width\nrun fotos -o out --frame none --frame-angle 3\n"
        "run fotos -o out --on-input-error nearest\nrun fotos -o out --workers 0\nrun fotos -o out --report x.txt\n"
        "run fotos -o out --settings list1\nrun fotos -o out --settings p\nrun --resume\nrun fotos -o out --run x\n"
        "run fotos -o out --dry-run --resume\nrun fotos --in-place --structure flat\nrun fotos halb/cut.jpg "
        "--in-place\n"
        "run -o out --files-from lost\nrun -o out --files-from list1\nrun -o out --files-from list2 --null\n"
        "run -o out --files-from list2\nrun -o out --files-from list3\nrun -o out --files-from list4\n"
        "run fotos -o out --null\nrun - -o out\nrun fotos/*.nef -o out\nrun fotos job.xml -o out\nrun nojob.xml -o "
        "out\n"
        "run job.xml --preset web\nrun fotos -o out --preset webb\nrun fotos -o out --preset x/y\n"
        "create foo fotos\ncreate job.xml fotos\nrun doppelt -o out --structure flat\n"
        "presets keep\npresets save\npresets save a b\npresets save .a\npresets save a.xml\npresets save a?b\n"
        "presets list x\npresets list --size 5\npresets remove x\npresets remove web\neffects blurr\nformats jpg2\n"
        "run fotos -o out --order size\nrun fotos -o out --include [z-a]");
    rows(2, refused.split(QLatin1Char('\n')));
    rows(5, {QStringLiteral("run leer -o out"), QStringLiteral("create made.xml leer"),
             QStringLiteral("run fotos -o out --include *.nef"),
             QStringLiteral("run fotos -o out --include *.nef --include *.cr2")});
    rows(7, {QStringLiteral("run --resume -o out")});
}

void tst_CliProse::proseIsTranslated()
{
    QFETCH(int, code);

    const QString arguments = QString::fromUtf8(QTest::currentDataTag());
#ifdef Q_OS_WIN
    if (arguments.contains(QLatin1String("lost"))) {
        QSKIP("The system says why it does not find a file, in its own language.");
    }
#endif
    const CliRun original = Run(arguments, english);
    QVERIFY2(original.exitCode == code, original.err.constData());
    QVERIFY(!(original.out + original.err).isEmpty());
    for (const QString& locale : TriedLocales()) {
        const CliRun run = Run(arguments, locale);
        QCOMPARE(run.exitCode, code);
        const QString found = EnglishIn(run.Out() + run.Err(), original.Out() + original.Err(), locale);
        QVERIFY2(found.isEmpty(), qPrintable(locale + QStringLiteral(": ") + found));
    }
}

void tst_CliProse::dataStayEnglish_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("effects --json") << 0;
    QTest::newRow("formats --json") << 0;
    QTest::newRow("presets --json") << 0;
    QTest::newRow("presets --json --settings s") << 1;
    QTest::newRow("create - fotos -o out --size 20.5cm") << 0;
    QTest::newRow("plan fotos halb --json -o out") << 1;
}

void tst_CliProse::dataStayEnglish()
{
    QFETCH(int, code);

    const QString arguments = QString::fromUtf8(QTest::currentDataTag());
    const CliRun original = Run(arguments, english);
    QVERIFY2(original.exitCode == code, original.err.constData());
    QVERIFY(!original.out.isEmpty());
    for (const QString& locale : TriedLocales()) {
        QCOMPARE(Run(arguments, locale).out, original.out);
    }
}

void tst_CliProse::linesOfHelpFit_data()
{
    QTest::addColumn<QString>("locale");

    for (const QString& locale : Locales()) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

/// Also in a script without blanks, where characters take two columns.
void tst_CliProse::linesOfHelpFit()
{
    QFETCH(QString, locale);

    constexpr int columns = 80;
    const QStringList lines = Run(QStringLiteral("help run"), locale).Out().split(QLatin1Char('\n'));
    QVERIFY(lines.size() > 100);
    for (const QString& line : lines) {
        int width = 0;
        for (const uint character : line.toUcs4()) {
            width += BatchCli::ColumnsOf(character);
        }
        const bool isExample = line.startsWith(QStringLiteral("    velkora-batch"));
        QVERIFY2(width <= columns || isExample, qPrintable(line));
    }
}

QTEST_GUILESS_MAIN(tst_CliProse)
#include "tst_cliprose.moc"
