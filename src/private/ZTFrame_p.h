// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <utility>

/// Appends the front of a message's frame: everything but the bytes of the payload.
void AppendFrameFront(QByteArray& bytes, const QString& name, const QByteArray& payload);

/// Reads messages from a pipe, in whatever pieces their bytes arrive. An incomplete message is kept between calls; its
/// two counts tell when it is complete. Memory is allocated in proportion to the bytes that have arrived, not to the
/// announced size.
///
/// The reader buffers bytes of later messages, so call Read() until it returns Incomplete or Refused.
class ZTFrameReader
{
public:
    /// Limits of a name and a payload, in bytes.
    static constexpr quint32 maxNameSize = 64 * 1024;
    static constexpr quint32 maxPayloadSize = 1024 * 1024 * 1024;

    enum class Result {
        Incomplete, ///< the device has no more bytes at the moment
        Message,    ///< TakeName() and TakePayload() return the next message
        Refused     ///< the frame is not allowed, for the reason in Refusal(); nothing is read until Reset()
    };

    /// Reads the next message as far as its bytes have arrived.
    Result Read(QIODevice& device);

    QString TakeName() { return std::exchange(name, QString()); }
    QByteArray TakePayload() { return std::exchange(payload, QByteArray()); }
    QString Refusal() const { return refusal; }

    /// Discards all buffered bytes: the next byte begins a frame.
    void Reset();

private:
    bool Fetch(QIODevice& device);
    Result ReadFetched();
    Result ReadLargePayload(QIODevice& device);
    Result Refuse(const QString& reason);
    void SetName(const char* bytes, quint32 count);

    QByteArray fetched; ///< buffered bytes; those before `fetchedBegin` are consumed
    int fetchedBegin = 0;
    int largePayloadSize = -1; ///< of the payload that is read directly, without `fetched`; -1 if there is none
    QString name;
    QByteArray payload;
    QString refusal;

    QByteArray lastNameBytes;
    QString lastName;
};
