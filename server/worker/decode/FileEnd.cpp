// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileEnd.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace BatchWorker {

namespace {

/// The most blocks that are looked at. Files have far fewer.
constexpr int mostBlocks = 1'000'000;

quint32 BigEndian(const QByteArray& bytes, int at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

/// The length of the block at the file's position, with everything that belongs to it; nothing for the last one, which
/// may go on to the end, and for what is no block. The header is there, but its length may be nonsense.
using LengthOfBlock = std::optional<qint64> (*)(QFile& file, const QByteArray& head);

bool IsLetter(char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

/// Length, kind, content, checksum. Source: W3C, Portable Network Graphics (PNG), section 5.3.
std::optional<qint64> PngBlock(QFile&, const QByteArray& head)
{
    constexpr int around = 12;
    const QByteArray kind = head.mid(4);
    const bool isChunk = std::all_of(kind.begin(), kind.end(), IsLetter) && kind != "IEND";
    return isChunk ? std::optional(qint64(BigEndian(head, 0)) + around) : std::nullopt;
}

/// Source: ISO/IEC 14496-12, section 4.2.
std::optional<qint64> Box(QFile& file, const QByteArray& head)
{
    constexpr int longLength = 8;
    const quint32 length = BigEndian(head, 0);
    if (length != 1) {
        return length == 0 ? std::nullopt : std::optional(qint64(length));
    }
    const QByteArray more = file.read(longLength);
    return more.size() < longLength ? qint64(head.size()) + longLength
                                    : qint64(qFromBigEndian<quint64>(more.constData()));
}

bool GoesBeyondEnd(QFile& file, qint64 start, bool hasEndBlock, LengthOfBlock lengthOf)
{
    constexpr int headSize = 8;
    qint64 at = start;
    for (int i = 0; i < mostBlocks && file.seek(at); ++i) {
        const QByteArray head = file.read(headSize);
        if (head.size() < headSize) {
            return hasEndBlock || !head.isEmpty();
        }
        const std::optional<qint64> length = lengthOf(file, head);
        if (!length) {
            return false;
        }
        if (*length < headSize) {
            return false; // damaged, not cut off
        }
        if (*length > file.size() - at) {
            return true;
        }
        at += *length;
    }
    return false;
}

} // namespace

bool IsCutOff(const QString& path)
{
    constexpr int headSize = 12;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray head = file.read(headSize);
    if (head.size() < headSize) {
        return false;
    }
    constexpr int pngSignature = 8;
    if (head.startsWith("\x89PNG\r\n\x1A\n")) {
        return GoesBeyondEnd(file, pngSignature, true, &PngBlock);
    }
    if (head.startsWith("RIFF")) {
        constexpr int before = 8;
        return qint64(qFromLittleEndian<quint32>(head.constData() + 4)) + before > file.size();
    }
    const QByteArray kind = head.mid(4, 4);
    const bool hasBoxes = kind == "ftyp" || kind == "jP  " || kind == "JXL ";
    return hasBoxes && GoesBeyondEnd(file, 0, false, &Box);
}

} // namespace BatchWorker
