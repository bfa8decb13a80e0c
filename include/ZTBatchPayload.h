#pragma once

#include "ZTBatchMessage.h"

#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <tuple>

/// The payloads of the messages: one record for each shape, and the catalogue that says which message carries which.
///
/// A payload is what QDataStream writes with its default settings (big-endian) for the record's fields in their order,
/// without padding, count or terminator:
///
///     const QByteArray bytes = ZTBatchPayload::Pack(ZTBatchPayload::FromServer<ZTBatchMessage::MsgProgress>{id, 7});
///     const auto progress = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgProgress>>(bytes);
///
/// Everything here is safe on any thread.
namespace ZTBatchPayload {

/// Nothing at all.
struct Empty
{
    template<typename Self>
    static auto Fields(Self&)
    {
        return std::tie();
    }
};

/// Only the session that the message concerns. Every payload but the empty one begins with it.
struct Session
{
    QString sessionId;

    template<typename Self>
    static auto Fields(Self& self)
    {
        return std::tie(self.sessionId);
    }
};

/// A job: the document's text and the five policies in force, the values of ZTBatchManager's policy enumerations.
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

/// The ends of the scale on which MsgProgress counts.
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

/// An input file and what was made of it.
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

/// A failure: the files concerned, what the server did about it (the server's own numbers) and a
/// ZTBatchMessage::Error.
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

/// The answer to a question: a value of the question's policy, and a flag whose meaning is the server's.
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

/// The record that carries `message` to the server; void when the host does not send it.
template<ZTBatchMessage::Message message>
using ToServer = decltype(Detail::RecordToServer<message>());

/// The record that carries `message` from the server; void when the server does not send it.
template<ZTBatchMessage::Message message>
using FromServer = decltype(Detail::RecordFromServer<message>());

/// The bytes of `payload`.
template<typename Payload>
QByteArray Pack(const Payload& payload)
{
    QByteArray bytes(""); // Not null: on the pipe the two differ, and a payload without fields is an empty one.
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    std::apply([&stream](const auto&... fields) { ((stream << fields), ...); }, Payload::Fields(payload));
    return bytes;
}

/// The payload that `bytes` hold. What a short payload lacks is left empty, zero or false, and bytes behind the last
/// field are not looked at; `isExact`, when given, tells whether the bytes held the fields and nothing else.
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
