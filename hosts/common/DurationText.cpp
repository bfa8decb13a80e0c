// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DurationText.h"

#include <cmath>

namespace BatchHost {

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

} // namespace BatchHost
