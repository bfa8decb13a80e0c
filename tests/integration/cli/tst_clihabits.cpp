// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"

#include <QImage>
#include <QtTest>

/// What users of other command lines type without thinking: short options, --dry-run, "help COMMAND", the words of
/// other programs.
class tst_CliHabits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sameMeaning_data();
    void sameMeaning();
    void versionInShort();
    void dryRunWritesNothing();
    void dryRunIsNoResume_data();
    void dryRunIsNoResume();
    void qualityByFormat_data();
    void qualityByFormat();
    void wrongQualityIsExplained_data();
    void wrongQualityIsExplained();
    void helpOfACommand();
    void wrongHelpIsExplained_data();
    void wrongHelpIsExplained();
    void noArgumentsPrintTheShortHelp();
    void foreignWordsGetAHint_data();
    void foreignWordsGetAHint();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    CliRun Run(const QString& arguments) const
    {
        return CliRun::Of(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), root->path());
    }

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliHabits::init()
{
    root = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("photos")));
    QImage picture(16, 12, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(Path(QStringLiteral("photos/1.jpg"))));
    QVERIFY(picture.save(Path(QStringLiteral("photos/2.png"))));
}

void tst_CliHabits::sameMeaning_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    const auto row = [](const char* one, const char* other) {
        QTest::newRow(one) << QString::fromLatin1(one) << QString::fromLatin1(other);
    };
    row("show photos -o x -f png", "show photos -o x --format png");
    row("show photos -o x -fpng", "show photos -o x --format png");
    row("show photos -o x -s 50%", "show photos -o x --size 50%");
    row("show photos -o x -f jpeg --quality 80", "show photos -o x --format jpeg --format-option quality=80");
    row("show photos -o x --quality 80 -f jpeg", "show photos -o x --format jpeg --format-option quality=80");
    row("show photos -o x --quality 80", "show photos -o x --format-option quality=80");
    row("run photos -o x --dry-run", "plan photos -o x");
    row("run photos -o x -n", "plan photos -o x");
    row("run photos -o x -nq -j 2", "plan photos -o x -q");
    row("run photos -o x -n --json", "plan photos -o x --json");
    row("help show", "show --help");
    row("help", "--help");
    row("-h", "--help");
}

void tst_CliHabits::sameMeaning()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    const CliRun first = Run(one);
    const CliRun second = Run(other);
    QCOMPARE(first.exitCode, second.exitCode);
    QCOMPARE(first.exitCode, 0);
    QCOMPARE(first.out, second.out);
    QCOMPARE(first.err, second.err);
    QVERIFY(!first.out.isEmpty());
}

void tst_CliHabits::versionInShort()
{
    const CliRun version = Run(QStringLiteral("-V"));
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.out, Run(QStringLiteral("--version")).out);
    QVERIFY(version.out.startsWith("velkora-batch "));
}

void tst_CliHabits::dryRunWritesNothing()
{
    const CliRun run = Run(QStringLiteral("run photos -o out --dry-run"));
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.out.contains("1.jpg"), run.out.constData());
    QVERIFY2(run.Err().contains(QStringLiteral("Nothing was written.")), run.err.constData());
    QVERIFY(!QFile::exists(Path(QStringLiteral("out"))));
}

void tst_CliHabits::dryRunIsNoResume_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    row("run -n --resume -o out", "--dry-run and --resume");
    row("run photos -n -o out --report r.csv", "--dry-run and --report");
    row("run photos -n -o out -j 0", "--workers: \"0\" is not a whole number");
    row("create a.xml photos -o out -n", "plan");
}

void tst_CliHabits::dryRunIsNoResume()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(!QFile::exists(Path(QStringLiteral("r.csv"))));
}

void tst_CliHabits::qualityByFormat_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"jpeg", "webp", "heif", "avif", "jxl", "jp2", "Original"}) {
        QTest::newRow(format) << QString::fromLatin1(format);
    }
}

void tst_CliHabits::qualityByFormat()
{
    QFETCH(QString, format);
    const CliRun run = Run(QStringLiteral("show photos -o out --quality 71 -f ") + format);
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.out.contains("quality=71"), run.out.constData());
}

void tst_CliHabits::wrongQualityIsExplained_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    row("show photos -o x -f png --quality 80", "--quality: PNG files have no quality");
    row("show photos -o x --quality 80 -f png", "--quality: PNG files have no quality");
    row("show photos -o x --quality 80 -f gif", "--quality: GIF files have no quality");
    row("show photos -o x --quality 101 -f jpeg", "from 1 to 100");
    row("show photos -o x --quality 0", "from 1 to 100");
    row("show photos -o x --quality best", "\"best\"");
    row("show photos -o x --quality 80 --quality 90", "--quality is given 2 times");
    row("show photos -o x -f jpeg --quality 80 --format-option quality=70",
        "--quality 80 and --format-option quality=70");
    row("show photos -o x -f jpeg --max-size 500kB --format-option maxBytes=70000",
        "--max-size 500kB and --format-option maxBytes=70000");
}

void tst_CliHabits::wrongQualityIsExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.out.isEmpty());
}

void tst_CliHabits::helpOfACommand()
{
    for (const char* command : {"run", "create", "show", "plan", "effects", "formats", "help"}) {
        const CliRun help = Run(QStringLiteral("help ") + QLatin1String(command));
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.out.startsWith(QByteArray("Usage: velkora-batch ") + command), help.out.constData());
        QVERIFY(help.err.isEmpty());
    }
}

void tst_CliHabits::wrongHelpIsExplained_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    row("help shwo", "help: \"shwo\" is not one of");
    row("help run plan", "one command");
    row("help --json", "unknown option --json");
}

void tst_CliHabits::wrongHelpIsExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.out.isEmpty());
}

/// On standard error, because a script that forgot its arguments must not take it for a result.
void tst_CliHabits::noArgumentsPrintTheShortHelp()
{
    const CliRun run = Run(QString());
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY2(run.err.startsWith("Usage: velkora-batch COMMAND"), run.err.constData());
    for (const char* command : {"run", "create", "show", "plan", "effects", "formats", "help"}) {
        QVERIFY2(run.err.contains(QByteArray("\n  ") + command + ' '), run.err.constData());
    }
    QVERIFY2(run.err.contains("velkora-batch --help"), run.err.constData());
    QVERIFY(run.err.count('\n') <= 24); // It fits on one screen.
}

void tst_CliHabits::foreignWordsGetAHint_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    row("run photos -o x --recursive", "folders are always read with their subfolders");
    row("run photos -o x -r", "folders are always read with their subfolders");
    row("run photos -o x --strip", "use --format-option keep=none");
    row("run photos -o x --width 800", "use --size 800 --side width");
    row("run photos -o x --width=800", "use --size 800 --side width");
    row("run photos -o x --height 600", "use --size 600 --side height");
    row("run photos -o x --width", "use --size LENGTH --side width");
    row("run photos -o x --resize 800x600",
        "\"800x600\" is a size, and this option says which pictures change; use --size 800");
    row("run photos -o x --resize 50%", "use --size 50%");
    row("run photos -o x --overwrite", "use --on-name-exists overwrite");
    row("run photos --output-dir x", "use --output x");
    row("run photos --dest=x", "use --output x");
    row("run photos -o x --rename", "use --name, --prefix and --suffix");
    row("run photos -o x --threads 4", "use --workers 4");
    row("run photos -o x --skip-existing", "use --on-name-exists skip");
    row("run photos -o x --rotate 90", "use --effect rotate");
    row("run photos -o x --sepia", "use --effect sepia");
    row("run photos -o x --watermark (c)", "--effect watermark-text");
    row("run -i photos -o x", "without an option");
    row("run photos -o x --progressive", "use --format-option progressive=true");
    row("run photos -o x --version", "velkora-batch --version");
    row("plan photos -o x --workers 2", "unknown option --workers; it is an option of run");
    row("photos -o out", "photos is a folder, not a command; did you mean \"velkora-batch run photos\"?");
    row("photos/1.jpg", "photos/1.jpg is a file, not a command; did you mean \"velkora-batch run photos/1.jpg\"?");
    row("nowhere/*.jpg -o out", "nowhere/*.jpg is no command; did you mean \"velkora-batch run nowhere/*.jpg\"?");
    row("-o out photos", "is not allowed before the command");
    row("convert photos", "did you mean \"velkora-batch run\"?");
    row("resize photos", "did you mean \"velkora-batch run\"?");
    row("preview photos", "did you mean \"velkora-batch plan\"?");
}

void tst_CliHabits::foreignWordsGetAHint()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.out.isEmpty());
    QVERIFY2(!run.err.endsWith("..\n"), run.err.constData());
    QVERIFY(!QFile::exists(Path(QStringLiteral("x"))));
}

QTEST_GUILESS_MAIN(tst_CliHabits)
#include "tst_clihabits.moc"
