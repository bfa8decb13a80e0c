#include "ProgressText.h"

#include "Console.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace BatchCli {

namespace {

/// What a file counts beside its bytes: opening and naming it takes time even when it is empty.
constexpr double bytesOfAnyFile = 64 * 1024;

constexpr int narrowestBar = 10;
constexpr int widestBar = 30;

double Share(const Progress& progress)
{
    const double all = double(progress.allBytes) + bytesOfAnyFile * progress.files;
    const double done = double(progress.bytesDone) + bytesOfAnyFile * progress.done;
    return all > 0 ? std::min(1.0, done / all) : 1.0;
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
    const double share = Share(progress);
    QString counts = QStringLiteral(" %1/%2").arg(progress.done).arg(progress.files);
    if (progress.done > 0 && progress.seconds > 0) {
        counts += QStringLiteral("  %1/s").arg(progress.done / progress.seconds, 0, 'f', 1);
        counts += QStringLiteral("  %1 left").arg(DurationText(progress.seconds * (1 - share) / share));
    }
    const int room = columns - counts.size() - 2;
    QString line =
        room < narrowestBar ? counts.mid(1) : Bar(share, std::clamp(room / 3, narrowestBar, widestBar)) + counts;
    QStringList names;
    for (const QString& path : progress.inWork) {
        names.append(QFileInfo(path).fileName());
    }
    constexpr int leastName = 12;
    const int left = columns - line.size() - 2;
    if (!names.isEmpty() && left >= leastName) {
        line += QStringLiteral("  ") + Terminal::Shortened(names.join(QStringLiteral(", ")), left);
    }
    return Terminal::Shortened(line, columns);
}

QString DurationText(double seconds)
{
    constexpr int minute = 60;
    constexpr int hour = 3600;
    const auto whole = qint64(std::ceil(seconds));
    const QString tail = QStringLiteral("%1").arg(whole % minute, 2, 10, QLatin1Char('0'));
    if (whole < hour) {
        return QStringLiteral("%1:%2").arg(whole / minute).arg(tail);
    }
    return QStringLiteral("%1:%2:%3").arg(whole / hour).arg(whole % hour / minute, 2, 10, QLatin1Char('0')).arg(tail);
}

} // namespace BatchCli
