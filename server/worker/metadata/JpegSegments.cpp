#include "JpegSegments.h"

#include <QtEndian>

namespace BatchWorker {

namespace {

// Source of the layout: ISO/IEC 10918-1, annex B.
constexpr char markerStart = '\xFF';
constexpr uchar startOfPixels = 0xda;
constexpr uchar endOfPicture = 0xd9;
constexpr int largestSegments = 16 << 20; // of one picture, together

/// Numbers in a block that is built like a TIFF file.
class TiffNumbers
{
public:
    explicit TiffNumbers(const QByteArray& block)
        : block(block)
        , isLittle(block.startsWith("II"))
    {
    }

    quint32 Short(qint64 place) const { return Number<quint16>(place); }
    quint32 Long(qint64 place) const { return Number<quint32>(place); }

private:
    template<typename Size>
    quint32 Number(qint64 place) const
    {
        if (place < 0 || place + qint64(sizeof(Size)) > block.size()) {
            return 0;
        }
        const char* bytes = block.constData() + place;
        return isLittle ? qFromLittleEndian<Size>(bytes) : qFromBigEndian<Size>(bytes);
    }

    const QByteArray& block;
    bool isLittle;
};

// The index is a directory whose entry 0xb002 holds 16 bytes for each picture, the place among them. Places count from
// the start of the block; that of the first picture is 0.
QVector<qint64> PlacesIn(const QByteArray& block, qint64 start)
{
    constexpr int entrySize = 12;
    constexpr int pictureSize = 16;
    constexpr int placeInPicture = 8;
    constexpr quint32 listOfPictures = 0xb002;
    constexpr quint32 most = 64;
    const TiffNumbers numbers(block);
    const qint64 directory = numbers.Long(4);
    QVector<qint64> places;
    const quint32 entries = numbers.Short(directory);
    for (quint32 i = 0; i < entries; ++i) {
        const qint64 entry = directory + 2 + qint64(i) * entrySize;
        if (numbers.Short(entry) != listOfPictures) {
            continue;
        }
        const quint32 pictures = qMin(numbers.Long(entry + 4) / pictureSize, most);
        for (quint32 k = 1; k < pictures; ++k) {
            const qint64 picture = numbers.Long(entry + 8) + qint64(k) * pictureSize;
            const quint32 place = numbers.Long(picture + placeInPicture);
            if (place > 0) {
                places.append(start + place);
            }
        }
        break;
    }
    return places;
}

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

QVector<qint64> FurtherPictures(const QVector<JpegSegment>& segments)
{
    constexpr uchar app2 = 0xe2;
    const QByteArray name("MPF\0", 4);
    for (const JpegSegment& segment : segments) {
        if (segment.marker == app2 && segment.content.startsWith(name)) {
            return PlacesIn(segment.content.mid(name.size()), segment.place + name.size());
        }
    }
    return {};
}

} // namespace BatchWorker
