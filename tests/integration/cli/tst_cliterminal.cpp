// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "PictureFiles.h"
#include "PseudoTerminal.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>
#include <sys/types.h>

/// Runs at a terminal, with a user who watches, answers and interrupts.
class tst_CliTerminal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void progressIsOneLine();
    void narrowTerminal();
    void noColour();
    void questionsAreAsked_data();
    void questionsAreAsked();
    void wrongAnswersAreAskedAgain();
    void endOfInputMeansSkipping();
    void stopEndsTheRun();
    void interruptCancels();
    void secondInterruptEndsAtOnce();
    void interruptDuringQuestion();
    void answersOutliveTheProgram();
    void dumbTerminal();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    QStringList Results() const { return QDir(Path(QStringLiteral("out"))).entryList(QDir::Files); }
    QStringList Arguments(const QString& text) const
    {
        return text.split(QLatin1Char(' ')) << QStringLiteral("--settings") << Path(QStringLiteral("settings"));
    }
    void WriteTaken() const
    {
        PictureFiles::WriteJpeg(Path(QStringLiteral("out/1.jpg")), 9);
        PictureFiles::WriteJpeg(Path(QStringLiteral("out/2.jpg")), 9);
    }
    void WriteMany() const
    {
        for (int i = 0; i < 40; ++i) {
            PictureFiles::WriteJpeg(Path(QStringLiteral("many/%1.jpg").arg(i)), i, 1500, 1000);
        }
    }

    std::unique_ptr<QTemporaryDir> root;
    const QString program = QStringLiteral(VELKORA_BATCH);
    QString before;
    QByteArray temporaryBefore;
};

void tst_CliTerminal::init()
{
    root = std::make_unique<QTemporaryDir>();
    before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(root->path()));
    temporaryBefore = QFile::encodeName(QDir::tempPath());
    qputenv("TMPDIR", QFile::encodeName(root->path()));
    qputenv("TERM", "xterm");
    qunsetenv("NO_COLOR");
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
}

void tst_CliTerminal::cleanup()
{
    QDir::setCurrent(before);
    qputenv("TMPDIR", temporaryBefore);
}

void tst_CliTerminal::progressIsOneLine()
{
    WriteMany();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run many -o out")));
    QCOMPARE(terminal.ExitCode(), 0);
    const QByteArray screen = terminal.Output();
    QVERIFY2(screen.contains("\r\033[K["), screen.constData());
    QVERIFY2(screen.contains(".] 0/40") || screen.contains("#] ") || screen.contains("/40 "), screen.constData());
    QVERIFY2(screen.contains("\033[32mWritten"), screen.constData());
    QVERIFY2(!screen.contains("nobody can be asked"), screen.constData());
    QCOMPARE(Results().size(), 40);
}

void tst_CliTerminal::narrowTerminal()
{
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")), 40);
    QCOMPARE(terminal.ExitCode(), 0);
    const QList<QByteArray> parts = terminal.Output().split('\r');
    for (const QByteArray& part : parts) {
        if (part.startsWith("\033[K")) {
            const QByteArray line = part.mid(3).split('\n').first();
            QVERIFY2(line.contains('\033') || line.size() < 40, part.constData());
        }
    }
}

void tst_CliTerminal::noColour()
{
    qputenv("NO_COLOR", "1");
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")));
    QCOMPARE(terminal.ExitCode(), 0);
    QVERIFY(terminal.Output().contains("Written"));
    QVERIFY2(!terminal.Output().contains("\033[3"), terminal.Output().constData());
}

void tst_CliTerminal::questionsAreAsked_data()
{
    QTest::addColumn<QByteArray>("answers");
    QTest::addColumn<int>("questions");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<int>("results");
    QTest::newRow("this file") << QByteArray("rename\nskip\n") << 2 << 1 << 4;
    QTest::newRow("first letters") << QByteArray("r\no\n") << 2 << 0 << 4;
    QTest::newRow("all") << QByteArray("rename all\n") << 1 << 0 << 5;
    QTest::newRow("all, short") << QByteArray("S a\n") << 1 << 1 << 3;
}

void tst_CliTerminal::questionsAreAsked()
{
    QFETCH(QByteArray, answers);
    QFETCH(int, questions);
    QFETCH(int, exitCode);
    QFETCH(int, results);
    WriteTaken();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")));
    for (const QByteArray& answer : answers.trimmed().split('\n')) {
        QVERIFY2(terminal.WaitFor("for all that follow) "), terminal.Output().constData());
        terminal.Type(answer + '\n');
    }
    QCOMPARE(terminal.ExitCode(), exitCode);
    QCOMPARE(terminal.Output().count("for all that follow) "), questions);
    QCOMPARE(Results().size(), results);
}

void tst_CliTerminal::wrongAnswersAreAskedAgain()
{
    WriteTaken();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos/1.jpg -o out")));
    for (const char* answer : {"what\n", "\n", "skip none\n", "rename\n"}) {
        QVERIFY2(terminal.WaitFor("for all that follow) "), terminal.Output().constData());
        terminal.Type(answer);
    }
    QCOMPARE(terminal.ExitCode(), 0);
    QVERIFY(Results().contains(QStringLiteral("1 (2).jpg")));
}

void tst_CliTerminal::endOfInputMeansSkipping()
{
    WriteTaken();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")));
    QVERIFY(terminal.WaitFor("for all that follow) "));
    terminal.Type("\x04");
    QCOMPARE(terminal.ExitCode(), 1);
    QVERIFY(terminal.Output().contains("No more input"));
    QCOMPARE(Results().size(), 3);
}

void tst_CliTerminal::stopEndsTheRun()
{
    WriteTaken();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")));
    QVERIFY(terminal.WaitFor("for all that follow) "));
    terminal.Type("stop\n");
    QCOMPARE(terminal.ExitCode(), 4);
    QVERIFY(terminal.Output().contains("Cancelled."));
}

void tst_CliTerminal::interruptCancels()
{
    WriteMany();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run many -o out --effect blur:sigma=5 --workers 1")));
    QVERIFY2(terminal.WaitFor("/s  "), terminal.Output().constData());
    terminal.Type("\x03");
    QCOMPARE(terminal.ExitCode(), 4);
    QVERIFY2(terminal.Output().contains("Cancelled."), terminal.Output().constData());
    QVERIFY(terminal.Output().contains("Not processed"));
    // Results are complete, and there are no other files.
    QVERIFY(!Results().isEmpty());
    for (const QString& result : Results()) {
        QVERIFY(QImage(Path(QStringLiteral("out/") + result)).size() == QSize(1500, 1000));
    }
    QVERIFY(QDir(root->path()).entryList({QStringLiteral("velkora-batch-*")}).isEmpty());
}

void tst_CliTerminal::secondInterruptEndsAtOnce()
{
    WriteMany();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run many -o out --effect blur:sigma=5 --workers 1")));
    QVERIFY2(terminal.WaitFor("/s  "), terminal.Output().constData());
    terminal.Type("\x03\x03");
    QCOMPARE(terminal.ExitCode(), 4);
}

void tst_CliTerminal::interruptDuringQuestion()
{
    WriteTaken();
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")));
    QVERIFY(terminal.WaitFor("for all that follow) "));
    terminal.Type("\x03");
    QCOMPARE(terminal.ExitCode(), 4);
    QVERIFY(terminal.Output().contains("Cancelled."));
}

// One file is skipped by an answer of its own, all others are renamed: a resumed run gives them the names of an
// undisturbed run.
void tst_CliTerminal::answersOutliveTheProgram()
{
    WriteTaken();
    for (const char* folder : {"a", "b", "c"}) {
        PictureFiles::WriteJpeg(Path(QLatin1String(folder) + QStringLiteral("/1.jpg")), folder[0], 3000, 2000);
    }
    {
        PseudoTerminal terminal(
            program, Arguments(QStringLiteral("run a b c -o out --effect blur:sigma=30 --workers 1 --verbose")));
        QVERIFY(terminal.WaitFor("for all that follow) "));
        terminal.Type("skip\n");
        QVERIFY(terminal.WaitFor("for all that follow) "));
        terminal.Type("rename all\n");
        QVERIFY2(terminal.WaitFor("holds for the rest of the run"), terminal.Output().constData());
        QCOMPARE(kill(pid_t(terminal.ProcessId()), SIGKILL), 0);
    }
    const CliRun rest = CliRun::Of(Arguments(QStringLiteral("run --resume -o out")), root->path());
    QVERIFY2(rest.exitCode == 1, rest.err.constData());
    QCOMPARE(Results(), QStringList({QStringLiteral("1 (2).jpg"), QStringLiteral("1 (3).jpg"), QStringLiteral("1.jpg"),
                                     QStringLiteral("2.jpg")}));
}

void tst_CliTerminal::dumbTerminal()
{
    qputenv("TERM", "dumb");
    PseudoTerminal terminal(program, Arguments(QStringLiteral("run photos -o out")));
    QCOMPARE(terminal.ExitCode(), 0);
    QVERIFY2(!terminal.Output().contains('\033'), terminal.Output().constData());
    QVERIFY2(terminal.Output().contains("[3/3] "), terminal.Output().constData());
}

QTEST_GUILESS_MAIN(tst_CliTerminal)
#include "tst_cliterminal.moc"
