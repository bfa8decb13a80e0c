#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <utility>

/// Appends what a message's frame begins with: everything but the bytes of the payload.
void AppendFrameFront(QByteArray& bytes, const QString& name, const QByteArray& payload);

/// Takes messages off a pipe, however their bytes arrive. What is there of a message is kept between calls, and whether
/// it is complete is seen from its two counts. Memory is taken only for bytes that have come.
///
/// Bytes are fetched from the device ahead of the message that needs them, so Read() is to be called until it is
/// Incomplete or Refused.
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

    /// Reads the next message as far as its bytes are there.
    Result Read(QIODevice& device);

    QString TakeName() { return std::exchange(name, QString()); }
    QByteArray TakePayload() { return std::exchange(payload, QByteArray()); }
    QString Refusal() const { return refusal; }

    /// Forgets the piece of a message that is there: the next byte begins a frame.
    void Reset();

private:
    bool Fetch(QIODevice& device);
    Result ReadFetched();
    Result ReadLargePayload(QIODevice& device);
    Result Refuse(const QString& reason);
    void SetName(const char* bytes, quint32 size);

    QByteArray fetched; ///< of which the bytes before `fetchedBegin` have been read
    int fetchedBegin = 0;
    int largePayloadSize = -1; ///< of the message whose payload is read past `fetched`; -1 when none is
    QString name;
    QByteArray payload;
    QString refusal;

    QByteArray lastNameBytes;
    QString lastName;
};
