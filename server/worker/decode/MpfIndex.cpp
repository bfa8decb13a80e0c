#include "MpfIndex.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace BatchWorker {

namespace {

/// The content of the first segment with the index of pictures, behind its identifier; empty when there is none. Source
/// of the layout: CIPA DC-007 "Multi-Picture Format", section 5.
QByteArray IndexOf(QFile& file)
{
    constexpr int header = 4;
    constexpr char startOfScan = '\xDA';
    constexpr char application2 = '\xE2';
    const QByteArray identifier("MPF\0", 4);
    file.seek(2); // behind the start of the picture
    for (;;) {
        const QByteArray head = file.read(header);
        if (head.size() < header || head[0] != '\xFF' || head[1] == startOfScan) {
            return {};
        }
        const int length = qFromBigEndian<quint16>(head.constData() + 2) - 2; // the length counts itself
        if (head[1] != application2) {
            if (length < 0 || !file.seek(file.pos() + length)) {
                return {};
            }
            continue;
        }
        const QByteArray content = file.read(std::max(0, length));
        if (content.startsWith(identifier)) {
            return content.mid(identifier.size());
        }
    }
}

/// An index, which is built like a TIFF directory.
class MpfIndex
{
public:
    explicit MpfIndex(const QByteArray& bytes)
        : bytes(bytes)
        , isLittleEndian(bytes.startsWith("II"))
    {
    }

    /// The attributes of all pictures, the first one included.
    QVector<quint32> Attributes() const
    {
        constexpr quint32 pictureEntries = 0xB002;
        constexpr int field = 12;
        constexpr int entry = 16;
        const qint64 directory = Number(4, 4);
        const int fields = int(Number(directory, 2));
        QVector<quint32> attributes;
        for (int i = 0; i < fields; ++i) {
            const qint64 at = directory + 2 + i * field;
            if (Number(at, 2) != pictureEntries) {
                continue;
            }
            const qint64 start = Number(at + 8, 4);
            const qint64 end = std::min<qint64>(start + Number(at + 4, 4), bytes.size());
            for (qint64 place = start; place + entry <= end; place += entry) {
                attributes.append(Number(place, 4));
            }
            break;
        }
        return attributes;
    }

private:
    // 0 outside the index.
    quint32 Number(qint64 at, int size) const
    {
        quint32 number = 0;
        for (int i = 0; i < size && at >= 0 && at < bytes.size() - size + 1; ++i) {
            const qint64 place = isLittleEndian ? at + size - 1 - i : at + i;
            number = (number << 8U) | quint8(bytes[int(place)]);
        }
        return number;
    }

    QByteArray bytes;
    bool isLittleEndian;
};

bool IsFurtherView(quint32 attribute)
{
    constexpr quint32 typeMask = 0xFFFFFF;
    constexpr quint32 multiFrame = 2; // panorama, disparity, multi-angle
    return (attribute & typeMask) >> 16U == multiFrame;
}

} // namespace

int CountListedPictures(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QVector<quint32> attributes = MpfIndex(IndexOf(file)).Attributes();
    return 1 + int(std::count_if(attributes.begin() + std::min(1, attributes.size()), attributes.end(), IsFurtherView));
}

} // namespace BatchWorker
