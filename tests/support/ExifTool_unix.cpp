// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ExifTool.h"

#include <QProcess>
#include <QStandardPaths>

namespace {

QString Program()
{
    return QStandardPaths::findExecutable(QStringLiteral("exiftool"));
}

} // namespace

bool ExifTool::IsThere()
{
    return !Program().isEmpty();
}

std::optional<QByteArray> ExifTool::Run(const QStringList& arguments, const QString& path)
{
    constexpr int longest = 60'000; // ms
    QProcess process;
    process.start(Program(), arguments + QStringList{path});
    process.closeWriteChannel();
    process.waitForFinished(longest);
    const bool isDone = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? std::optional(process.readAllStandardOutput()) : std::nullopt;
}
