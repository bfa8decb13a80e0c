// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JxlBoxes.h"

#include "BoxFile.h"

#include "server/worker/pixels/FileCalls.h"

#include <QFile>
#include <QtEndian>

#include <brotli/decode.h>

#include <memory>

namespace BatchWorker {

namespace {

// Far more than metadata takes, far less than a worker may use.
constexpr qint64 largestContent = qint64(64) << 20;

QByteArray Decompressed(const QByteArray& packed)
{
    const std::unique_ptr<BrotliDecoderState, decltype(&BrotliDecoderDestroyInstance)> decoder(
        BrotliDecoderCreateInstance(nullptr, nullptr, nullptr), BrotliDecoderDestroyInstance);
    if (!decoder) {
        return {};
    }
    QByteArray content;
    QByteArray piece(64 << 10, '\0');
    std::size_t left = std::size_t(packed.size());
    const auto* next = reinterpret_cast<const std::uint8_t*>(packed.constData());
    BrotliDecoderResult result = BROTLI_DECODER_RESULT_NEEDS_MORE_OUTPUT;
    while (result == BROTLI_DECODER_RESULT_NEEDS_MORE_OUTPUT && content.size() <= largestContent) {
        std::size_t room = std::size_t(piece.size());
        auto* place = reinterpret_cast<std::uint8_t*>(piece.data());
        result = BrotliDecoderDecompressStream(decoder.get(), &left, &next, &room, &place, nullptr);
        content += piece.left(piece.size() - int(room));
    }
    return result == BROTLI_DECODER_RESULT_SUCCESS && content.size() <= largestContent ? content : QByteArray();
}

// The block comes after a count of bytes to skip.
QByteArray ExifOf(const QByteArray& content)
{
    constexpr int countSize = 4;
    if (content.size() < countSize) {
        return {};
    }
    const quint32 passed = qFromBigEndian<quint32>(content.constData());
    return passed < quint32(content.size() - countSize) ? content.mid(countSize + int(passed)) : QByteArray();
}

void AddBlock(const QByteArray& type, const QByteArray& content, JxlMetadata& metadata)
{
    if (type == "Exif" && metadata.exif.isEmpty()) {
        metadata.exif = ExifOf(content);
    } else if (type == "xml " && metadata.xmp.isEmpty()) {
        metadata.xmp = content;
    }
}

} // namespace

JxlMetadata ReadJxlMetadata(const QString& path)
{
    JxlMetadata metadata;
    QFile file;
    constexpr int enough = 12;
    if (!OpenFile(file, path, QIODevice::ReadOnly) || file.peek(enough).mid(boxTypeSize, boxTypeSize) != "JXL ") {
        return metadata; // the bare pixels
    }
    while (const std::optional<BoxHeader> box = NextBox(file)) {
        const qint64 end = file.pos() + box->size;
        const bool isPacked = box->type == "brob";
        if ((isPacked || box->type == "Exif" || box->type == "xml ") && box->size <= largestContent) {
            const QByteArray content = file.read(box->size);
            if (isPacked) {
                AddBlock(content.left(boxTypeSize), Decompressed(content.mid(boxTypeSize)), metadata);
            } else {
                AddBlock(box->type, content, metadata);
            }
        }
        if (!file.seek(end)) {
            break;
        }
    }
    return metadata;
}

} // namespace BatchWorker
