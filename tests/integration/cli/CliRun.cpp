// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"

#include <QProcess>

CliRun CliRun::OfProgram(const QString& program, const QStringList& arguments, const QString& folder,
                         const QProcessEnvironment& environment)
{
    constexpr int limit = 120'000;
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.closeWriteChannel();
    CliRun run;
    if (process.waitForFinished(limit) && process.exitStatus() == QProcess::NormalExit) {
        run.exitCode = process.exitCode();
    }
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

CliRun CliRun::Of(const QStringList& arguments, const QString& folder, const QProcessEnvironment& environment)
{
    return OfProgram(QStringLiteral(VELKORA_BATCH), arguments, folder, environment);
}
