// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JpegSegments.h"

#include <QtEndian>

namespace BatchWorker {

namespace {

// Source of the layout: ISO/IEC 10918-1, annex B.
constexpr char markerStart = '\xFF';
constexpr uchar startOfPixels = 0xda;
constexpr uchar endOfPicture = 0xd9;
constexpr int largestSegments = 16 << 20; // of one picture, together

} // namespace

QVector<JpegSegment> JpegSegmentsAt(QFile& file, qint64 place)
{
    QVector<JpegSegment> segments;
    if (!file.seek(place) || file.read(2) != "\xFF\xD8") {
        return segments;
    }
    qint64 size = 0;
    char byte = 0;
    while (size < largestSegments && file.getChar(&byte) && byte == markerStart) {
        while (byte == markerStart && file.getChar(&byte)) { // fill bytes
        }
        const uchar marker = uchar(byte);
        const QByteArray length = file.read(2);
        const int content = length.size() < 2 ? -1 : qFromBigEndian<quint16>(length.constData()) - 2;
        if (marker == startOfPixels || marker == endOfPicture || content < 0) {
            break;
        }
        const qint64 start = file.pos();
        segments.append({marker, start, file.read(content)});
        size += content;
    }
    return segments;
}

} // namespace BatchWorker
