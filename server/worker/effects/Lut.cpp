// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CubeColours.h"
#include "EffectFunctions.h"

#include "job/effects/CubeFile.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutex>

#include <memory>

using namespace BatchJob;

namespace BatchWorker {

namespace {

// A run uses one table for all its pictures: the last one read is cached until its file changes.
SharedCube TableAt(const QString& path)
{
    static QMutex mutex;
    static QString lastPath;
    static QDateTime lastTime;
    static qint64 lastSize = 0;
    static SharedCube last;

    const QMutexLocker lock(&mutex);
    const QFileInfo info(path);
    if (!last || lastPath != path || lastTime != info.lastModified() || lastSize != info.size()) {
        CubeFile file = ReadCubeFile(path);
        if (!file.IsValid()) {
            throw ProcessingFailed(file.error);
        }
        file.table.values.push_back(0.0F); // Trilinear() and Tetrahedral() need it.
        last = std::make_shared<const CubeTable>(std::move(file.table));
        lastPath = path;
        lastTime = info.lastModified();
        lastSize = info.size();
    }
    return last;
}

ValueTables CurvesOf(const Picture& picture, const CubeTable& table, double strength)
{
    std::array<ValueFunction, 3> functions;
    for (std::size_t channel = 0; channel < functions.size(); ++channel) {
        functions[channel] = [&table, strength, channel](double value) {
            return value + strength * (CurveAt(table, channel, value) - value);
        };
    }
    return {functions, static_cast<int>(LargestValue(picture))};
}

} // namespace

// A grey picture becomes RGB. Throws PictureFailure when the file cannot be used.
Picture ApplyLut(const Picture& picture, const QJsonObject& parameters)
{
    const SharedCube table = TableAt(parameters[QLatin1String("file")].toString());
    const double strength = parameters[QLatin1String("strength")].toDouble() / 100.0;
    if (strength == 0.0) {
        return picture;
    }
    const Picture rgb = AsRgb(picture);
    if (table->dimensions == 1) {
        return WithOperation(rgb, CurvesOf(rgb, *table, strength));
    }
    const bool isTetrahedral = parameters[QLatin1String("interpolation")].toString() == QLatin1String("tetrahedral");
    return WithOperation(rgb, isTetrahedral ? Tetrahedral(table, strength) : Trilinear(table, strength));
}

} // namespace BatchWorker
