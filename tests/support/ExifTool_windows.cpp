// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ExifTool.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

namespace {

// The system on which Wine runs. Wine starts its programs, but can neither wait for them nor pass their output on, so a
// shell writes files. Relative paths are the same on both sides.
const QString shell = QStringLiteral("Z:/bin/sh");

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
}

} // namespace

bool ExifTool::IsThere()
{
    return QFile::exists(shell) && QFile::exists(QStringLiteral("Z:/usr/bin/exiftool"));
}

std::optional<QByteArray> ExifTool::Run(const QStringList& arguments, const QString& path)
{
    constexpr int longest = 60'000; // ms
    constexpr int interval = 20;    // ms
    const QTemporaryDir exchange;
    QFile list(exchange.filePath(QStringLiteral("arguments")));
    const QStringList all = arguments + QStringList{QDir(exchange.path()).relativeFilePath(path)};
    if (!list.open(QIODevice::WriteOnly) || list.write(all.join(QLatin1Char('\n')).toUtf8()) < 0) {
        return std::nullopt;
    }
    list.close();
    const QString script = QStringLiteral("/usr/bin/exiftool -@ arguments > output; echo $? > part; mv part code");
    if (!QProcess::startDetached(shell, {QStringLiteral("-c"), script}, exchange.path())) {
        return std::nullopt;
    }
    const QString code = exchange.filePath(QStringLiteral("code"));
    QElapsedTimer time;
    time.start();
    while (!QFile::exists(code) && time.elapsed() < longest) {
        QThread::msleep(interval);
    }
    return ContentOf(code) == "0\n" ? std::optional(ContentOf(exchange.filePath(QStringLiteral("output"))))
                                    : std::nullopt;
}
