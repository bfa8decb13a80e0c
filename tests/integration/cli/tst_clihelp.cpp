// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#ifdef Q_OS_UNIX
#include "PseudoTerminal.h"
#endif

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/options/Examples.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

using namespace BatchCli;

/// The help texts: their width, their words, their examples.
class tst_CliHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesFit_data();
    void linesFit();
    void linesFitTheTerminal_data();
    void linesFitTheTerminal();
    void everyWordIsListed();
    void everyCommandHasExamples();
    void examplesAreAccepted_data();
    void examplesAreAccepted();
};

namespace {

/// The width of the longest line that is no example, which may be copied and is never wrapped.
int LongestLine(const QString& help)
{
    int longest = 0;
    for (const QString& line : help.split(QRegularExpression(QStringLiteral("\r?\n")))) {
        if (!line.startsWith(QLatin1String("    velkora-batch "))) {
            longest = std::max(longest, line.size());
        }
    }
    return longest;
}

QString HelpOf(const QString& command)
{
    return QString::fromUtf8(CliRun::Of({command, QStringLiteral("--help")}).out);
}

} // namespace

void tst_CliHelp::linesFit_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("program") << QStringList{QStringLiteral("--help")};
    for (const CommandInfo& command : Commands()) {
        QTest::newRow(qPrintable(command.name)) << QStringList{command.name, QStringLiteral("--help")};
    }
}

void tst_CliHelp::linesFit()
{
    QFETCH(QStringList, arguments);
    const CliRun help = CliRun::Of(arguments);
    QCOMPARE(help.exitCode, 0);
    QVERIFY2(LongestLine(QString::fromUtf8(help.out)) <= 80, help.out.constData());
}

void tst_CliHelp::linesFitTheTerminal_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("fewest");
    QTest::addColumn<int>("most");
    QTest::newRow("wide") << 95 << 85 << 95;
    QTest::newRow("usual") << 80 << 70 << 80;
    QTest::newRow("narrow") << 50 << 40 << 50;
    QTest::newRow("wider than anyone reads") << 400 << 90 << 100;
    QTest::newRow("narrower than a word") << 10 << 30 << 42;
}

void tst_CliHelp::linesFitTheTerminal()
{
#ifdef Q_OS_UNIX
    QFETCH(int, columns);
    QFETCH(int, fewest);
    QFETCH(int, most);
    PseudoTerminal terminal(QStringLiteral(VELKORA_BATCH), {QStringLiteral("run"), QStringLiteral("--help")}, columns);
    QCOMPARE(terminal.ExitCode(), 0);
    const int longest = LongestLine(QString::fromUtf8(terminal.Output()));
    QVERIFY2(longest >= fewest && longest <= most, qPrintable(QString::number(longest)));
#else
    QSKIP("A console would be needed.");
#endif
}

void tst_CliHelp::everyWordIsListed()
{
    static const QRegularExpression blank(QStringLiteral("\\s+"));
    for (const CommandInfo& command : Commands()) {
        // An entry goes from its name to the name of the next one, which begins a line.
        const QString help = HelpOf(command.name);
        for (const OptionInfo& option : command.options) {
            const QRegularExpression entry(
                QStringLiteral("\n +(?:-\\w, )?%1 .*?(?=\n +(?:-\\w, )?--|\n\n|$)").arg(option.name),
                QRegularExpression::DotMatchesEverythingOption);
            const QString text = entry.match(help).captured().replace(blank, QStringLiteral(" "));
            QVERIFY2(!text.isEmpty(), qPrintable(option.name));
            for (const QString& word : option.words) {
                QVERIFY2(text.contains(word),
                         qPrintable(command.name + QLatin1Char(' ') + option.name + QLatin1Char(' ') + word));
            }
        }
    }
}

void tst_CliHelp::everyCommandHasExamples()
{
    for (const char* command : {"run", "watch", "create", "show", "plan", "effects", "formats"}) {
        const QString help = HelpOf(QLatin1String(command));
        QVERIFY2(help.contains(QStringLiteral("\nExamples:\n")), command);
        QVERIFY2(help.section(QStringLiteral("\nExamples:\n"), 1)
                     .contains(QStringLiteral("    velkora-batch %1 ").arg(QLatin1String(command))),
                 command);
    }
    QVERIFY(QString::fromUtf8(CliRun::Of({QStringLiteral("--help")}).out).contains(QStringLiteral("\nExamples:\n")));
}

void tst_CliHelp::examplesAreAccepted_data()
{
    QTest::addColumn<QString>("line");
    for (const Example& example : ExamplesOf()) {
        QTest::newRow(qPrintable(example.text)) << example.line;
    }
}

void tst_CliHelp::examplesAreAccepted()
{
    QFETCH(QString, line);
    QStringList arguments = QProcess::splitCommand(line);
    QCOMPARE(arguments.takeFirst(), QStringLiteral("velkora-batch"));
    const ParsedArguments parsed = ParseArguments(arguments); // It throws what it refuses.
    QCOMPARE(parsed.command, arguments.first());
    QVERIFY(parsed.message.isEmpty());
}

QTEST_GUILESS_MAIN(tst_CliHelp)
#include "tst_clihelp.moc"
