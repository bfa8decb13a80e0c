// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"

#include <cmath>

namespace BatchWorker {

namespace {

bool KeepsFineColour(const QJsonObject& options)
{
    constexpr int fineFrom = 90;
    const QString wanted = ChoiceOption(options, "chromaSubsampling");
    const bool isFineByItself = IntegerOption(options, "quality") >= fineFrom || TruthOption(options, "lossless");
    return wanted == QLatin1String("4:4:4") || (wanted == QLatin1String("auto") && isFineByItself);
}

} // namespace

int IntegerOption(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toInt();
}

bool TruthOption(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toBool();
}

QString ChoiceOption(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toString();
}

VipsForeignSubsample Subsampling(const QJsonObject& options)
{
    return KeepsFineColour(options) ? VIPS_FOREIGN_SUBSAMPLE_OFF : VIPS_FOREIGN_SUBSAMPLE_ON;
}

int Effort(const QJsonObject& options, int least, int most)
{
    return least + int(std::lround(IntegerOption(options, "effort") * (most - least) / 9.0));
}

} // namespace BatchWorker
