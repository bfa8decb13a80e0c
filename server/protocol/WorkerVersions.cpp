// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerVersions.h"

#include "ChildProcess.h"

#include "job/values/Phrase.h"
#include "job/values/VisibleText.h"

using namespace BatchJob;

namespace BatchProtocol {

namespace {

constexpr int patience = 30'000; // ms
constexpr int mostBytes = 64 << 10;
constexpr int mostLines = 100;
constexpr int longestLine = 200;

} // namespace

QByteArray LinesOf(const Versions& versions)
{
    QByteArray lines;
    for (auto it = versions.begin(); it != versions.end(); ++it) {
        lines += it.key().toUtf8() + ' ' + it.value().toUtf8() + '\n';
    }
    return lines;
}

Versions VersionsIn(const QByteArray& lines)
{
    Versions versions;
    const QByteArrayList all = lines.left(mostBytes).split('\n').mid(0, mostLines);
    for (const QByteArray& line : all) {
        const int space = line.indexOf(' ');
        if (space > 0 && space < line.size() - 1 && line.size() <= longestLine) {
            versions.insert(VisibleText(QString::fromUtf8(line.left(space))),
                            VisibleText(QString::fromUtf8(line.mid(space + 1))));
        }
    }
    return versions;
}

std::optional<Versions> VersionsOfWorker(const QString& program, QString& problem)
{
    ChildProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardInputFile(QProcess::nullDevice());
    process.Launch(program, {QLatin1String(versionsArgument)});
    if (!process.waitForStarted(patience)) {
        problem = process.errorString();
        return std::nullopt;
    }
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(patience);
        problem = Phrase::English("it does not answer");
        return std::nullopt;
    }
    const Versions versions = VersionsIn(process.readAllStandardOutput());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 || versions.isEmpty()) {
        problem = Phrase::English("it does not say them");
        return std::nullopt;
    }
    return versions;
}

} // namespace BatchProtocol
