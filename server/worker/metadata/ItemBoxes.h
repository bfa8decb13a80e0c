// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FilmTracks.h"

#include <QDateTime>
#include <QString>

namespace BatchWorker {

/// What the boxes of a HEIF or AVIF file say beside the pictures. Nothing for files of other kinds.
struct ItemBoxes
{
    QDateTime created; ///< of the main picture or of the film in the file, in local time; invalid if unknown
    bool hasGainMap = false;
    bool hasDepth = false;
    FilmTracks tracks; ///< of the file itself, and of a film beside the picture
};

ItemBoxes ReadItemBoxes(const QString& path);

} // namespace BatchWorker
