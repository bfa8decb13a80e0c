// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PngMetadata.h"

#include "server/worker/decode/PngChunks.h"
#include "server/worker/pixels/FileCalls.h"

#include <QFile>
#include <QSet>

namespace BatchWorker {

namespace {

constexpr int longestKeyword = 79;
constexpr qint64 largestChunk = qint64(64) << 20;

bool IsText(const QByteArray& type)
{
    return type == "tEXt" || type == "zTXt" || type == "iTXt";
}

// What a chunk that begins with `start` holds; empty for one that holds no metadata. EXIF has a chunk of its own, and
// older programs write it as text.
QByteArray KindOf(const QByteArray& type, const QByteArray& start)
{
    if (type == "IHDR" || type == "eXIf") {
        return type;
    }
    const QByteArray keyword = IsText(type) ? start.left(start.indexOf('\0')) : QByteArray();
    if (keyword == "XML:com.adobe.xmp" || keyword == "Raw profile type xmp") {
        return "XMP";
    }
    if (keyword == "Raw profile type exif" || keyword == "Raw profile type APP1") {
        return "EXIF as text";
    }
    return keyword == "Raw profile type iptc" ? keyword : QByteArray();
}

/// Takes the bytes from `start` to `end` out of the file.
bool CutOut(QFile& file, qint64 start, qint64 end)
{
    constexpr qint64 pieceSize = 1 << 20;
    const qint64 size = file.size();
    while (end < size) {
        if (!file.seek(end)) {
            return false;
        }
        const QByteArray piece = file.read(pieceSize);
        if (piece.isEmpty() || !file.seek(start) || file.write(piece) != piece.size()) {
            return false;
        }
        start += piece.size();
        end += piece.size();
    }
    return file.flush() && file.resize(start);
}

} // namespace

QByteArray PngWithoutPixels(const QString& path)
{
    QFile file;
    if (!OpenFile(file, path, QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray kept = file.read(pngSignatureSize);
    QByteArray exifAsText;
    QSet<QByteArray> kinds;
    while (const std::optional<PngChunk> chunk = NextPngChunk(file)) {
        const qint64 end = file.pos() + chunk->RestSize();
        const QByteArray kind = KindOf(chunk->type, file.peek(qMin<qint64>(chunk->RestSize(), longestKeyword + 1)));
        if (!kind.isEmpty() && !kinds.contains(kind) && chunk->RestSize() <= largestChunk) {
            kinds.insert(kind);
            (kind == "EXIF as text" ? exifAsText : kept) += chunk->header + file.read(chunk->RestSize());
        }
        if (!file.seek(end)) {
            break;
        }
    }
    const QByteArray lastChunk = QByteArray(4, '\0') + "IEND" + QByteArray::fromHex("ae426082");
    return kept + (kinds.contains("eXIf") ? QByteArray() : exifAsText) + lastChunk;
}

bool LimitExifOfPng(const QString& fileName, int most)
{
    QFile file;
    if (!OpenFile(file, fileName, QIODevice::ReadWrite | QIODevice::ExistingOnly) || !file.seek(pngSignatureSize)) {
        return false;
    }
    int blocks = 0;
    while (const std::optional<PngChunk> chunk = NextPngChunk(file)) {
        const qint64 start = file.pos() - chunk->header.size();
        qint64 next = file.pos() + chunk->RestSize();
        blocks += chunk->type == "eXIf" ? 1 : 0;
        if (blocks > most) {
            if (!CutOut(file, start, next)) {
                return false;
            }
            --blocks;
            next = start;
        }
        file.seek(next);
    }
    return true;
}

} // namespace BatchWorker
