// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FilmTracks.h"

#include "BoxFile.h"

#include <QBuffer>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace BatchWorker {

namespace {

// Source of the layouts: ISO/IEC 14496-12, sections 8.4.3 (kind of a track) and 8.7.3 (sizes of samples).
constexpr int versionSize = 4;
constexpr int numberSize = 4;

/// Calls `take` with the type and the content of each box in `boxes`.
template<typename Function>
void ForEachBox(const QByteArray& boxes, Function take)
{
    QBuffer buffer;
    buffer.setData(boxes);
    buffer.open(QIODevice::ReadOnly);
    while (const std::optional<BoxHeader> box = NextBox(buffer)) {
        take(box->type, buffer.read(box->size));
    }
}

/// The content of the first box of `type` in `boxes`.
QByteArray ContentOf(const QByteArray& boxes, const QByteArray& type)
{
    QByteArray found;
    ForEachBox(boxes, [&type, &found](const QByteArray& each, const QByteArray& content) {
        found = found.isEmpty() && each == type ? content : found;
    });
    return found;
}

FilmTracks TrackOf(const QByteArray& track)
{
    const QByteArray medium = ContentOf(track, "mdia");
    const QByteArray kind = ContentOf(medium, "hdlr").mid(versionSize + numberSize, boxTypeSize);
    FilmTracks found;
    found.hasFilm = kind == "vide";
    found.hasAudio = kind == "soun";
    if (kind == "pict") {
        const QByteArray sizes = ContentOf(ContentOf(ContentOf(medium, "minf"), "stbl"), "stsz");
        const QByteArray count = sizes.mid(versionSize + numberSize, numberSize);
        const quint32 pictures = count.size() < numberSize ? 0 : qFromBigEndian<quint32>(count.constData());
        found.pictures = int(std::min<quint32>(pictures, std::numeric_limits<int>::max()));
    }
    return found;
}

} // namespace

FilmTracks Both(const FilmTracks& one, const FilmTracks& other)
{
    return {one.hasFilm || other.hasFilm, one.hasAudio || other.hasAudio, std::max(one.pictures, other.pictures)};
}

FilmTracks TracksOf(const QByteArray& film)
{
    FilmTracks found;
    ForEachBox(film, [&found](const QByteArray& type, const QByteArray& content) {
        if (type == "trak") {
            found = Both(found, TrackOf(content));
        }
    });
    return found;
}

FilmTracks TracksOfFilm(QIODevice& file)
{
    constexpr qint64 largest = qint64(64) << 20;
    FilmTracks found;
    while (const std::optional<BoxHeader> box = NextBox(file)) {
        const qint64 end = file.pos() + box->size;
        if (box->type == "moov" && box->size <= largest) {
            found = Both(found, TracksOf(file.read(box->size)));
        }
        if (!file.seek(end)) {
            break;
        }
    }
    return found;
}

} // namespace BatchWorker
