// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Reads a stream as messages to a worker and as messages from one, in pieces whose sizes depend on the first byte; an
// odd one makes the rest one frame. However the stream is cut, the messages are those of the whole stream, and a
// message that was read can be written and read again. What a client makes of a report is bounded, and no report is
// without its case.

#include "Require.h"

#include "server/protocol/TaskFailure.h"
#include "server/protocol/WorkerMessages.h"

#include <QVector>
#include <QtEndian>

#include <algorithm>
#include <cstdint>

using namespace BatchProtocol;

namespace {

constexpr int longestText = 1200; // What the client keeps of a text, and its own words around it.
constexpr int mostWarnings = 20;

std::optional<ToWorker> Next(FrameReader& reader, const ToWorker*)
{
    return reader.NextToWorker();
}

std::optional<FromWorker> Next(FrameReader& reader, const FromWorker*)
{
    return reader.NextFromWorker();
}

QByteArray Frame(const ToWorker& message)
{
    return FrameToWorker(message);
}

QByteArray Frame(const FromWorker& message)
{
    return FrameFromWorker(message);
}

template<typename AnyMessage>
QVector<AnyMessage> ReadAll(FrameReader& reader)
{
    QVector<AnyMessage> messages;
    while (const std::optional<AnyMessage> message = Next(reader, static_cast<const AnyMessage*>(nullptr))) {
        messages.append(*message);
    }
    return messages;
}

template<typename AnyMessage>
QByteArray Frames(const QVector<AnyMessage>& messages)
{
    QByteArray frames;
    for (const AnyMessage& message : messages) {
        frames.append(Frame(message));
    }
    return frames;
}

template<typename AnyMessage>
QVector<AnyMessage> RequireSameInPieces(const QByteArray& stream, unsigned seed)
{
    FrameReader wholeReader;
    wholeReader.Append(stream);
    const QVector<AnyMessage> expected = ReadAll<AnyMessage>(wholeReader);

    FrameReader reader;
    QVector<AnyMessage> messages;
    for (int begin = 0; begin < stream.size();) {
        seed = seed * 1103515245U + 12345U;
        const int length = 1 + static_cast<int>((seed >> 16) % 9);
        reader.Append(stream.mid(begin, length));
        begin += length;
        messages += ReadAll<AnyMessage>(reader);
    }
    Require(reader.IsBroken() == wholeReader.IsBroken());
    const QByteArray frames = Frames(expected);
    Require(Frames(messages) == frames);

    FrameReader again;
    again.Append(frames);
    const QVector<AnyMessage> repeated = ReadAll<AnyMessage>(again);
    Require(!again.IsBroken() && repeated.size() == expected.size());
    Require(Frames(repeated) == frames);
    return expected;
}

void RequireShortLine(const QString& text)
{
    Require(text.size() <= longestText);
    Require(text.trimmed() == text.simplified());
}

void RequirePossible(const QSize& size)
{
    Require(!size.isValid() ||
            (size.width() >= 1 && size.width() <= 10'000'000 && size.height() >= 1 && size.height() <= 10'000'000));
}

void RequireBounded(const Report& report)
{
    const Report failure = CheckedFailure(report);
    Require(failure.number == report.number);
    Require(failure.failure >= BatchJob::PolicyKind::Input && failure.failure <= BatchJob::PolicyKind::WriteToFormat);
    Require(failure.errorCode != ZTBatchMessage::NoError);
    RequireShortLine(failure.reason);
    RequireShortLine(failure.detail);

    const BatchJob::Trouble trouble = TroubleOf(report);
    Require(trouble.kind == failure.failure && trouble.code == failure.errorCode && trouble.isFromWorker);
    const BatchJob::Trouble again = TroubleOf(failure);
    Require(again.kind == trouble.kind && again.code == trouble.code);

    const BatchJob::Warnings warnings = CheckedWarnings(report);
    Require(warnings.size() <= mostWarnings);
    for (const BatchJob::Warning& warning : warnings) {
        RequireShortLine(warning.text);
    }
    const BatchJob::PictureFacts facts = CheckedFacts(report);
    Require(BatchJob::PossibleFacts(facts) == facts);
    RequirePossible(facts.inputSize);
    RequirePossible(facts.outputSize);
    Require(facts.quality >= 0 && facts.quality <= 100 && facts.milliseconds >= -1);
    RequirePossible(ProbeResultOf(report).size);
    const BatchJob::PictureTexts texts = ProbeResultOf(report).texts;
    for (const QString& text : {texts.camera, texts.lens, texts.focal, texts.aperture, texts.shutter, texts.iso,
                                texts.title, texts.creator}) {
        RequireShortLine(text);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    QByteArray stream(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size - 1));
    if (data[0] % 2 != 0) {
        // One frame of the right length: a change of its content seldom keeps the length.
        QByteArray length(int(sizeof(quint32)), '\0');
        qToBigEndian(quint32(stream.size()), length.data());
        stream.prepend(length);
    }
    RequireSameInPieces<ToWorker>(stream, data[0]);
    for (const FromWorker& message : RequireSameInPieces<FromWorker>(stream, data[0])) {
        if (const auto* const report = std::get_if<Report>(&message)) {
            RequireBounded(*report);
        }
    }
    return 0;
}
