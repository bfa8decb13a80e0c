// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "job/effects/MonotoneCurve.h"
#include "server/worker/pixels/PixelFilter.h"

#include <QJsonArray>

namespace BatchWorker {

namespace {

/// In fractions of the range.
QVector<QPointF> KnotsOf(const QJsonArray& points)
{
    constexpr double percent = 100.0;
    QVector<QPointF> knots;
    for (const QJsonValue& value : points) {
        const QJsonArray point = value.toArray();
        knots.append({point[0].toDouble() / percent, point[1].toDouble() / percent});
    }
    return knots;
}

} // namespace

// A curve of one channel leaves a grey picture as it is.
Picture ApplyCurve(const Picture& picture, const QJsonObject& parameters)
{
    const QJsonArray points = parameters[QLatin1String("points")].toArray();
    const QString channel = parameters[QLatin1String("channel")].toString();
    const bool isNeutral = points == QJsonArray{QJsonArray{0, 0}, QJsonArray{100, 100}};
    const bool isForAll = channel == QLatin1String("all");
    if (isNeutral || (!isForAll && ColourBands(picture) == 1)) {
        return picture;
    }
    const BatchJob::MonotoneCurve curve(KnotsOf(points));
    const ValueFunction mapped = [curve](double value) { return curve.At(value); };
    if (isForAll) {
        return MapValues(picture, mapped);
    }
    std::array<ValueFunction, 3> functions;
    functions.fill([](double value) { return value; });
    functions[channel == QLatin1String("red") ? 0 : channel == QLatin1String("green") ? 1 : 2] = mapped;
    return MapValues(picture, functions);
}

} // namespace BatchWorker
