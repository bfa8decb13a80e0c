// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WatermarkPlacement.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

OverlaySpan SpanOf(int whole, int length, int margin, bool isAtStart, bool isAtEnd, bool isTiled)
{
    const int start = isAtStart ? margin : isAtEnd ? whole - length - margin : (whole - length) / 2;
    return {start, length, isTiled ? length + margin : 0};
}

} // namespace

double LengthIn(const QJsonObject& parameters, const char* name, double whole)
{
    const double length = parameters[QLatin1String(name)].toDouble();
    return parameters[QLatin1String("unit")].toString() == QLatin1String("percent") ? length * whole / 100.0 : length;
}

Picture Watermarked(const Picture& picture, const Overlay& mark, const QJsonObject& parameters)
{
    const int margin =
        static_cast<int>(std::lround(LengthIn(parameters, "margin", std::min(picture.width(), picture.height()))));
    const QString position = parameters[QLatin1String("position")].toString();
    const auto isAt = [&position](const char* side) { return position.contains(QLatin1String(side)); };
    const bool isTiled = parameters[QLatin1String("tile")].toBool();
    return Overlaid(picture, mark,
                    {SpanOf(picture.width(), mark.width, margin, isAt("left"), isAt("right"), isTiled),
                     SpanOf(picture.height(), mark.height, margin, isAt("top"), isAt("bottom"), isTiled),
                     parameters[QLatin1String("opacity")].toDouble() / 100.0});
}

} // namespace BatchWorker
