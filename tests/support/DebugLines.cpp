// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DebugLines.h"

#include <QMutex>
#include <QMutexLocker>

#include <algorithm>

namespace {

QMutex linesLock;
QStringList lines;

void Collect(QtMsgType, const QMessageLogContext&, const QString& text)
{
    const QMutexLocker locker(&linesLock);
    lines.append(text);
}

} // namespace

DebugLines::DebugLines()
{
    Clear();
    previousHandler = qInstallMessageHandler(Collect);
}

DebugLines::~DebugLines()
{
    qInstallMessageHandler(previousHandler);
}

QStringList DebugLines::All() const
{
    const QMutexLocker locker(&linesLock);
    return lines;
}

QStringList DebugLines::TextsFrom(const QString& source) const
{
    const QString start = QLatin1Char('[') + source + QLatin1Char(':');
    QStringList texts;
    for (const QString& line : All()) {
        if (line.startsWith(start)) {
            texts.append(line.mid(line.indexOf(QLatin1String("] ")) + 2));
        }
    }
    return texts;
}

int DebugLines::CountEndingWith(const QString& text) const
{
    const QStringList all = All();
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&text](const QString& line) { return line.endsWith(text); }));
}

void DebugLines::Clear()
{
    const QMutexLocker locker(&linesLock);
    lines.clear();
}
