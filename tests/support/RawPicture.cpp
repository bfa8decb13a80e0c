#include "RawPicture.h"

#include <cmath>

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

using namespace RawPicture;

namespace {

constexpr quint32 header = 8;

// `pixels`: where they begin in the file.
TiffDirectory Directory(int orientation, const QVector<double>& neutral, quint32 pixels)
{
    TiffDirectory directory;
    directory.AddLong(254, 0);
    directory.AddLong(256, width);
    directory.AddLong(257, height);
    directory.AddShort(258, 16);
    directory.AddShort(259, 1);
    directory.AddShort(262, 32803); // colour filters
    directory.AddText(271, "Maker");
    directory.AddText(272, "Camera");
    directory.AddLong(273, pixels);
    directory.AddShort(274, quint16(orientation));
    directory.AddShort(277, 1);
    directory.AddLong(278, height);
    directory.AddLong(279, width * height * 2);
    directory.AddShort(284, 1);
    directory.Add(33421, 3, 2, LittleEndian(quint16(2)) + LittleEndian(quint16(2)));
    directory.Add(33422, 1, 4, QByteArray("\0\1\1\2", 4));
    directory.Add(50706, 1, 4, QByteArray("\1\4\0\0", 4));
    directory.Add(50707, 1, 4, QByteArray("\1\1\0\0", 4));
    directory.AddText(50708, "Maker Camera");
    directory.AddShort(50714, 0);
    directory.AddLong(50717, 65'535);
    directory.AddFractions(50721, 10, {3.2404, -1.5371, -0.4985, -0.9693, 1.8760, 0.0416, 0.0556, -0.2040, 1.0572});
    directory.AddFractions(50728, 5, neutral);
    directory.AddShort(50778, 21); // daylight
    return directory;
}

QByteArray Pixels(const QVector<double>& neutral)
{
    QByteArray pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int channel = (y % 2) + (x % 2);
            const double light = Patches()[PatchAt(x, y)][channel] * neutral[channel];
            pixels += LittleEndian(quint16(std::lround(light * 65'535)));
        }
    }
    return pixels;
}

} // namespace

QByteArray RawPicture::Dng(int orientation, const QVector<double>& neutral)
{
    const QByteArray pixels = Pixels(neutral);
    const quint32 start = header + quint32(pixels.size());
    return QByteArray("II*\0", 4) + LittleEndian(start) + pixels + Directory(orientation, neutral, header).Bytes(start);
}

QByteArray RawPicture::DngWithPixelsLast(int orientation, const std::function<void(TiffDirectory&)>& edit)
{
    const QVector<double> neutral{1, 1, 1};
    const quint32 pixels = header + quint32(Directory(orientation, neutral, 0).Bytes(header).size());
    TiffDirectory directory = Directory(orientation, neutral, pixels);
    if (edit) {
        edit(directory);
    }
    return QByteArray("II*\0", 4) + LittleEndian(header) + directory.Bytes(header) + Pixels(neutral);
}
