#include "ZTFrameReader_p.h"

#include <QtEndian>

#include <algorithm>

namespace {

/// The count that stands for a null value, as QDataStream writes it.
constexpr quint32 nullSize = 0xFFFFFFFF;

constexpr int smallestReserve = 4096;

QString FromBigEndianUtf16(const QByteArray& bytes)
{
    const int length = bytes.size() / static_cast<int>(sizeof(quint16));
    QString text(length, Qt::Uninitialized);
    qFromBigEndian<quint16>(bytes.constData(), length, text.data());
    return text;
}

} // namespace

ZTFrameReader::Result ZTFrameReader::Read(QIODevice& device)
{
    quint32 size = 0;
    switch (stage) {
    case Stage::NameSize:
        if (!ReadSize(device, size)) {
            return Result::Incomplete;
        }
        if (size != nullSize && size > maxNameSize) {
            return Refuse(
                QStringLiteral("Frame refused: its name has %1 bytes, %2 are allowed.").arg(size).arg(maxNameSize));
        }
        if (size != nullSize && size % sizeof(quint16) != 0) {
            return Refuse(QStringLiteral("Frame refused: its name has an odd number of bytes, %1.").arg(size));
        }
        BeginName(size);
        [[fallthrough]];
    case Stage::Name:
        if (!ReadBytes(device, nameBytes, expectedSize)) {
            return Result::Incomplete;
        }
        if (!nameBytes.isEmpty()) {
            name = FromBigEndianUtf16(nameBytes);
        }
        stage = Stage::PayloadSize;
        [[fallthrough]];
    case Stage::PayloadSize:
        if (!ReadSize(device, size)) {
            return Result::Incomplete;
        }
        if (size != nullSize && size > maxPayloadSize) {
            return Refuse(QStringLiteral("Frame refused: its payload has %1 bytes, %2 are allowed.")
                              .arg(size)
                              .arg(maxPayloadSize));
        }
        BeginPayload(size);
        [[fallthrough]];
    case Stage::Payload:
        if (!ReadBytes(device, payload, expectedSize)) {
            return Result::Incomplete;
        }
        stage = Stage::NameSize;
        return Result::Message;
    case Stage::Refused:
        break;
    }
    return Result::Refused;
}

void ZTFrameReader::Reset()
{
    *this = ZTFrameReader();
}

bool ZTFrameReader::ReadSize(QIODevice& device, quint32& size)
{
    const int missing = static_cast<int>(sizeBytes.size()) - sizeBytesRead;
    sizeBytesRead += static_cast<int>(std::max<qint64>(0, device.read(sizeBytes.data() + sizeBytesRead, missing)));
    if (sizeBytesRead < static_cast<int>(sizeBytes.size())) {
        return false;
    }
    sizeBytesRead = 0;
    size = qFromBigEndian<quint32>(sizeBytes.data());
    return true;
}

bool ZTFrameReader::ReadBytes(QIODevice& device, QByteArray& bytes, quint32 size)
{
    while (static_cast<quint32>(bytes.size()) < size) {
        const int filled = bytes.size();
        const int missing = static_cast<int>(size) - filled;
        const int step = static_cast<int>(std::min<qint64>(device.bytesAvailable(), missing));
        if (step <= 0) {
            return false;
        }
        // Doubling keeps the copying linear; the announced size alone never makes it large.
        if (bytes.capacity() < filled + step) {
            const qint64 doubled = std::max<qint64>(smallestReserve, 2 * qint64(bytes.capacity()));
            bytes.reserve(static_cast<int>(std::min<qint64>(size, std::max<qint64>(filled + step, doubled))));
        }
        bytes.resize(filled + step);
        const qint64 count = device.read(bytes.data() + filled, step);
        if (count < step) {
            bytes.resize(filled + static_cast<int>(std::max<qint64>(0, count)));
            return false;
        }
    }
    return true;
}

void ZTFrameReader::BeginName(quint32 size)
{
    stage = Stage::Name;
    expectedSize = size == nullSize ? 0 : size;
    nameBytes.resize(0);
    name = size == nullSize ? QString() : QStringLiteral("");
}

void ZTFrameReader::BeginPayload(quint32 size)
{
    stage = Stage::Payload;
    expectedSize = size == nullSize ? 0 : size;
    payload = size == nullSize ? QByteArray() : QByteArrayLiteral("");
}

ZTFrameReader::Result ZTFrameReader::Refuse(const QString& reason)
{
    stage = Stage::Refused;
    refusal = reason;
    return Result::Refused;
}
