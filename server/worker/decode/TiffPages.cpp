// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffPages.h"

#include <QFile>
#include <QtEndian>

#include <optional>

namespace BatchWorker {

namespace {

/// The directories of a TIFF file, one after the other. Source of the layout: Adobe, TIFF Revision 6.0, sections 2 and
/// 8; for files with offsets of 64 bits ("BigTIFF"), the same with wider numbers.
class TiffDirectories
{
public:
    explicit TiffDirectories(const QString& path)
        : file(path)
    {
        file.open(QIODevice::ReadOnly);
        isLittleEndian = file.read(2) == "II";
        constexpr quint64 bigVersion = 43;
        isBig = Number(2) == bigVersion;
        file.skip(isBig ? 4 : 0); // the width of an offset, and padding
        next = Number(OffsetSize());
    }

    /// The flags of the next directory that say what its pixels are for; nothing when there is no such directory.
    std::optional<quint32> NextFlags()
    {
        if (next == 0 || !file.seek(qint64(next))) {
            return std::nullopt;
        }
        constexpr quint64 subfileType = 254;
        constexpr int typeAndCount = 2 + 4;
        const quint64 entries = Number(isBig ? 8 : 2);
        quint32 flags = 0;
        for (quint64 i = 0; i < entries && !file.atEnd(); ++i) {
            const bool isWanted = Number(2) == subfileType;
            file.skip(isBig ? typeAndCount + 4 : typeAndCount);
            const quint32 value = quint32(Number(4));
            file.skip(OffsetSize() - 4);
            flags = isWanted ? value : flags;
        }
        next = Number(OffsetSize());
        return flags;
    }

private:
    int OffsetSize() const { return isBig ? 8 : 4; }

    // 0 at the end of the file.
    quint64 Number(int size)
    {
        quint64 number = 0;
        const QByteArray bytes = file.read(size);
        for (int i = 0; i < bytes.size(); ++i) {
            const int place = isLittleEndian ? bytes.size() - 1 - i : i;
            number = (number << 8) | quint8(bytes[place]);
        }
        return number;
    }

    QFile file;
    bool isLittleEndian = false;
    bool isBig = false;
    quint64 next = 0;
};

} // namespace

int CountTiffPages(const QString& path, int directories)
{
    constexpr quint32 smallerCopy = 1;
    constexpr quint32 mask = 4;
    TiffDirectories read(path);
    int pages = 0;
    for (int i = 0; i < directories; ++i) {
        const quint32 flags = read.NextFlags().value_or(0);
        pages += (flags & (smallerCopy | mask)) == 0 ? 1 : 0;
    }
    return pages;
}

} // namespace BatchWorker
