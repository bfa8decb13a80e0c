// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JpegSegments.h"

#include <QString>

namespace BatchWorker {

/// A further picture of a JPEG file, as the file's index lists it.
struct ListedPicture
{
    qint64 place = 0;    ///< where it begins in the file
    bool isView = false; ///< of a panorama or a stereo pair; otherwise a preview, a gain map or the like
};

/// The pictures behind the first one, which has `segments`.
QVector<ListedPicture> FurtherPictures(const QVector<JpegSegment>& segments);

/// How many views the JPEG file `path` has, the first picture included.
int CountViews(const QString& path);

} // namespace BatchWorker
