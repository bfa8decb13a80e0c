// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProgressText.h"

#include "Console.h"

#include "hosts/common/DurationText.h"
#include "hosts/common/Language.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace BatchHost;

namespace BatchCli {

namespace {

/// The weight of a file beside its bytes: even an empty file takes time.
constexpr double bytesOfAnyFile = 64 * 1024;

constexpr int narrowestBar = 10;
constexpr int widestBar = 30;

double Weight(int files, qint64 bytes)
{
    return double(bytes) + bytesOfAnyFile * files;
}

QString Bar(double share, int width)
{
    const int filled = std::clamp(int(std::floor(share * width)), 0, width);
    return QLatin1Char('[') + QString(filled, QLatin1Char('#')) + QString(width - filled, QLatin1Char('.')) +
           QLatin1Char(']');
}

} // namespace

QString ProgressText(const Progress& progress, int columns)
{
    const double all = Weight(progress.files, progress.allBytes);
    const double done = Weight(progress.done, progress.bytesDone);
    const double doneNow = done - Weight(progress.earlierDone, progress.earlierBytes);
    const double share = all > 0 ? std::min(1.0, done / all) : 1.0;
    QString counts = QStringLiteral(" %1/%2").arg(progress.done).arg(progress.files);
    const int filesNow = progress.done - progress.earlierDone;
    if (filesNow > 0 && progress.seconds > 0) {
        counts += QStringLiteral("  ") + Messages::tr("%1/s").arg(filesNow / progress.seconds, 0, 'f', 1);
        counts += QStringLiteral("  ") +
                  Messages::tr("%1 left").arg(DurationText(progress.seconds * std::max(0.0, all - done) / doneNow));
    }
    const int room = columns - Terminal::WidthOf(counts) - 2;
    QString line =
        room < narrowestBar ? counts.mid(1) : Bar(share, std::clamp(room / 3, narrowestBar, widestBar)) + counts;
    QStringList names;
    for (const QString& path : progress.inWork) {
        names.append(QFileInfo(path).fileName());
    }
    constexpr int leastName = 12;
    const int left = columns - Terminal::WidthOf(line) - 2;
    if (!names.isEmpty() && left >= leastName) {
        line += QStringLiteral("  ") + Terminal::Shortened(names.join(QStringLiteral(", ")), left);
    }
    return Terminal::Shortened(line, columns);
}

} // namespace BatchCli
