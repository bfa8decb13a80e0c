// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"

#include "ProcessEnd.h"
#include "ProgramFiles.h"

#include <QMap>
#include <QProcess>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

/// The helper's exit code when std::terminate is called; no runtime or sanitizer uses it.
constexpr int terminatedExitCode = 83;
constexpr int survivedExitCode = 84;
constexpr int unknownCaseExitCode = 85;

QMap<QString, DeathCase::Function>& Cases()
{
    static QMap<QString, DeathCase::Function> cases;
    return cases;
}

void WriteLine(QtMsgType, const QMessageLogContext&, const QString& text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    std::fflush(stderr);
}

[[noreturn]] void EndQuietly()
{
    EndAtOnce(terminatedExitCode);
}

} // namespace

DeathCase::DeathCase(const char* name, Function function)
{
    Cases().insert(QString::fromUtf8(name), function);
}

int RunDeathCases(int argc, char** argv)
{
    CrashQuietly();
    qInstallMessageHandler(WriteLine);
    // The runtime's own handler would write another line after ours.
    std::set_terminate(EndQuietly);

    const QString name = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    const DeathCase::Function function = Cases().value(name);
    if (!function) {
        std::fprintf(stderr, "There is no case \"%s\".\n", qUtf8Printable(name));
        return unknownCaseExitCode;
    }
    function();
    return survivedExitCode;
}

bool IsFailedAssert(const QString& line, const QString& source)
{
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("\\[%1:[1-9][0-9]*\\] Assert failed").arg(QRegularExpression::escape(source))));
    return pattern.match(line).hasMatch();
}

DeathReport RunDeathCase(const QString& name)
{
    QProcess helper;
    helper.setProcessChannelMode(QProcess::MergedChannels);
    helper.start(BuiltProgram(QStringLiteral("deaths")), {name});
    const bool finished = helper.waitForFinished(30000);

    DeathReport report;
    report.output = QString::fromLocal8Bit(helper.readAll());
    report.lastLine = report.output.trimmed().section(QLatin1Char('\n'), -1).trimmed();
    report.aborted = finished && helper.exitStatus() == QProcess::NormalExit && helper.exitCode() == terminatedExitCode;
    return report;
}
