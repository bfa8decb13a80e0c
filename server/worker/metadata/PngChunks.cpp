#include "PngChunks.h"

#include <QFile>
#include <QSet>
#include <QtEndian>

#include <optional>

namespace BatchWorker {

namespace {

// Source of the layout: W3C, "Portable Network Graphics": size, type, content, checksum.
constexpr int signatureSize = 8;
constexpr int sizeSize = 4;
constexpr int typeSize = 4;
constexpr int checksumSize = 4;
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

/// A chunk, without its content and its checksum.
struct ChunkHeader
{
    QByteArray header; ///< size and type
    QByteArray type;
    qint64 rest = 0; ///< what comes behind the header: content and checksum
};

// The chunk at the position of `file`, up to its content. Nothing behind the last one and for one that is not whole.
std::optional<ChunkHeader> NextChunk(QFile& file)
{
    const QByteArray header = file.read(sizeSize + typeSize);
    if (header.size() < sizeSize + typeSize) {
        return std::nullopt;
    }
    const qint64 rest = qint64(qFromBigEndian<quint32>(header.constData())) + checksumSize;
    if (rest > file.size() - file.pos()) {
        return std::nullopt;
    }
    return ChunkHeader{header, header.mid(sizeSize), rest};
}

} // namespace

QByteArray PngWithoutPixels(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray kept = file.read(signatureSize);
    QByteArray exifAsText;
    QSet<QByteArray> kinds;
    while (const std::optional<ChunkHeader> chunk = NextChunk(file)) {
        const qint64 end = file.pos() + chunk->rest;
        const QByteArray kind = KindOf(chunk->type, file.peek(qMin<qint64>(chunk->rest, longestKeyword + 1)));
        if (!kind.isEmpty() && !kinds.contains(kind) && chunk->rest <= largestChunk) {
            kinds.insert(kind);
            (kind == "EXIF as text" ? exifAsText : kept) += chunk->header + file.read(chunk->rest);
        }
        if (!file.seek(end)) {
            break;
        }
    }
    const QByteArray lastChunk = QByteArray(sizeSize, '\0') + "IEND" + QByteArray::fromHex("ae426082");
    return kept + (kinds.contains("eXIf") ? QByteArray() : exifAsText) + lastChunk;
}

bool RemoveRepeatedExifFromPng(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) || !file.seek(signatureSize)) {
        return false;
    }
    int blocks = 0;
    while (const std::optional<ChunkHeader> chunk = NextChunk(file)) {
        const qint64 end = file.pos() + chunk->rest;
        blocks += chunk->type == "eXIf" ? 1 : 0;
        if (blocks > 1) {
            const qint64 start = file.pos() - chunk->header.size();
            file.seek(end);
            const QByteArray behind = file.readAll(); // the last chunk
            return file.seek(start) && file.write(behind) == behind.size() && file.resize(start + behind.size());
        }
        file.seek(end);
    }
    return true;
}

} // namespace BatchWorker
