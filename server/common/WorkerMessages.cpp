#include "WorkerMessages.h"

#include <QtEndian>

#include <tuple>

namespace BatchServer {

namespace {

// A job may carry a colour profile of some megabytes as hexadecimal text. Nothing else is large.
constexpr quint32 maximumPayload = 256U << 20;

// A report is a few lines. A worker that was taken over by a picture does not get the supervisor to fill its memory.
constexpr quint32 maximumReport = 1U << 20;

template<typename Record>
auto Fields(Record& record)
{
    using Plain = std::remove_const_t<Record>;
    if constexpr (std::is_same_v<Plain, Job>) {
        return std::tie(record.document, record.limits.workers, record.limits.pixels, record.limits.workerMemory,
                        record.limits.pictureSeconds);
    } else if constexpr (std::is_same_v<Plain, ProbeTask>) {
        return std::tie(record.number, record.inputFile);
    } else if constexpr (std::is_same_v<Plain, PictureTask>) {
        return std::tie(record.number, record.inputFile, record.outputFile, record.format, record.replaceExisting);
    } else {
        return std::tie(record.number, record.failure, record.errorCode, record.reason, record.warnings,
                        record.nearestFormat, record.inputFormat, record.captured, record.outputBytes);
    }
}

template<typename Record>
void Write(QDataStream& stream, const Record& record)
{
    std::apply([&stream](const auto&... fields) { ((stream << fields), ...); }, Fields(record));
}

template<typename Record>
std::optional<Record> Read(QDataStream& stream)
{
    Record record;
    std::apply([&stream](auto&... fields) { ((stream >> fields), ...); }, Fields(record));
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

template<typename Message>
std::optional<ToWorker> ReadToWorker(QDataStream& stream)
{
    const std::optional<Message> message = Read<Message>(stream);
    return message ? std::optional<ToWorker>(*message) : std::nullopt;
}

} // namespace

QByteArray FrameToWorker(const ToWorker& message)
{
    return Frame([&message](QDataStream& stream) {
        stream << quint8(message.index());
        std::visit([&stream](const auto& record) { Write(stream, record); }, message);
    });
}

QByteArray FrameFromWorker(const Report& report)
{
    return Frame([&report](QDataStream& stream) { Write(stream, report); });
}

void FrameReader::Append(const QByteArray& bytes)
{
    if (!isBroken) {
        buffer.append(bytes);
    }
}

std::optional<ToWorker> FrameReader::NextToWorker()
{
    const std::optional<QByteArray> payload = NextPayload(maximumPayload);
    if (!payload) {
        return std::nullopt;
    }
    QDataStream stream(*payload);
    quint8 kind = 0;
    stream >> kind;
    std::optional<ToWorker> message;
    switch (kind) {
    case 0:
        message = ReadToWorker<Job>(stream);
        break;
    case 1:
        message = ReadToWorker<ProbeTask>(stream);
        break;
    case 2:
        message = ReadToWorker<PictureTask>(stream);
        break;
    default:
        break;
    }
    isBroken = !message;
    return message;
}

std::optional<Report> FrameReader::NextFromWorker()
{
    const std::optional<QByteArray> payload = NextPayload(maximumReport);
    if (!payload) {
        return std::nullopt;
    }
    QDataStream stream(*payload);
    std::optional<Report> report = Read<Report>(stream);
    isBroken = !report;
    return report;
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

} // namespace BatchServer
