// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PngParts.h"

#include <QtEndian>

#include <zlib.h>

#include <cmath>

namespace PngParts {

namespace {

const QByteArray signature("\x89PNG\r\n\x1a\n", 8);

// Without the length that Qt puts before it.
QByteArray Packed(const QByteArray& bytes)
{
    return qCompress(bytes).mid(4);
}

} // namespace

QByteArray BigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& type, const QByteArray& content)
{
    const QByteArray checked = type + content;
    const uLong checksum = crc32(0, reinterpret_cast<const Bytef*>(checked.constData()), uInt(checked.size()));
    return BigEndian(quint32(content.size())) + checked + BigEndian(quint32(checksum));
}

QByteArray ProfileChunk(const QByteArray& profile)
{
    return Chunk("iCCP", QByteArray("some profile\0\0", 14) + Packed(profile));
}

QByteArray File(const QVector<Colour>& patches, const QByteArray& extra, int bits, int channels)
{
    QByteArray line(1, '\0'); // no filter
    const double largest = bits == 16 ? 65'535.0 : 255.0;
    for (const Colour& patch : patches) {
        for (int x = 0; x < patchSide; ++x) {
            for (int channel = 0; channel < channels; ++channel) {
                const auto value = quint16(std::lround(patch[std::size_t(channel)] * largest));
                line += bits == 16 ? QByteArray(1, char(value >> 8)) : QByteArray();
                line += char(value & 0xff);
            }
        }
    }
    const int colourType = channels == 1 ? 0 : 2;
    const QByteArray header = BigEndian(quint32(patches.size() * patchSide)) + BigEndian(patchSide) + char(bits) +
                              char(colourType) + QByteArray(3, '\0');
    return signature + Chunk("IHDR", header) + extra + Chunk("IDAT", Packed(line.repeated(patchSide))) +
           Chunk("IEND", {});
}

QByteArray ContentOf(const QByteArray& file, const QByteArray& type)
{
    int place = signature.size();
    while (place + 12 <= file.size()) {
        const int length = int(qFromBigEndian<quint32>(file.constData() + place));
        if (file.mid(place + 4, 4) == type) {
            return file.mid(place + 8, length);
        }
        place += length + 12;
    }
    return {};
}

QByteArray ProfileOf(const QByteArray& file)
{
    const QByteArray content = ContentOf(file, "iCCP");
    constexpr quint32 guess = 1 << 16;
    return content.isEmpty() ? QByteArray() : qUncompress(BigEndian(guess) + content.mid(content.indexOf('\0') + 2));
}

} // namespace PngParts
