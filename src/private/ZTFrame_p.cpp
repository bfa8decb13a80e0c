// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTFrame_p.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

/// The count that stands for a null value, as QDataStream writes it.
constexpr quint32 nullSize = 0xFFFFFFFF;
constexpr int countSize = sizeof(quint32);

/// The number of bytes fetched from the device at once. Larger payloads are read directly.
constexpr int fetchSize = 64 * 1024;

/// The first allocation for a large payload, in bytes, unless the payload is smaller.
constexpr int smallestReserve = 4 * 1024 * 1024;

void AppendCount(QByteArray& bytes, bool isNull, int size)
{
    const quint32 bigEndian = qToBigEndian(isNull ? nullSize : static_cast<quint32>(size));
    bytes.append(reinterpret_cast<const char*>(&bigEndian), countSize);
}

int BytesBehind(quint32 count)
{
    return count == nullSize ? 0 : static_cast<int>(count);
}

} // namespace

void AppendFrameFront(QByteArray& bytes, const QString& name, const QByteArray& payload)
{
    const int nameSize = name.size() * static_cast<int>(sizeof(quint16));
    AppendCount(bytes, name.isNull(), nameSize);
    const int nameBegin = bytes.size();
    bytes.resize(nameBegin + nameSize);
    qToBigEndian<quint16>(name.utf16(), name.size(), bytes.data() + nameBegin);
    AppendCount(bytes, payload.isNull(), payload.size());
}

ZTFrameReader::Result ZTFrameReader::Read(QIODevice& device)
{
    if (!refusal.isNull()) {
        return Result::Refused;
    }
    Result result = Result::Incomplete;
    do {
        result = largePayloadSize >= 0 ? ReadLargePayload(device) : ReadFetched();
    } while (result == Result::Incomplete && (largePayloadSize >= 0 ? device.bytesAvailable() > 0 : Fetch(device)));
    return result;
}

void ZTFrameReader::Reset()
{
    *this = ZTFrameReader();
}

bool ZTFrameReader::Fetch(QIODevice& device)
{
    fetched.remove(0, std::exchange(fetchedBegin, 0));
    fetched.reserve(static_cast<int>(maxNameSize) + 2 * fetchSize);
    const int size = fetched.size();
    fetched.resize(size + fetchSize);
    const qint64 count = device.read(fetched.data() + size, fetchSize);
    fetched.resize(size + static_cast<int>(std::max<qint64>(0, count)));
    return count > 0;
}

ZTFrameReader::Result ZTFrameReader::ReadFetched()
{
    const char* const begin = fetched.constData() + fetchedBegin;
    const int available = fetched.size() - fetchedBegin;
    if (available < countSize) {
        return Result::Incomplete;
    }
    const quint32 nameCount = qFromBigEndian<quint32>(begin);
    const int nameSize = BytesBehind(nameCount);
    if (nameCount != nullSize && nameCount > maxNameSize) {
        return Refuse(
            QStringLiteral("Frame refused: its name has %1 bytes, %2 are allowed.").arg(nameCount).arg(maxNameSize));
    }
    if (nameCount != nullSize && nameCount % sizeof(quint16) != 0) {
        return Refuse(QStringLiteral("Frame refused: its name has an odd number of bytes, %1.").arg(nameCount));
    }

    const int frontSize = countSize + nameSize + countSize;
    if (available < frontSize) {
        return Result::Incomplete;
    }
    const quint32 payloadCount = qFromBigEndian<quint32>(begin + countSize + nameSize);
    if (payloadCount != nullSize && payloadCount > maxPayloadSize) {
        return Refuse(QStringLiteral("Frame refused: its payload has %1 bytes, %2 are allowed.")
                          .arg(payloadCount)
                          .arg(maxPayloadSize));
    }

    const int payloadSize = BytesBehind(payloadCount);
    const int payloadAvailable = std::min(available - frontSize, payloadSize);
    const bool isLarge = payloadSize > fetchSize;
    if (payloadAvailable < payloadSize && !isLarge) {
        return Result::Incomplete;
    }
    SetName(begin + countSize, nameCount);
    payload = payloadCount == nullSize ? QByteArray() : QByteArray(begin + frontSize, payloadAvailable);
    fetchedBegin += frontSize + payloadAvailable;
    if (payloadAvailable < payloadSize) {
        largePayloadSize = payloadSize;
        return Result::Incomplete;
    }
    return Result::Message;
}

ZTFrameReader::Result ZTFrameReader::ReadLargePayload(QIODevice& device)
{
    const int filled = payload.size();
    const int step = static_cast<int>(std::min<qint64>(device.bytesAvailable(), largePayloadSize - filled));
    if (step > 0) {
        // Doubling keeps the copying linear. The announced size alone never causes a large allocation.
        if (payload.capacity() < filled + step) {
            payload.reserve(static_cast<int>(std::min<qint64>(
                largePayloadSize, std::max<qint64>({smallestReserve, filled + step, 2 * qint64(filled)}))));
        }
        payload.resize(filled + step);
        const qint64 count = device.read(payload.data() + filled, step);
        payload.resize(filled + static_cast<int>(std::max<qint64>(0, count)));
    }
    if (payload.size() < largePayloadSize) {
        return Result::Incomplete;
    }
    largePayloadSize = -1;
    return Result::Message;
}

ZTFrameReader::Result ZTFrameReader::Refuse(const QString& reason)
{
    refusal = reason;
    return Result::Refused;
}

void ZTFrameReader::SetName(const char* bytes, quint32 count)
{
    if (count == nullSize) {
        name = QString();
        return;
    }
    // Most messages have the same name as the previous one.
    const int size = static_cast<int>(count);
    const bool isLastName =
        !lastName.isNull() && lastNameBytes.size() == size && std::memcmp(lastNameBytes.constData(), bytes, count) == 0;
    if (!isLastName) {
        lastNameBytes = QByteArray(bytes, size);
        lastName = QString(size / static_cast<int>(sizeof(quint16)), Qt::Uninitialized);
        qFromBigEndian<quint16>(bytes, lastName.size(), lastName.data());
    }
    name = lastName;
}
