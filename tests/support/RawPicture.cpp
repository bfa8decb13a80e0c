// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

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

/// Bits as JPEG streams have them. Source: ITU-T T.81, F.1.2.3 and annex H.
class JpegBits
{
public:
    void Add(quint32 value, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            last = (last << 1) | ((value >> bit) & 1U);
            if (++filled == 8) {
                bytes += char(last);
                bytes += last == 0xFF ? QByteArray(1, '\0') : QByteArray();
                last = 0;
                filled = 0;
            }
        }
    }

    // How long a number is, then its bits; those of negative ones less one.
    void AddDifference(int difference)
    {
        constexpr int lengthOfCode = 5;
        int size = 0;
        while (std::abs(difference) >> size != 0) {
            ++size;
        }
        Add(quint32(size), lengthOfCode);
        if (size < 16) {
            Add(quint32(difference < 0 ? difference - 1 : difference), size);
        }
    }

    QByteArray Finished()
    {
        while (filled != 0) {
            Add(1, 1);
        }
        return bytes;
    }

private:
    QByteArray bytes;
    quint32 last = 0;
    int filled = 0;
};

QByteArray LosslessJpeg(const QByteArray& pixels)
{
    const auto big = [](int word) { return QByteArray(1, char(word >> 8)) + char(word); };
    constexpr int sizes = 17; // of differences; all codes have five bits
    QByteArray table = QByteArray(5, '\0') + QByteArray(12, '\0');
    table[5] = sizes;
    for (int size = 0; size < sizes; ++size) {
        table += char(size);
    }
    const QByteArray frame = QByteArray(1, 16) + big(height) + big(width) + QByteArray("\1\1\x11\0", 4);
    const QByteArray scan("\1\1\0\1\0\0", 6); // each pixel is predicted by the one on its left
    JpegBits bits;
    const auto at = [&](int x, int y) {
        return int(qFromLittleEndian<quint16>(pixels.constData() + (y * width + x) * 2));
    };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int predicted = x > 0 ? at(x - 1, y) : y > 0 ? at(0, y - 1) : 1 << 15;
            const int difference = (at(x, y) - predicted) & 0xFFFF;
            bits.AddDifference(difference > 32'768 ? difference - 65'536 : difference);
        }
    }
    return QByteArray("\xFF\xD8\xFF\xC4", 4) + big(table.size() + 2) + table + "\xFF\xC3" + big(frame.size() + 2) +
           frame + "\xFF\xDA" + big(scan.size() + 2) + scan + bits.Finished() + "\xFF\xD9";
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

QByteArray RawPicture::CompressedDng()
{
    const QVector<double> neutral{1, 1, 1};
    const QByteArray stream = LosslessJpeg(Pixels(neutral));
    const quint32 pixels = header + quint32(Directory(1, neutral, 0).Bytes(header).size());
    TiffDirectory directory = Directory(1, neutral, pixels);
    directory.AddShort(259, 7);
    directory.AddLong(279, quint32(stream.size()));
    return QByteArray("II*\0", 4) + LittleEndian(header) + directory.Bytes(header) + stream;
}
