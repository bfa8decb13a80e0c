// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// What a file has beside its picture, and no result of it has.
struct Companions
{
    bool hasGainMap = false; ///< how much brighter each place is on a screen that can show it
    bool hasDepth = false;   ///< how far away each place is
    bool hasFilm = false;    ///< a few seconds of moving pictures
    bool hasAudio = false;   ///< sound, of the film or by itself
    int pictures = 0;        ///< of a sequence of single pictures
};

/// Those of the file at `path`; docs/reference/metadata.md lists by what they are known. What cannot be read is not
/// there.
Companions CompanionsOf(const QString& path);

} // namespace BatchWorker
