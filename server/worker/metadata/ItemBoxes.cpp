// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ItemBoxes.h"

#include "BoxFile.h"

#include "server/worker/pixels/FileCalls.h"

#include <QBuffer>
#include <QFile>
#include <QtEndian>

namespace BatchWorker {

namespace {

// Source of the layouts: ISO/IEC 14496-12 (boxes, film header, items) and 23008-12 (properties of items).
constexpr int versionSize = 4; // of "full" boxes: version and flags
constexpr qint64 largestContent = qint64(64) << 20;
constexpr int deepest = 4;

// Zero means that the writer did not know the time.
QDateTime SinceFirstOf1904(quint64 milliseconds)
{
    constexpr quint64 farFuture = quint64(400) * 366 * 24 * 3600 * 1000;
    if (milliseconds == 0 || milliseconds > farFuture) {
        return {};
    }
    const QDateTime start(QDate(1904, 1, 1), QTime(0, 0), Qt::UTC);
    return start.addMSecs(qint64(milliseconds)).toLocalTime();
}

template<typename Number>
quint64 NumberAt(const QByteArray& bytes, int place)
{
    return bytes.size() < place + int(sizeof(Number)) ? 0 : qFromBigEndian<Number>(bytes.constData() + place);
}

void ReadFilmHeader(const QByteArray& content, ItemBoxes& found)
{
    const bool isLong = content.startsWith('\1');
    const quint64 seconds = isLong ? NumberAt<quint64>(content, versionSize) : NumberAt<quint32>(content, versionSize);
    constexpr quint64 inSecond = 1000;
    constexpr quint64 mostSeconds = quint64(1) << 40;
    if (!found.created.isValid() && seconds < mostSeconds) {
        found.created = SinceFirstOf1904(seconds * inSecond);
    }
}

void ReadCreationTime(const QByteArray& content, ItemBoxes& found)
{
    constexpr quint64 microseconds = 1000;
    const QDateTime created = SinceFirstOf1904(NumberAt<quint64>(content, versionSize) / microseconds);
    found.created = created.isValid() ? created : found.created;
}

// The kind of an item comes after its number and its protection: of 16 bits, in version 3 of 32.
bool IsToneMapItem(const QByteArray& content)
{
    const int numbers = content.startsWith('\3') ? 6 : 4;
    return content.mid(versionSize + numbers, boxTypeSize) == "tmap";
}

// The name of an auxiliary picture's kind ends with a zero.
void ReadAuxiliaryKind(const QByteArray& content, ItemBoxes& found)
{
    const QByteArray kind = content.mid(versionSize, content.indexOf('\0', versionSize) - versionSize);
    found.hasGainMap = found.hasGainMap || kind.startsWith("urn:com:apple:photo:2020:aux:hdrgainmap");
    found.hasDepth =
        found.hasDepth || kind == "urn:mpeg:hevc:2015:auxid:2" || kind == "urn:mpeg:mpegB:cicp:systems:auxiliary:depth";
}

void ReadBox(const QByteArray& type, const QByteArray& content, int depth, ItemBoxes& found);

void ReadBoxesIn(const QByteArray& content, int depth, ItemBoxes& found)
{
    if (depth > deepest) {
        return;
    }
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    while (const std::optional<BoxHeader> box = NextBox(buffer)) {
        ReadBox(box->type, buffer.read(box->size), depth, found);
    }
}

void ReadBox(const QByteArray& type, const QByteArray& content, int depth, ItemBoxes& found)
{
    constexpr int shortCount = 2;
    constexpr int longCount = 4;
    if (type == "meta") {
        ReadBoxesIn(content.mid(versionSize), depth + 1, found);
    } else if (type == "moov" || type == "iprp" || type == "ipco") {
        ReadBoxesIn(content, depth + 1, found);
    } else if (type == "iinf") {
        ReadBoxesIn(content.mid(versionSize + (content.startsWith('\0') ? shortCount : longCount)), depth + 1, found);
    } else if (type == "infe") {
        found.hasGainMap = found.hasGainMap || IsToneMapItem(content);
    } else if (type == "auxC") {
        ReadAuxiliaryKind(content, found);
    } else if (type == "mvhd") {
        ReadFilmHeader(content, found);
    } else if (type == "crtt") {
        ReadCreationTime(content, found);
    }
}

} // namespace

ItemBoxes ReadItemBoxes(const QString& path)
{
    ItemBoxes found;
    QFile file;
    constexpr int enough = 8;
    if (!OpenFile(file, path, QIODevice::ReadOnly) || file.peek(enough).mid(boxTypeSize) != "ftyp") {
        return found;
    }
    while (const std::optional<BoxHeader> box = NextBox(file)) {
        const qint64 end = file.pos() + box->size;
        const bool isRead = (box->type == "meta" || box->type == "moov") && box->size <= largestContent;
        if (isRead) {
            const QByteArray content = file.read(box->size);
            ReadBox(box->type, content, 0, found);
            if (box->type == "moov") {
                found.tracks = Both(found.tracks, TracksOf(content));
            }
        } else if (box->type == "mpvd" && box->size <= largestContent) {
            QBuffer film;
            film.setData(file.read(box->size));
            film.open(QIODevice::ReadOnly);
            FilmTracks beside = TracksOfFilm(film);
            beside.pictures = 0;
            found.tracks = Both(found.tracks, beside);
        }
        if (!file.seek(end)) {
            break;
        }
    }
    return found;
}

} // namespace BatchWorker
