// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MpfIndex.h"

#include <QtEndian>

#include <algorithm>

namespace BatchWorker {

namespace {

/// The index: numbers in a block that is built like a TIFF file. Source of the layout: CIPA DC-007 "Multi-Picture
/// Format", section 5.
class Index
{
public:
    /// `start` is the place of `block` in the file.
    Index(const QByteArray& block, qint64 start)
        : block(block)
        , start(start)
        , isLittleEndian(block.startsWith("II"))
    {
    }

    QVector<ListedPicture> Pictures() const
    {
        constexpr int fieldSize = 12;
        constexpr quint32 listOfPictures = 0xb002;
        const qint64 directory = Number<quint32>(4);
        const int fields = Number<quint16>(directory);
        for (int i = 0; i < fields; ++i) {
            const qint64 field = directory + 2 + qint64(i) * fieldSize;
            if (Number<quint16>(field) == listOfPictures) {
                return Entries(Number<quint32>(field + 8), Number<quint32>(field + 4));
            }
        }
        return {};
    }

private:
    // The first entry is the first picture of the file.
    QVector<ListedPicture> Entries(qint64 place, qint64 size) const
    {
        constexpr qint64 entrySize = 16;
        constexpr qint64 most = 64; // a damaged index must not make readers go through a file again and again
        const qint64 end = std::min<qint64>(place + std::min<qint64>(size, most * entrySize), block.size());
        QVector<ListedPicture> pictures;
        for (qint64 entry = place + entrySize; entry + entrySize <= end; entry += entrySize) {
            constexpr quint32 typeMask = 0xff'0000;
            constexpr quint32 multiFrame = 0x02'0000; // panorama, disparity, multi-angle
            const bool isView = (Number<quint32>(entry) & typeMask) == multiFrame;
            pictures.append({start + Number<quint32>(entry + 8), isView});
        }
        return pictures;
    }

    // 0 outside the block.
    template<typename Size>
    Size Number(qint64 place) const
    {
        if (place < 0 || place + qint64(sizeof(Size)) > block.size()) {
            return 0;
        }
        const char* bytes = block.constData() + place;
        return isLittleEndian ? qFromLittleEndian<Size>(bytes) : qFromBigEndian<Size>(bytes);
    }

    QByteArray block;
    qint64 start;
    bool isLittleEndian;
};

} // namespace

QVector<ListedPicture> FurtherPictures(const QVector<JpegSegment>& segments)
{
    constexpr uchar app2 = 0xe2;
    const QByteArray name("MPF\0", 4);
    const auto found = std::find_if(segments.begin(), segments.end(), [&name](const JpegSegment& segment) {
        return segment.marker == app2 && segment.content.startsWith(name);
    });
    return found == segments.end() ? QVector<ListedPicture>()
                                   : Index(found->content.mid(name.size()), found->place + name.size()).Pictures();
}

int CountViews(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QVector<ListedPicture> pictures = FurtherPictures(JpegSegmentsAt(file, 0));
    return 1 + int(std::count_if(pictures.begin(), pictures.end(),
                                 [](const ListedPicture& picture) { return picture.isView; }));
}

} // namespace BatchWorker
