// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "HeldRun.h"

#include <QFileInfo>
#include <QtTest>

#ifdef Q_OS_WIN
constexpr int codeOfOtherRun = 3; // There is one pipe.
#else
constexpr int codeOfOtherRun = 0;
#endif

/// Several runs that were interrupted in one output folder.
class tst_CliInterrupted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void severalRunsAreListed();
    void chosenRunsAreResumed();
    void wrongNamesAreExplained_data();
    void wrongNamesAreExplained();
    void nameOfTheOnlyRun();
    void newJobsTellOfOldRuns();
    void runsThatGoOnAreNotInterrupted();

private:
    void Interrupt(const QString& inputs) const;
    QStringList ListedNames(const CliRun& run) const;

    std::unique_ptr<CliStage> stage;
};

void tst_CliInterrupted::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    for (const char* name : {"a/1.jpg", "a/2.jpg", "b/3.jpg", "c/4.jpg"}) {
        stage->Write(QLatin1String(name), name);
    }
}

/// Interrupts a run: without a worker it can only be resumed.
void tst_CliInterrupted::Interrupt(const QString& inputs) const
{
    const CliRun run = stage->Run(QStringLiteral("run %1 -o out --format jpeg").arg(inputs));
    QVERIFY2(run.exitCode == 3, run.err.constData());
}

QStringList tst_CliInterrupted::ListedNames(const CliRun& run) const
{
    static const QRegularExpression line(QStringLiteral("^    ([0-9a-f]{8})  "), QRegularExpression::MultilineOption);
    QStringList names;
    for (auto matches = line.globalMatch(run.Err()); matches.hasNext();) {
        names.append(matches.next().captured(1));
    }
    return names;
}

void tst_CliInterrupted::severalRunsAreListed()
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    Interrupt(QStringLiteral("a"));
    Interrupt(QStringLiteral("b"));
    const CliRun run = stage->Run(QStringLiteral("run --resume -o out"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("2 runs were interrupted in "), run.err.constData());
    QVERIFY2(run.err.contains("--run NAME"), run.err.constData());
    QCOMPARE(ListedNames(run).size(), 2);
    const QStringList lines = run.Err().split(QLatin1Char('\n')).filter(QStringLiteral(" picture"));
    QCOMPARE(lines.size(), 2);
    // The oldest first.
    QVERIFY2(lines.first().endsWith(QStringLiteral("  0 of 2 pictures  ") + stage->Path(QStringLiteral("a"))),
             run.err.constData());
    QVERIFY2(lines.last().endsWith(QStringLiteral("  0 of 1 picture  ") + stage->Path(QStringLiteral("b"))),
             run.err.constData());
    const QDateTime begun =
        QDateTime::fromString(lines.first().section(QStringLiteral("  "), 3, 3), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    QVERIFY2(begun >= before.addSecs(-1) && begun <= QDateTime::currentDateTime(), run.err.constData());
}

void tst_CliInterrupted::chosenRunsAreResumed()
{
    Interrupt(QStringLiteral("a"));
    Interrupt(QStringLiteral("b"));
    const QStringList names = ListedNames(stage->Run(QStringLiteral("run --resume -o out")));
    QCOMPARE(names.size(), 2);
    stage->PlaceWorker();
    // The given job is not the one of that name.
    const CliRun other = stage->Run(QStringLiteral("run a --format jpeg --resume -o out --run ") + names.last());
    QVERIFY2(other.exitCode == 2 && other.err.contains(" is of another job: "), other.err.constData());
    const CliRun second = stage->Run(QStringLiteral("run --resume -o out --run ") + names.last());
    QVERIFY2(second.exitCode == 0, second.err.constData());
    QVERIFY(QFileInfo::exists(stage->Path(QStringLiteral("out/3.jpg"))));
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out/1.jpg"))));
    // Only one is left.
    const CliRun first = stage->Run(QStringLiteral("run --resume -o out"));
    QVERIFY2(first.exitCode == 0, first.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")),
             QStringList({QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("3.jpg")}));
}

void tst_CliInterrupted::wrongNamesAreExplained_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("unknown") << QStringLiteral("run --resume -o out --run nothing")
                             << QStringLiteral("no run in %1 is called \"nothing\"");
    QTest::newRow("without resume") << QStringLiteral("run a -o out --run x") << QStringLiteral("--run needs --resume");
    QTest::newRow("empty") << QStringLiteral("run --resume -o out --run=") << QStringLiteral("--run");
}

void tst_CliInterrupted::wrongNamesAreExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    Interrupt(QStringLiteral("a"));
    Interrupt(QStringLiteral("b"));
    const CliRun run = stage->Run(arguments);
    QVERIFY2(run.exitCode == 2, run.err.constData());
    QVERIFY2(
        run.Err().contains(wanted.contains(QLatin1Char('%')) ? wanted.arg(stage->Path(QStringLiteral("out"))) : wanted),
        run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")).filter(QRegularExpression(QStringLiteral("journal$"))).size(), 2);
}

void tst_CliInterrupted::nameOfTheOnlyRun()
{
    Interrupt(QStringLiteral("a"));
    const CliRun wrong = stage->Run(QStringLiteral("run --resume -o out --run nothing"));
    QCOMPARE(wrong.exitCode, 2);
    QCOMPARE(ListedNames(wrong).size(), 1);
    stage->PlaceWorker();
    const CliRun right = stage->Run(QStringLiteral("run --resume -o out --run ") + ListedNames(wrong).value(0));
    QVERIFY2(right.exitCode == 0, right.err.constData());
}

void tst_CliInterrupted::newJobsTellOfOldRuns()
{
    const QByteArray told = "can still be resumed: velkora-batch run --resume -o ";
    Interrupt(QStringLiteral("a"));
    const CliRun second = stage->Run(QStringLiteral("run b -o out --format jpeg"));
    QVERIFY2(second.err.contains("1 other run was interrupted in ") && second.err.contains(told),
             second.err.constData());
    const CliRun third = stage->Run(QStringLiteral("run c -o out --format jpeg"));
    QVERIFY2(third.err.contains("2 other runs were interrupted in ") && third.err.contains(told),
             third.err.constData());
    // The same job again replaces its own run, and tells that as before.
    const CliRun again = stage->Run(QStringLiteral("run c -o out --format jpeg"));
    QVERIFY2(again.err.contains("an earlier run of this job was interrupted"), again.err.constData());
    QVERIFY2(again.err.contains("2 other runs were interrupted in "), again.err.constData());
    const CliRun quiet = stage->Run(QStringLiteral("run c -o out --format jpeg --quiet"));
    QVERIFY2(!quiet.err.contains("other runs"), quiet.err.constData());
    const CliRun elsewhere = stage->Run(QStringLiteral("run c -o elsewhere --format jpeg"));
    QVERIFY2(!elsewhere.err.contains("other run"), elsewhere.err.constData());
}

void tst_CliInterrupted::runsThatGoOnAreNotInterrupted()
{
    stage->PlaceWorker();
    stage->Write(QStringLiteral("a/1.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    HeldRun held(*stage, QStringLiteral("run a -o out --format jpeg"));
    QVERIFY(held.WaitFor("\"event\":\"begin\""));
    const CliRun other = stage->Run(QStringLiteral("run b -o out --format jpeg"));
    QVERIFY2(other.exitCode == codeOfOtherRun && !other.err.contains("was interrupted"), other.err.constData());
    for (const char* arguments : {"run a -o out --format jpeg", "run --resume -o out"}) {
        const CliRun same = stage->Run(QLatin1String(arguments));
        QVERIFY2(same.exitCode == 6, same.err.constData());
        QVERIFY2(same.err.contains(" running"), same.err.constData());
    }
    stage->Write(QStringLiteral("gate"), {});
    QCOMPARE(held.End(), 0);
}

QTEST_GUILESS_MAIN(tst_CliInterrupted)
#include "tst_cliinterrupted.moc"
