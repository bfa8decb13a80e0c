// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteLimit.h"

#include "FormatOptions.h"

#include "job/values/Phrase.h"

#include <algorithm>

namespace BatchJob {

namespace {

int Number(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toInt();
}

bool HasLimit(const QJsonObject& options)
{
    return options[QLatin1String("maxBytes")].isDouble();
}

} // namespace

std::optional<ByteLimit> ByteLimit::Of(const QJsonObject& complete)
{
    const int quality = QualityUsed(complete);
    if (!HasLimit(complete) || quality == 0) {
        return std::nullopt;
    }
    // In a job with the format "Original", one quality for all formats meets the defaults of each.
    const int leastQuality = std::min(Number(complete, "minQuality"), quality);
    return ByteLimit{Number(complete, "maxBytes"), quality, leastQuality,
                     complete[QLatin1String("mayShrink")].toBool()};
}

QString ByteLimitError(const QJsonObject& checked)
{
    if (!HasLimit(checked)) {
        return {};
    }
    if (checked[QLatin1String("lossless")].toBool()) {
        return Phrase::English("\"maxBytes\" lowers the quality, and \"lossless\" has none");
    }
    const int quality = Number(checked, "quality");
    const int leastQuality = Number(checked, "minQuality");
    return quality > 0 && leastQuality > quality
               ? Phrase::English("\"minQuality\" is %1, above \"quality\", which is %2").arg(leastQuality).arg(quality)
               : QString();
}

} // namespace BatchJob
