// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlantedMetadata.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtEndian>

#include <brotli/decode.h>

namespace PlantedMetadata {

namespace {

QByteArray Inflated(const QByteArray& packed)
{
    // qUncompress() expects the size in front, as a hint.
    return qUncompress(QByteArray::fromHex("00010000") + packed);
}

// Behind the keyword: the method; in iTXt whether it is packed, the method, the language and the translated keyword.
QByteArray UnpackedText(const QByteArray& type, const QByteArray& content)
{
    const int keyword = content.indexOf('\0') + 1;
    if (type == "zTXt") {
        return Inflated(content.mid(keyword + 1));
    }
    const int language = content.indexOf('\0', keyword + 2) + 1;
    const int text = content.indexOf('\0', language) + 1;
    return content[keyword] == 1 ? Inflated(content.mid(text)) : QByteArray();
}

QByteArray UnpackedTextsOfPng(const QByteArray& file)
{
    constexpr int headerSize = 8;
    constexpr int checksumSize = 4;
    QByteArray texts;
    int place = headerSize;
    while (place + headerSize <= file.size()) {
        const int size = int(qFromBigEndian<quint32>(file.constData() + place));
        const QByteArray type = file.mid(place + 4, 4);
        if (type == "zTXt" || type == "iTXt") {
            const QByteArray text = UnpackedText(type, file.mid(place + headerSize, size));
            // Profiles are in such texts as hexadecimal numbers.
            texts += text + QByteArray::fromHex(text.mid(text.indexOf('\n', 1)));
        }
        place += headerSize + size + checksumSize;
    }
    return texts;
}

QByteArray UnpackedBoxes(const QByteArray& file)
{
    QByteArray boxes;
    int place = file.indexOf("brob");
    while (place > 0) {
        const QByteArray packed = file.mid(place + 8);
        std::size_t size = 1 << 20;
        QByteArray content(int(size), '\0');
        BrotliDecoderDecompress(std::size_t(packed.size()), reinterpret_cast<const std::uint8_t*>(packed.constData()),
                                &size, reinterpret_cast<std::uint8_t*>(content.data()));
        boxes += content;
        place = file.indexOf("brob", place + 1);
    }
    return boxes;
}

quint32 Crc(const QByteArray& bytes)
{
    constexpr quint32 polynomial = 0xedb88320;
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc & 1) != 0 ? (crc >> 1) ^ polynomial : crc >> 1;
        }
    }
    return ~crc;
}

QByteArray BigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

} // namespace

void Start()
{
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    Exiv2::XmpParser::initialize();
}

void Write(const QString& file, const Blocks& blocks)
{
    const auto image = Exiv2::ImageFactory::open(file.toStdString());
    image->readMetadata();
    image->setExifData(blocks.exif);
    image->setIptcData(blocks.iptc);
    image->setXmpData(blocks.xmp);
    image->writeMetadata();
}

void AddBytes(Exiv2::ExifData& exif, const char* key, const QByteArray& bytes)
{
    const auto value = Exiv2::Value::create(Exiv2::undefined);
    value->read(reinterpret_cast<const Exiv2::byte*>(bytes.constData()), bytes.size(), Exiv2::littleEndian);
    exif.add(Exiv2::ExifKey(key), value.get());
}

void RenameTag(const QString& file, quint16 tag, quint16 newTag)
{
    const auto start = [](quint16 number, bool isLittle) {
        QByteArray bytes(4, '\0');
        constexpr quint16 undefined = 7;
        if (isLittle) {
            qToLittleEndian(number, bytes.data());
            qToLittleEndian(undefined, bytes.data() + 2);
        } else {
            qToBigEndian(number, bytes.data());
            qToBigEndian(undefined, bytes.data() + 2);
        }
        return bytes;
    };
    QFile picture(file);
    picture.open(QIODevice::ReadWrite);
    QByteArray bytes = picture.readAll();
    bytes.replace(start(tag, true), start(newTag, true)).replace(start(tag, false), start(newTag, false));
    picture.seek(0);
    picture.write(bytes);
}

Exiv2::XmpData Xmp(const QByteArray& packet)
{
    Exiv2::XmpData xmp;
    if (Exiv2::XmpParser::decode(xmp, XmpPacket(packet).toStdString()) != 0) {
        qFatal("This is no XMP.");
    }
    return xmp;
}

QByteArray XmpPacket(const QByteArray& inside)
{
    return R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)" +
           inside + "</rdf:RDF></x:xmpmeta>";
}

QByteArray Unpacked(const QByteArray& file)
{
    return file + (file.startsWith("\x89PNG") ? UnpackedTextsOfPng(file) : UnpackedBoxes(file));
}

QByteArray SeenByExiftool(const QString& file)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("exiftool"));
    if (program.isEmpty()) {
        return {};
    }
    QProcess process;
    process.start(program, {QStringLiteral("-a"), QStringLiteral("-u"), QStringLiteral("-ee"), QStringLiteral("-G1"),
                            QStringLiteral("-s"), file});
    process.waitForFinished();
    return process.readAllStandardOutput();
}

QByteArray PngChunk(const QByteArray& type, const QByteArray& content)
{
    return BigEndian(quint32(content.size())) + type + content + BigEndian(Crc(type + content));
}

} // namespace PlantedMetadata
