// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerMessages.h"

#include <QtEndian>

#include <tuple>
#include <type_traits>
#include <utility>

namespace BatchProtocol {

namespace {

// A job may carry a colour profile of some megabytes as hexadecimal text. Nothing else is large.
constexpr quint32 maximumPayload = 256U << 20;

// A report is a few lines. A worker that a malicious picture has taken over must not fill the memory of its client.
constexpr quint32 maximumReport = 1U << 20;

// More than any picture has.
constexpr int mostWarnings = 1000;

// On the wire 0 is no failure, and the policies count from 1.
constexpr int firstPolicy = 1;

QDataStream& operator<<(QDataStream& stream, BatchJob::PolicyKind kind)
{
    return stream << qint32(qint64(kind) + firstPolicy);
}

QDataStream& operator>>(QDataStream& stream, BatchJob::PolicyKind& kind)
{
    qint32 value = 0;
    stream >> value;
    kind = BatchJob::PolicyKind(qint64(value) - firstPolicy);
    return stream;
}

template<typename Field>
void WriteField(QDataStream& stream, const Field& field)
{
    stream << field;
}

template<typename Field>
void ReadField(QDataStream& stream, Field& field)
{
    stream >> field;
}

/// The count comes first, and Qt's own operators would take memory for any.
template<typename List>
void ReadList(QDataStream& stream, List& list)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        typename List::value_type item;
        stream >> item;
        list.append(item);
    }
}

void ReadField(QDataStream& stream, QStringList& texts)
{
    ReadList(stream, texts);
}

void ReadField(QDataStream& stream, BatchJob::Warnings& warnings)
{
    ReadList(stream, warnings);
    if (warnings.size() > mostWarnings) {
        stream.setStatus(QDataStream::ReadCorruptData);
    }
}

/// Times are those of the local clock. To read a time zone would open a file that the sender names.
void WriteField(QDataStream& stream, const QDateTime& time)
{
    const QDateTime local = time.toLocalTime();
    stream << local.date() << local.time();
}

void ReadField(QDataStream& stream, QDateTime& time)
{
    QDate date;
    QTime clock;
    stream >> date >> clock;
    time = date.isValid() && clock.isValid() ? QDateTime(date, clock) : QDateTime();
}

template<typename Record>
auto Fields(Record& record)
{
    using Plain = std::remove_const_t<Record>;
    if constexpr (std::is_same_v<Plain, Job>) {
        return std::tie(record.document, record.limits.workers, record.limits.pixels, record.limits.workerMemory,
                        record.limits.pictureSeconds, record.rights.readable, record.rights.writable,
                        record.rights.usesFonts);
    } else if constexpr (std::is_same_v<Plain, ProbeTask>) {
        return std::tie(record.number, record.inputFile);
    } else if constexpr (std::is_same_v<Plain, PictureTask>) {
        return std::tie(record.number, record.inputFile, record.outputFile, record.outputRoot, record.format,
                        record.replaceExisting, record.fileNumber, record.keepsPixels, record.countsTwin);
    } else if constexpr (std::is_same_v<Plain, Beginning>) {
        return std::tie(record.number);
    } else {
        return std::tie(record.number, record.failure, record.errorCode, record.reason, record.detail, record.warnings,
                        record.nearestFormat, record.inputFormat, record.captured, record.facts.inputSize,
                        record.facts.outputSize, record.facts.quality, record.facts.milliseconds, record.texts.camera,
                        record.texts.lens, record.texts.focal, record.texts.aperture, record.texts.shutter,
                        record.texts.iso, record.texts.title, record.texts.creator, record.usedKeptPixels);
    }
}

template<typename Record>
void Write(QDataStream& stream, const Record& record)
{
    std::apply([&stream](const auto&... fields) { (WriteField(stream, fields), ...); }, Fields(record));
}

template<typename Record>
std::optional<Record> Read(QDataStream& stream)
{
    Record record;
    std::apply([&stream](auto&... fields) { (ReadField(stream, fields), ...); }, Fields(record));
    return stream.status() == QDataStream::Ok && stream.atEnd() ? std::optional(record) : std::nullopt;
}

template<typename Writer>
QByteArray Frame(const Writer& write)
{
    QByteArray bytes(sizeof(quint32), '\0');
    QDataStream stream(&bytes, QIODevice::Append);
    write(stream);
    qToBigEndian(quint32(bytes.size()) - quint32(sizeof(quint32)), bytes.data());
    return bytes;
}

// The number of its kind, then the record.
template<typename AnyMessage>
QByteArray FrameOf(const AnyMessage& message)
{
    return Frame([&message](QDataStream& stream) {
        stream << quint8(message.index());
        std::visit([&stream](const auto& record) { Write(stream, record); }, message);
    });
}

template<typename AnyMessage, std::size_t kind>
std::optional<AnyMessage> ReadKind(QDataStream& stream)
{
    std::optional<std::variant_alternative_t<kind, AnyMessage>> message =
        Read<std::variant_alternative_t<kind, AnyMessage>>(stream);
    return message ? std::optional<AnyMessage>(std::move(*message)) : std::nullopt;
}

template<typename AnyMessage, std::size_t... kinds>
std::optional<AnyMessage> ReadAny(const QByteArray& payload, std::index_sequence<kinds...>)
{
    QDataStream stream(payload);
    quint8 wanted = 0;
    stream >> wanted;
    std::optional<AnyMessage> message;
    ((kinds == wanted ? void(message = ReadKind<AnyMessage, kinds>(stream)) : void()), ...);
    return message;
}

} // namespace

QByteArray FrameToWorker(const ToWorker& message)
{
    return FrameOf(message);
}

QByteArray FrameFromWorker(const FromWorker& message)
{
    return FrameOf(message);
}

void FrameReader::Append(const QByteArray& bytes)
{
    if (!isBroken) {
        buffer.append(bytes);
    }
}

template<typename AnyMessage>
std::optional<AnyMessage> FrameReader::Next(quint32 maximum)
{
    const std::optional<QByteArray> payload = NextPayload(maximum);
    if (!payload) {
        return std::nullopt;
    }
    std::optional<AnyMessage> message =
        ReadAny<AnyMessage>(*payload, std::make_index_sequence<std::variant_size_v<AnyMessage>>());
    isBroken = !message;
    return message;
}

std::optional<ToWorker> FrameReader::NextToWorker()
{
    return Next<ToWorker>(maximumPayload);
}

std::optional<FromWorker> FrameReader::NextFromWorker()
{
    return Next<FromWorker>(maximumReport);
}

std::optional<QByteArray> FrameReader::NextPayload(quint32 maximum)
{
    constexpr int header = sizeof(quint32);
    if (isBroken || buffer.size() < header) {
        return std::nullopt;
    }
    const quint32 size = qFromBigEndian<quint32>(buffer.constData());
    if (size > maximum) {
        isBroken = true;
        return std::nullopt;
    }
    if (buffer.size() - header < int(size)) {
        return std::nullopt;
    }
    const QByteArray payload = buffer.mid(header, int(size));
    buffer.remove(0, header + int(size));
    return payload;
}

} // namespace BatchProtocol
