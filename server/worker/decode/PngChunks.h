// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>

#include <optional>

/// PNG files: a signature, then chunks of size, type, content and checksum. Source: W3C, "Portable Network Graphics".
namespace BatchWorker {

constexpr int pngSignatureSize = 8;

struct PngChunk
{
    static constexpr int headerSize = 8;
    static constexpr int checksumSize = 4;

    QByteArray header;
    QByteArray type;
    qint64 size = 0; ///< of the content

    qint64 RestSize() const { return size + checksumSize; } ///< of what comes behind the header
};

/// The chunk at the position of `file`, up to its content. Nothing behind the last one and for one that is not whole.
std::optional<PngChunk> NextPngChunk(QFile& file);

} // namespace BatchWorker
