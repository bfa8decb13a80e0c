// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Companions.h"

#include "BoxFile.h"
#include "FilmTracks.h"
#include "ItemBoxes.h"

#include "server/worker/decode/MpfIndex.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <initializer_list>

namespace BatchWorker {

namespace {

constexpr const char* container = "http://ns.google.com/photos/1.0/container/";

bool HasAny(const QByteArray& text, std::initializer_list<const char*> phrases)
{
    return std::any_of(phrases.begin(), phrases.end(), [&text](const char* phrase) { return text.contains(phrase); });
}

// As an attribute or as an element, whatever its prefix is.
bool HasValue(const QByteArray& text, const QByteArray& name, const QByteArray& value)
{
    return HasAny(text, {(name + "=\"" + value + '"').constData(), (name + "='" + value + '\'').constData(),
                         (name + '>' + value + '<').constData()});
}

bool SaysGainMap(const QByteArray& xmp)
{
    return (xmp.contains(container) && xmp.contains("GainMap")) ||
           HasAny(xmp, {"http://ns.adobe.com/hdr-gain-map/1.0/", "http://ns.apple.com/HDRGainMap/1.0/",
                        "urn:com:apple:photo:2020:aux:hdrgainmap"});
}

bool SaysDepth(const QByteArray& xmp)
{
    return (xmp.contains(container) && HasValue(xmp, ":Semantic", "Depth")) ||
           HasAny(xmp, {"http://ns.google.com/photos/1.0/depthmap/", "http://ns.google.com/photos/dd/1.0/depthmap/",
                        "http://ns.apple.com/depthData/1.0/"});
}

// Programs that change a picture often leave the words and drop the film.
bool SaysFilm(const QByteArray& xmp)
{
    return (xmp.contains(container) && HasValue(xmp, ":Semantic", "MotionPhoto")) ||
           (xmp.contains("http://ns.google.com/photos/1.0/camera/") &&
            (HasValue(xmp, ":MotionPhoto", "1") || HasValue(xmp, ":MicroVideo", "1")));
}

struct Words
{
    bool ofGainMap = false;
    bool ofDepth = false;
    bool ofFilm = false;
    bool ofAudio = false;
};

Words WordsOf(const QVector<JpegSegment>& segments)
{
    constexpr uchar app1 = 0xe1;
    constexpr uchar app2 = 0xe2;
    Words words;
    for (const JpegSegment& segment : segments) {
        const QByteArray& content = segment.content;
        if (segment.marker == app1) {
            words.ofGainMap = words.ofGainMap || SaysGainMap(content);
            words.ofDepth = words.ofDepth || SaysDepth(content);
            words.ofFilm = words.ofFilm || SaysFilm(content);
            words.ofAudio = words.ofAudio || content.contains("http://ns.google.com/photos/1.0/audio/");
        } else if (segment.marker == app2) {
            words.ofGainMap = words.ofGainMap || content.startsWith(QByteArray("urn:iso:std:iso:ts:21496:-1\0", 28));
        }
    }
    return words;
}

// The film begins anywhere behind `place`: the lengths in XMP leave out what some cameras put around it.
std::optional<qint64> PlaceOfFilm(QFile& file, qint64 place)
{
    constexpr qint64 piece = qint64(1) << 20;
    constexpr int sizeSize = 4;
    constexpr int overlap = sizeSize + boxTypeSize;
    constexpr quint32 smallest = 16; // of the box that every film begins with
    constexpr quint32 largest = 1024;
    QByteArray bytes;
    do {
        bytes = file.seek(place) ? file.read(piece + overlap) : QByteArray();
        for (int found = bytes.indexOf("ftyp", sizeSize); found >= 0; found = bytes.indexOf("ftyp", found + 1)) {
            const qint64 start = place + found - sizeSize;
            const quint32 size = qFromBigEndian<quint32>(bytes.constData() + found - sizeSize);
            if (size >= smallest && size <= largest && start + size <= file.size()) {
                return start;
            }
        }
        place += piece;
    } while (bytes.size() == piece + overlap);
    return std::nullopt;
}

// Maps are pictures behind the first one, which need not mention them.
Companions OfJpeg(QFile& file)
{
    const QVector<JpegSegment> first = JpegSegmentsAt(file, 0);
    const Words words = WordsOf(first);
    Companions found;
    found.hasGainMap = words.ofGainMap;
    found.hasDepth = words.ofDepth;
    found.hasAudio = words.ofAudio;
    const QVector<ListedPicture> pictures = FurtherPictures(first);
    for (const ListedPicture& picture : pictures) {
        const Words ofPicture = WordsOf(JpegSegmentsAt(file, picture.place));
        found.hasGainMap = found.hasGainMap || ofPicture.ofGainMap;
        found.hasDepth = found.hasDepth || ofPicture.ofDepth;
    }
    const qint64 behind = first.isEmpty() ? 0 : first.last().place + first.last().content.size();
    const std::optional<qint64> film = words.ofFilm ? PlaceOfFilm(file, behind) : std::nullopt;
    if (film && file.seek(*film)) {
        const FilmTracks tracks = TracksOfFilm(file);
        found.hasFilm = tracks.hasFilm;
        found.hasAudio = found.hasAudio || tracks.hasAudio;
    }
    return found;
}

Companions OfItems(const QString& path)
{
    const ItemBoxes boxes = ReadItemBoxes(path);
    Companions found;
    found.hasGainMap = boxes.hasGainMap;
    found.hasDepth = boxes.hasDepth;
    found.hasFilm = boxes.tracks.hasFilm;
    found.hasAudio = boxes.tracks.hasAudio;
    found.pictures = boxes.tracks.pictures;
    return found;
}

bool HasBox(QFile& file, const QByteArray& type)
{
    while (const std::optional<BoxHeader> box = NextBox(file)) {
        if (box->type == type) {
            return true;
        }
        if (!file.seek(file.pos() + box->size)) {
            break;
        }
    }
    return false;
}

} // namespace

Companions CompanionsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    constexpr int sizeSize = 4;
    const QByteArray head = file.peek(sizeSize + 2 * boxTypeSize);
    if (head.startsWith("\xFF\xD8")) {
        return OfJpeg(file);
    }
    const QByteArray type = head.mid(sizeSize, boxTypeSize);
    if (type == "ftyp") {
        // The pixels of a camera's RAW file are in tracks, too.
        return head.endsWith("crx ") ? Companions() : OfItems(path);
    }
    Companions found;
    found.hasGainMap = type == "JXL " && HasBox(file, "jhgm");
    return found;
}

} // namespace BatchWorker
