// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "ConsoleProcess.h"

#include <QtTest>

/// Runs at a Windows console, with a user who watches, answers and interrupts.
class tst_CliConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void progressIsOneLine();
    void noColour();
    void questionsAreAsked_data();
    void questionsAreAsked();
    void wrongAnswersAreAskedAgain();
    void stopEndsTheRun();
    void interruptCancels();
    void interruptDuringQuestion();

private:
    std::unique_ptr<ConsoleProcess> Start(const QString& arguments) const
    {
        return std::make_unique<ConsoleProcess>(stage->Program(), stage->Arguments(arguments), stage->Folder());
    }
    /// The files in the output folder, without the journal of a run that can be resumed.
    QStringList Results() const { return stage->Names(QStringLiteral("out")).filter(QStringLiteral(".jpg")); }

    std::unique_ptr<CliStage> stage;
};

namespace {

const QString question = QStringLiteral("for all that follow)");

} // namespace

void tst_CliConsole::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    for (const QString& name : {QStringLiteral("PATH"), QStringLiteral("VELKORA_BATCH_WORKERS")}) {
        qputenv(name.toLatin1().constData(), stage->Environment().value(name).toLocal8Bit());
    }
    qunsetenv("NO_COLOR");
    qunsetenv("TERM");
    for (const char* name : {"1", "2", "3"}) {
        stage->Write(QStringLiteral("photos/%1.jpg").arg(QLatin1String(name)), name);
    }
}

void tst_CliConsole::progressIsOneLine()
{
    const QString gate = stage->Path(QStringLiteral("gate"));
    stage->Write(QStringLiteral("photos/2.jpg"), "wait " + gate.toUtf8());
    stage->Write(QStringLiteral("photos/3.jpg"), "wait " + gate.toUtf8());
    const auto console = Start(QStringLiteral("run photos -o out --format jpeg"));
    QVERIFY2(console->WaitFor(QStringLiteral("] 1/3 ")), qUtf8Printable(console->Screen()));
    QVERIFY(console->InterpretsSequences());
    const QStringList rows = console->Rows();
    QVERIFY2(rows.filter(QStringLiteral("/3 ")).size() == 1, qUtf8Printable(rows.join(QLatin1Char('\n'))));
    stage->Write(QStringLiteral("gate"), {});
    QCOMPARE(console->ExitCode(), 0);
    QVERIFY2(console->HasColour(QStringLiteral("Written"), 32), qUtf8Printable(console->Screen()));
    QVERIFY2(!console->Screen().contains(QStringLiteral("nobody can be asked")), qUtf8Printable(console->Screen()));
    // The mode of the console is restored.
    QVERIFY(!console->InterpretsSequences());
    QCOMPARE(Results().size(), 3);
}

void tst_CliConsole::noColour()
{
    qputenv("NO_COLOR", "1");
    const auto console = Start(QStringLiteral("run photos -o out --format jpeg"));
    QCOMPARE(console->ExitCode(), 0);
    QVERIFY2(console->WaitFor(QStringLiteral("Written")), qUtf8Printable(console->Screen()));
    QVERIFY2(!console->HasColour(QStringLiteral("Written"), 32), qUtf8Printable(console->Screen()));
}

void tst_CliConsole::questionsAreAsked_data()
{
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<int>("results");
    QTest::newRow("this file") << QStringList{QStringLiteral("rename"), QStringLiteral("skip")} << 1 << 4;
    QTest::newRow("all, short") << QStringList{QStringLiteral("R a")} << 0 << 5;
}

void tst_CliConsole::questionsAreAsked()
{
    QFETCH(QStringList, answers);
    QFETCH(int, exitCode);
    QFETCH(int, results);
    stage->Write(QStringLiteral("out/1.jpg"), "old");
    stage->Write(QStringLiteral("out/2.jpg"), "old");
    const auto console = Start(QStringLiteral("run photos -o out --format jpeg"));
    for (int i = 0; i < answers.size(); ++i) {
        QVERIFY2(console->WaitFor(question, i + 1), qUtf8Printable(console->Screen()));
        console->Type(answers.at(i));
    }
    QCOMPARE(console->ExitCode(), exitCode);
    QCOMPARE(console->Screen().count(question), answers.size());
    QCOMPARE(Results().size(), results);
}

void tst_CliConsole::wrongAnswersAreAskedAgain()
{
    stage->Write(QStringLiteral("out/1.jpg"), "old");
    const auto console = Start(QStringLiteral("run photos/1.jpg -o out --format jpeg"));
    int asked = 0;
    for (const char* answer : {"what", "", "skip none", "rename"}) {
        QVERIFY2(console->WaitFor(question, ++asked), qUtf8Printable(console->Screen()));
        console->Type(QString::fromLatin1(answer));
    }
    QCOMPARE(console->ExitCode(), 0);
    QVERIFY(Results().contains(QStringLiteral("1 (2).jpg")));
}

void tst_CliConsole::stopEndsTheRun()
{
    stage->Write(QStringLiteral("out/1.jpg"), "old");
    const auto console = Start(QStringLiteral("run photos -o out --format jpeg"));
    QVERIFY2(console->WaitFor(question), qUtf8Printable(console->Screen()));
    console->Type(QStringLiteral("stop"));
    QCOMPARE(console->ExitCode(), 4);
    QVERIFY2(console->Screen().contains(QStringLiteral("Cancelled.")), qUtf8Printable(console->Screen()));
}

void tst_CliConsole::interruptCancels()
{
    stage->Write(QStringLiteral("photos/2.jpg"), "hang");
    stage->Write(QStringLiteral("photos/3.jpg"), "hang");
    const auto console = Start(QStringLiteral("run photos -o out --format jpeg"));
    QVERIFY2(console->WaitFor(QStringLiteral("] 1/3 ")), qUtf8Printable(console->Screen()));
    ConsoleProcess::PressCtrlC();
    QCOMPARE(console->ExitCode(), 4);
    QVERIFY2(console->Screen().contains(QStringLiteral("Cancelled.")), qUtf8Printable(console->Screen()));
    QVERIFY2(console->Screen().contains(QStringLiteral("Not processed")), qUtf8Printable(console->Screen()));
    // The server was asked to end, not ended by the console: it has removed its unfinished files.
    QVERIFY2(!console->Screen().contains(QStringLiteral("ended unexpectedly")), qUtf8Printable(console->Screen()));
    QCOMPARE(Results(), QStringList{QStringLiteral("1.jpg")});
    QVERIFY(stage->Names(QStringLiteral("out")).filter(QStringLiteral(".tmp")).isEmpty());
}

void tst_CliConsole::interruptDuringQuestion()
{
    stage->Write(QStringLiteral("out/1.jpg"), "old");
    const auto console = Start(QStringLiteral("run photos -o out --format jpeg"));
    QVERIFY2(console->WaitFor(question), qUtf8Printable(console->Screen()));
    ConsoleProcess::PressCtrlC();
    QCOMPARE(console->ExitCode(), 4);
    QVERIFY2(console->Screen().contains(QStringLiteral("Cancelled.")), qUtf8Printable(console->Screen()));
}

QTEST_GUILESS_MAIN(tst_CliConsole)
#include "tst_cliconsole.moc"
