// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIODevice>

namespace BatchWorker {

/// What the tracks of a film hold. A film is a part of many files of phones, and a whole HEIF file may be one.
struct FilmTracks
{
    bool hasFilm = false; ///< moving pictures
    bool hasAudio = false;
    int pictures = 0; ///< of the longest sequence of single pictures
};

FilmTracks Both(const FilmTracks& one, const FilmTracks& other);

/// The tracks in `film`, the content of a box "moov".
FilmTracks TracksOf(const QByteArray& film);

/// The tracks of the film whose first box is at the position of `file`. Nothing if there is no film.
FilmTracks TracksOfFilm(QIODevice& file);

} // namespace BatchWorker
