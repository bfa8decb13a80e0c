// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileParts.h"

#include "PlantedMetadata.h"

#include <QtEndian>

namespace FileParts {

QByteArray BigEndian(quint32 number, int size)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes.right(size);
}

QByteArray Segment(const char* marker, const QByteArray& content)
{
    return QByteArray::fromHex(marker) + BigEndian(quint32(content.size() + 2), 2) + content;
}

QByteArray XmpSegment(const QByteArray& attributes)
{
    return Segment("ffe1", QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) +
                               PlantedMetadata::XmpPacket("<rdf:Description rdf:about='' " + attributes + "/>"));
}

QByteArray AsFirstSegment(QByteArray jpeg, const QByteArray& segment)
{
    return jpeg.insert(2, segment);
}

QByteArray MultiPictureIndex(quint32 place)
{
    // Behind the start of the file, the marker, the length and the name.
    constexpr quint32 start = 2 + 2 + 2 + 4;
    const QByteArray pictures =
        QByteArray(16, '\0') + QByteArray(4, '\0') + BigEndian(100) + BigEndian(place - start) + QByteArray(4, '\0');
    const QByteArray directory = BigEndian(1, 2) + BigEndian(0xb002, 2) + BigEndian(7, 2) +
                                 BigEndian(quint32(pictures.size())) + BigEndian(8 + 2 + 12 + 4) + BigEndian(0);
    return Segment("ffe2", QByteArray("MPF\0MM\0*", 8) + BigEndian(8) + directory + pictures);
}

QByteArray Box(const char* type, const QByteArray& content)
{
    return BigEndian(quint32(content.size() + 8)) + type + content;
}

QByteArray Track(const char* kind, quint32 samples)
{
    const QByteArray sizes = Box("stsz", BigEndian(0) + BigEndian(100) + BigEndian(samples));
    const QByteArray handler = Box("hdlr", BigEndian(0) + BigEndian(0) + kind + QByteArray(13, '\0'));
    return Box("trak", Box("tkhd", QByteArray(84, '\0')) +
                           Box("mdia", handler + Box("minf", Box("stbl", Box("stsd", BigEndian(0, 4)) + sizes))));
}

QByteArray Film(const QByteArray& tracks)
{
    return Box("ftyp", "mp42" + BigEndian(0) + "isommp42") + Box("mdat", QByteArray(300, 'x')) +
           Box("moov", Box("mvhd", QByteArray(100, '\0')) + tracks);
}

} // namespace FileParts
