// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EngineScript.h"

namespace {

constexpr int patience = 300'000; // ms
constexpr int missingCode = 77;

} // namespace

EngineScript::EngineScript(const QString& name, const QStringList& arguments, const QProcessEnvironment& environment)
{
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ENGINES "/") + name, arguments);
    while (process.state() != QProcess::NotRunning && !process.canReadLine()) {
        if (!process.waitForReadyRead(patience)) {
            break;
        }
    }
    const QString answer = QString::fromUtf8(process.readLine()).trimmed();
    isReady = answer == QLatin1String("ready");
    if (!isReady) {
        process.closeWriteChannel();
        process.waitForFinished(patience);
        missing = process.exitCode() == missingCode ? answer : QString();
    }
}

EngineScript::~EngineScript()
{
    process.closeWriteChannel();
    process.waitForFinished(patience);
}

void EngineScript::Tell(const QByteArray& line)
{
    process.write(line + '\n');
    process.waitForBytesWritten(patience);
}
