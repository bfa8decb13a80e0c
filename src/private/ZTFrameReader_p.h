#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <array>
#include <utility>

/// Takes messages off a pipe, however their bytes arrive: what is there of a message is kept between calls, and a byte
/// is looked at once. Memory is taken only for bytes that have come.
class ZTFrameReader
{
public:
    /// The longest name and the longest payload that are taken, in bytes.
    static constexpr quint32 maxNameSize = 64 * 1024;
    static constexpr quint32 maxPayloadSize = 1024 * 1024 * 1024;

    enum class Result {
        Incomplete, ///< the device has no more bytes now
        Message,    ///< the next message is there to be taken with TakeName() and TakePayload()
        Refused     ///< no frame that is allowed begins like this, Refusal() says why; nothing is read until Reset()
    };

    /// Reads up to the end of the next message, at most.
    Result Read(QIODevice& device);

    QString TakeName() { return std::exchange(name, QString()); }
    QByteArray TakePayload() { return std::exchange(payload, QByteArray()); }
    QString Refusal() const { return refusal; }

    /// Forgets the piece of a message that is there: the next byte begins a frame.
    void Reset();

private:
    enum class Stage { NameSize, Name, PayloadSize, Payload, Refused };

    bool ReadSize(QIODevice& device, quint32& size);
    bool ReadBytes(QIODevice& device, QByteArray& bytes, quint32 size);
    void BeginName(quint32 size);
    void BeginPayload(quint32 size);
    Result Refuse(const QString& reason);

    Stage stage = Stage::NameSize;
    std::array<char, sizeof(quint32)> sizeBytes{};
    int sizeBytesRead = 0;
    quint32 expectedSize = 0;
    QByteArray nameBytes;
    QString name;
    QByteArray payload;
    QString refusal;
};
