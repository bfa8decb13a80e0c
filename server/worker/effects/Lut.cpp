// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CubeColours.h"
#include "EffectFunctions.h"

#include "job/effects/CubeFile.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelFilter.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutex>

#include <memory>

using namespace BatchJob;

namespace BatchWorker {

namespace {

using SharedTable = std::shared_ptr<const CubeTable>;

// A run uses one table for all its pictures: the last one read is cached until its file changes.
SharedTable TableAt(const QString& path)
{
    static QMutex mutex;
    static QString lastPath;
    static QDateTime lastTime;
    static qint64 lastSize = 0;
    static SharedTable last;

    const QMutexLocker lock(&mutex);
    const QFileInfo info(path);
    if (!last || lastPath != path || lastTime != info.lastModified() || lastSize != info.size()) {
        CubeFile file = ReadCubeFile(path);
        if (!file.IsValid()) {
            throw ProcessingFailed(file.error);
        }
        last = std::make_shared<const CubeTable>(std::move(file.table));
        lastPath = path;
        lastTime = info.lastModified();
        lastSize = info.size();
    }
    return last;
}

template<typename Interpolation>
Picture MapByCube(const Picture& picture, const SharedTable& table, double strength, Interpolation interpolation)
{
    return MapColours(picture, [table, strength, interpolation](std::array<double, 3>& colour) {
        const std::array<double, 3> mapped = interpolation(*table, colour);
        for (size_t band = 0; band < 3; ++band) {
            colour[band] += strength * (mapped[band] - colour[band]);
        }
    });
}

} // namespace

// A grey picture becomes RGB. Throws PictureFailure when the file cannot be used.
Picture ApplyLut(const Picture& picture, const QJsonObject& parameters)
{
    const SharedTable table = TableAt(parameters[QLatin1String("file")].toString());
    const double strength = parameters[QLatin1String("strength")].toDouble() / 100.0;
    if (strength == 0.0) {
        return picture;
    }
    const Picture rgb = AsRgb(picture);
    if (table->dimensions == 1) {
        return MapByCube(rgb, table, strength, CurvesAt);
    }
    const bool isTetrahedral = parameters[QLatin1String("interpolation")].toString() == QLatin1String("tetrahedral");
    return isTetrahedral ? MapByCube(rgb, table, strength, TetrahedralAt)
                         : MapByCube(rgb, table, strength, TrilinearAt);
}

} // namespace BatchWorker
