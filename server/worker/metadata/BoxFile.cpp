// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BoxFile.h"

#include <QtEndian>

namespace BatchWorker {

namespace {

constexpr int headerSize = 8;
constexpr int longSize = 8;

// Instead of sizes.
constexpr int sizeUpToEnd = 0;
constexpr int sizeBehindType = 1;

} // namespace

std::optional<BoxHeader> NextBox(QIODevice& file)
{
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize) {
        return std::nullopt;
    }
    qint64 size = qFromBigEndian<quint32>(header.constData());
    qint64 read = headerSize;
    if (size == sizeUpToEnd) {
        size = read + file.size() - file.pos();
    } else if (size == sizeBehindType) {
        const QByteArray longer = file.read(longSize);
        size = longer.size() < longSize ? 0 : qFromBigEndian<qint64>(longer.constData());
        read += longSize;
    }
    if (size < read || size - read > file.size() - file.pos()) {
        return std::nullopt;
    }
    return BoxHeader{header.mid(boxTypeSize), size - read};
}

QByteArray Box(const QByteArray& type, const QByteArray& content)
{
    QByteArray size(headerSize - boxTypeSize, '\0');
    qToBigEndian(quint32(content.size() + headerSize), size.data());
    return size + type + content;
}

} // namespace BatchWorker
