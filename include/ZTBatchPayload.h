// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchMessage.h"

#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <tuple>

/// The payloads of the messages: one record for each layout, and the mapping of messages to records.
///
/// A payload consists of the record's fields in their order, as QDataStream writes them with its default settings
/// (big-endian), without padding, count or terminator:
///
///     const QByteArray bytes = ZTBatchPayload::Pack(ZTBatchPayload::FromServer<ZTBatchMessage::MsgProgress>{id, 7});
///     const auto progress = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgProgress>>(bytes);
///
/// All functions are thread-safe.
namespace ZTBatchPayload {

/// No fields.
struct Empty
{
    template<typename Self>
    static auto Fields(Self&)
    {
        return std::tie();
    }
};

/// The session that the message concerns. Every payload except Empty begins with this field.
struct Session
{
    QString sessionId;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId);
    }
};

/// A job: the document's text and the five current policies, as values of ZTBatchManager's policy enumerations.
struct Process
{
    QString sessionId;
    QString document;
    int inputPolicy = 0;
    int outputPolicy = 0;
    int processingPolicy = 0;
    int namingPolicy = 0;
    int writeToFormatPolicy = 0;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.document, self.inputPolicy, self.outputPolicy, self.processingPolicy,
                        self.namingPolicy, self.writeToFormatPolicy);
    }
};

/// How far the run is, within the range announced by MsgProgressRange.
struct Progress
{
    QString sessionId;
    int value = 0;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.value);
    }
};

/// The range of the values in MsgProgress.
struct ProgressRange
{
    QString sessionId;
    int minimum = 0;
    int maximum = 0;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.minimum, self.maximum);
    }
};

/// An input file.
struct InputFile
{
    QString sessionId;
    QString inputFileName;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.inputFileName);
    }
};

/// An input file and its result.
struct FilePair
{
    QString sessionId;
    QString inputFileName;
    QString outputFileName;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.inputFileName, self.outputFileName);
    }
};

/// A line of the run's log.
struct Log
{
    QString sessionId;
    QString text;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.text);
    }
};

/// A failure: the files concerned, the server's action (defined by the server) and a ZTBatchMessage::Error.
struct Error
{
    QString sessionId;
    QString inputFileName;
    QString outputFileName;
    int action = 0;
    int errorCode = 0;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.inputFileName, self.outputFileName, self.action, self.errorCode);
    }
};

/// The answer to a question: a value of the question's policy, and a flag that the server defines.
struct Answer
{
    QString sessionId;
    int policy = 0;
    bool flag = false;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId, self.policy, self.flag);
    }
};

namespace Detail {

template<ZTBatchMessage::Message message>
auto RecordToServer()
{
    if constexpr (message <= ZTBatchMessage::MsgCancel) {
        return Session();
    } else if constexpr (message == ZTBatchMessage::MsgProcess) {
        return Process();
    } else if constexpr (message >= ZTBatchMessage::MsgInputQuestion &&
                         message <= ZTBatchMessage::MsgWriteToFormatQuestion) {
        return Answer();
    } else if constexpr (message == ZTBatchMessage::MsgCloseServer) {
        return Empty();
    }
}

template<ZTBatchMessage::Message message>
auto RecordFromServer()
{
    if constexpr (message == ZTBatchMessage::MsgProgress) {
        return Progress();
    } else if constexpr (message == ZTBatchMessage::MsgFileInProgress) {
        return InputFile();
    } else if constexpr (message == ZTBatchMessage::MsgFileProcessed) {
        return FilePair();
    } else if constexpr (message == ZTBatchMessage::MsgLog) {
        return Log();
    } else if constexpr (message == ZTBatchMessage::MsgProgressRange) {
        return ProgressRange();
    } else if constexpr (message == ZTBatchMessage::MsgError) {
        return Error();
    } else if constexpr (message >= ZTBatchMessage::MsgFinished &&
                         message <= ZTBatchMessage::MsgWriteToFormatQuestion) {
        return Session();
    }
}

} // namespace Detail

/// The payload of `message` to the server; void if the host does not send it.
template<ZTBatchMessage::Message message>
using ToServer = decltype(Detail::RecordToServer<message>());

/// The payload of `message` from the server; void if the server does not send it.
template<ZTBatchMessage::Message message>
using FromServer = decltype(Detail::RecordFromServer<message>());

/// The bytes of `payload`.
template<typename Payload>
QByteArray Pack(const Payload& payload)
{
    QByteArray bytes(""); // Not null: the pipe distinguishes null from empty, and a payload without fields is empty.
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    std::apply([&stream](const auto&... fields) { ((stream << fields), ...); }, Payload::Fields(payload));
    return bytes;
}

/// The payload in `bytes`. Fields that are missing are empty, zero or false, and bytes after the last field are
/// ignored. `isExact` may be null; otherwise it is set to whether `bytes` held exactly the fields.
template<typename Payload>
Payload Unpack(const QByteArray& bytes, bool* isExact = nullptr)
{
    Payload payload;
    QDataStream stream(bytes);
    std::apply([&stream](auto&... fields) { ((stream >> fields), ...); }, Payload::Fields(payload));
    if (isExact) {
        *isExact = stream.status() == QDataStream::Ok && stream.atEnd();
    }
    return payload;
}

} // namespace ZTBatchPayload
