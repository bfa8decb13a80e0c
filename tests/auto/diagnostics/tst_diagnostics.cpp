// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "DebugLines.h"
#include "ZTDiagnostics_p.h"

#include <QtTest>

class tst_Diagnostics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void logWritesSourceLineAndText();
    void logTakesItsOwnLine();
    void logKeepsPercentSignsAndOtherScripts();
    void passedAssertIsSilent();
    void failedAssertEndsTheProcess();
    void noHandlerStopsAFailedAssert();
    void loggedAssertGoesOn();
};

namespace {
constexpr ZTDiagnostics diagnostics("src\\private\\Example_p");
}

void tst_Diagnostics::logWritesSourceLineAndText()
{
    const DebugLines lines;
    diagnostics.Log(QStringLiteral("Wrong document."), 558);
    QCOMPARE(lines.All(), QStringList{QStringLiteral("[src\\private\\Example_p:558] Wrong document.")});
}

void tst_Diagnostics::logTakesItsOwnLine()
{
    const DebugLines lines;
    diagnostics.Log(QStringLiteral("here"));
    const int line = __LINE__ - 1;
    QCOMPARE(lines.All(), QStringList{QStringLiteral("[src\\private\\Example_p:%1] here").arg(line)});
}

void tst_Diagnostics::logKeepsPercentSignsAndOtherScripts()
{
    const DebugLines lines;
    diagnostics.Log(QStringLiteral("100 %s \u00e9\u6f22"), 1);
    QCOMPARE(lines.All(), QStringList{QStringLiteral("[src\\private\\Example_p:1] 100 %s \u00e9\u6f22")});
}

void tst_Diagnostics::passedAssertIsSilent()
{
    const DeathReport report = RunDeathCase(QStringLiteral("diagnostics-passed-assert"));
    QVERIFY(!report.aborted);
    QCOMPARE(report.output, QString());
}

void tst_Diagnostics::failedAssertEndsTheProcess()
{
    const DeathReport report = RunDeathCase(QStringLiteral("diagnostics-assert"));
    QCOMPARE(report.lastLine, QStringLiteral("[src\\private\\Example_p:42] Assert failed"));
    QVERIFY2(report.aborted, qPrintable(report.output));
}

void tst_Diagnostics::noHandlerStopsAFailedAssert()
{
    const DeathReport report = RunDeathCase(QStringLiteral("diagnostics-past-handlers"));
    QCOMPARE(report.lastLine, QStringLiteral("[src\\private\\Example_p:43] Assert failed"));
    QVERIFY2(report.aborted, qPrintable(report.output));
}

void tst_Diagnostics::loggedAssertGoesOn()
{
    const DeathReport report = RunDeathCase(QStringLiteral("diagnostics-logged-assert"));
    QCOMPARE(report.lastLine, QStringLiteral("[src\\private\\Example_p:45] Assert failed"));
    QVERIFY(!report.aborted);
}

QTEST_GUILESS_MAIN(tst_Diagnostics)
#include "tst_diagnostics.moc"
