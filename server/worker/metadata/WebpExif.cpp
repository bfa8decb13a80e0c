// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WebpExif.h"

#include "server/worker/pixels/FileCalls.h"

#include <QFile>
#include <QtEndian>

namespace BatchWorker {

namespace {

// Source of the layout: Google, "WebP Container" (RIFF chunks).
constexpr qint64 headerSize = 8; // of the file and of each chunk: type, size of what follows
constexpr qint64 typeSize = 4;
constexpr qint64 firstChunk = headerSize + typeSize;

bool WriteAt(QFile& file, qint64 place, const QByteArray& bytes)
{
    return file.seek(place) && file.write(bytes) == bytes.size();
}

bool CutOut(QFile& file, qint64 start, qint64 end)
{
    if (!file.seek(end)) {
        return false;
    }
    const QByteArray rest = file.readAll(); // XMP, if anything
    const qint64 size = start + rest.size();
    QByteArray riffSize(int(typeSize), '\0');
    qToLittleEndian(quint32(size - headerSize), riffSize.data());
    return WriteAt(file, start, rest) && WriteAt(file, typeSize, riffSize) && file.resize(size);
}

bool ClearExifFlag(QFile& file, qint64 place)
{
    constexpr char hasExif = 0x08;
    char flags = 0;
    if (!file.seek(place) || !file.getChar(&flags)) {
        return false;
    }
    return WriteAt(file, place, QByteArray(1, char(flags & ~hasExif)));
}

} // namespace

bool RemoveExifFromWebp(const QString& fileName)
{
    QFile file;
    if (!OpenFile(file, fileName, QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        return false;
    }
    qint64 place = firstChunk;
    qint64 flags = 0;
    while (file.seek(place)) {
        const QByteArray header = file.read(headerSize);
        if (header.size() < headerSize) {
            break;
        }
        const qint64 content = qFromLittleEndian<quint32>(header.constData() + typeSize);
        const qint64 end = place + headerSize + content + content % 2;
        if (header.startsWith("VP8X")) {
            flags = place + headerSize;
        } else if (header.startsWith("EXIF")) {
            return CutOut(file, place, end) && (flags == 0 || ClearExifFlag(file, flags)) && file.flush();
        }
        place = end;
    }
    return true;
}

} // namespace BatchWorker
