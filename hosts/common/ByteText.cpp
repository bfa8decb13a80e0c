// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteText.h"

#include "Language.h"

#include <array>

namespace BatchHost {

QString ByteText(qint64 bytes)
{
    constexpr double step = 1000;
    if (bytes < qint64(step)) {
        return bytes == 1 ? Messages::tr("1 byte") : Messages::tr("%1 bytes").arg(bytes);
    }
    const std::array units{Messages::tr("%1 kB"), Messages::tr("%1 MB"), Messages::tr("%1 GB"), Messages::tr("%1 TB")};
    constexpr double roundedUp = 999.5;
    double number = double(bytes) / step;
    std::size_t unit = 0;
    while (number >= roundedUp && unit + 1 < units.size()) {
        number /= step;
        ++unit;
    }
    constexpr double twoDigits = 9.95;
    return units[unit].arg(number, 0, 'f', number < twoDigits ? 1 : 0);
}

} // namespace BatchHost
