// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Feeds a stream to the frame reader in pieces, whose sizes depend on the first byte. However the stream is cut, the
// messages are those of the whole stream, and their frames are the bytes that were read.

#include "Require.h"

#include "ZTFrame_p.h"

#include <QBuffer>
#include <QVector>

#include <cstdint>
#include <utility>

namespace {

using Messages = QVector<std::pair<QString, QByteArray>>;

/// A sequential device with the bytes that have arrived so far.
class Pipe : public QIODevice
{
public:
    Pipe() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

    void Arrive(const QByteArray& bytes) { arrived.append(bytes); }
    qint64 bytesAvailable() const override { return arrived.size(); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const int count = static_cast<int>(std::min<qint64>(maxSize, arrived.size()));
        std::copy_n(arrived.constBegin(), count, data);
        arrived.remove(0, count);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray arrived;
};

bool ReadMessages(ZTFrameReader& reader, Pipe& pipe, Messages& messages)
{
    ZTFrameReader::Result result = reader.Read(pipe);
    for (; result == ZTFrameReader::Result::Message; result = reader.Read(pipe)) {
        const QString name = reader.TakeName();
        messages.append({name, reader.TakePayload()});
    }
    return result != ZTFrameReader::Result::Refused;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QByteArray stream(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size - 1));

    Pipe whole;
    whole.Arrive(stream);
    ZTFrameReader wholeReader;
    Messages expected;
    const bool isAllowed = ReadMessages(wholeReader, whole, expected);

    Pipe pieces;
    ZTFrameReader reader;
    Messages messages;
    bool isStillAllowed = true;
    unsigned seed = data[0];
    for (int begin = 0; begin < stream.size() && isStillAllowed;) {
        seed = seed * 1103515245U + 12345U;
        const int length = 1 + static_cast<int>((seed >> 16) % 9);
        pieces.Arrive(stream.mid(begin, length));
        begin += length;
        isStillAllowed = ReadMessages(reader, pieces, messages);
    }
    Require(isStillAllowed == isAllowed);
    Require(messages == expected);

    QByteArray rewritten;
    for (const auto& [name, payload] : expected) {
        AppendFrameFront(rewritten, name, payload);
        rewritten.append(payload);
    }
    Require(stream.startsWith(rewritten));
    return 0;
}
