// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewTexts.h"

#include "hosts/common/Language.h"

#include <array>

using BatchHost::Messages;

namespace BatchDesktop {

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

QString FactsText(const PreviewPictures& pictures)
{
    if (pictures.inputSize.isEmpty() || pictures.inputBytes < 0) {
        return Messages::tr("%1 x %2 px, %3")
            .arg(pictures.size.width())
            .arg(pictures.size.height())
            .arg(ByteText(pictures.bytes));
    }
    return Messages::tr("%1 x %2 px, %3 -> %4 x %5 px, %6")
        .arg(pictures.inputSize.width())
        .arg(pictures.inputSize.height())
        .arg(ByteText(pictures.inputBytes))
        .arg(pictures.size.width())
        .arg(pictures.size.height())
        .arg(ByteText(pictures.bytes));
}

QString ExactnessText(const PreviewPictures& pictures)
{
    return Messages::tr("Exact: %1 of %2 bytes, as a run writes it; made in %3 s")
        .arg(pictures.format)
        .arg(pictures.bytes)
        .arg(pictures.seconds, 0, 'f', 1);
}

} // namespace BatchDesktop
