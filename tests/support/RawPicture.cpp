#include "RawPicture.h"

#include <QMap>
#include <QtEndian>

#include <cmath>

namespace {

template<typename Number>
QByteArray Little(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// Makes a TIFF directory with its values behind it.
class Directory
{
public:
    void Add(quint16 tag, quint16 type, quint32 count, const QByteArray& value)
    {
        entries.insert(tag, {type, count, value});
    }
    void AddShort(quint16 tag, quint16 value) { Add(tag, 3, 1, Little(value)); }
    void AddLong(quint16 tag, quint32 value) { Add(tag, 4, 1, Little(value)); }
    void AddText(quint16 tag, const QByteArray& text) { Add(tag, 2, quint32(text.size() + 1), text + '\0'); }
    void AddFractions(quint16 tag, quint16 type, const QVector<double>& values)
    {
        constexpr int denominator = 10'000;
        QByteArray bytes;
        for (const double value : values) {
            bytes += Little(qint32(std::lround(value * denominator))) + Little(qint32(denominator));
        }
        Add(tag, type, quint32(values.size()), bytes);
    }

    /// `start`: where the directory stands in the file.
    QByteArray Bytes(quint32 start) const
    {
        QByteArray directory = Little(quint16(entries.size()));
        QByteArray values;
        const quint32 valuesStart = start + 2 + quint32(entries.size()) * 12 + 4;
        for (auto it = entries.begin(); it != entries.end(); ++it) {
            const Entry& entry = it.value();
            directory += Little(it.key()) + Little(entry.type) + Little(entry.count);
            if (entry.value.size() <= 4) {
                directory += entry.value.leftJustified(4, '\0');
            } else {
                directory += Little(valuesStart + quint32(values.size()));
                values += entry.value + QByteArray(entry.value.size() % 2, '\0');
            }
        }
        return directory + Little(quint32(0)) + values;
    }

private:
    struct Entry
    {
        quint16 type = 0;
        quint32 count = 0;
        QByteArray value;
    };
    QMap<quint16, Entry> entries;
};

} // namespace

const QVector<QVector<double>>& RawPicture::Patches()
{
    static const QVector<QVector<double>> patches{
        {0.20, 0.20, 0.20}, {0.60, 0.10, 0.10}, {0.05, 0.50, 0.10}, {0.02, 0.05, 0.70}};
    return patches;
}

int RawPicture::PatchAt(int x, int y)
{
    return (x >= width / 2 ? 1 : 0) + (y >= height / 2 ? 2 : 0);
}

QByteArray RawPicture::Dng(int orientation, const QVector<double>& neutral)
{
    Directory directory;
    directory.AddLong(254, 0);
    directory.AddLong(256, width);
    directory.AddLong(257, height);
    directory.AddShort(258, 16);
    directory.AddShort(259, 1);
    directory.AddShort(262, 32803); // colour filters
    directory.AddText(271, "Maker");
    directory.AddText(272, "Camera");
    constexpr quint32 header = 8;
    directory.AddLong(273, header);
    directory.AddShort(274, quint16(orientation));
    directory.AddShort(277, 1);
    directory.AddLong(278, height);
    directory.AddLong(279, width * height * 2);
    directory.AddShort(284, 1);
    directory.Add(33421, 3, 2, Little(quint16(2)) + Little(quint16(2)));
    directory.Add(33422, 1, 4, QByteArray("\0\1\1\2", 4));
    directory.Add(50706, 1, 4, QByteArray("\1\4\0\0", 4));
    directory.Add(50707, 1, 4, QByteArray("\1\1\0\0", 4));
    directory.AddText(50708, "Maker Camera");
    directory.AddShort(50714, 0);
    directory.AddLong(50717, 65'535);
    directory.AddFractions(50721, 10, {3.2404, -1.5371, -0.4985, -0.9693, 1.8760, 0.0416, 0.0556, -0.2040, 1.0572});
    directory.AddFractions(50728, 5, neutral);
    directory.AddShort(50778, 21); // daylight
    QByteArray pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int channel = (y % 2) + (x % 2);
            const double light = Patches()[PatchAt(x, y)][channel] * neutral[channel];
            pixels += Little(quint16(std::lround(light * 65'535)));
        }
    }
    const quint32 start = header + quint32(pixels.size());
    return QByteArray("II*\0", 4) + Little(start) + pixels + directory.Bytes(start);
}
