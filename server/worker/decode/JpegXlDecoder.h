// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FileColours.h"

#include <QSize>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct JxlDecoderStruct;

namespace BatchWorker {

/// What the head of a JPEG XL file says of its picture.
struct JpegXlHeader
{
    QSize size;          ///< as it is stored
    int orientation = 1; ///< as EXIF counts
    int bits = 8;        ///< of a channel as it is decoded: 8 or 16
    bool isGrey = false;
    bool hasAlpha = false;
    std::optional<int> black; ///< the extra channel of black ink: the colours are cyan, magenta and yellow then
    bool isAnimation = false;
    bool hasDepth = false; ///< a channel that says how far away each place is
    FileColours colours;   ///< of the decoded values

    int Bands() const { return (isGrey ? 1 : 3) + (black ? 1 : 0) + (hasAlpha ? 1 : 0); }
};

/// Decodes a JPEG XL file, which each operation reads from its beginning. Throws PictureFailure for a file that is
/// damaged or not complete.
class JpegXlDecoder
{
public:
    /// Copies up to `length` bytes from `offset` on; returns how many there were.
    using Source = std::function<qint64(qint64 offset, void* target, qint64 length)>;

    explicit JpegXlDecoder(Source source);
    ~JpegXlDecoder();

    JpegXlHeader ReadHeader();

    /// How many pictures the file shows one after the other.
    int CountFrames();

    /// The first picture: lines from top to bottom, the channels of a pixel together. Full ink is the largest
    /// value.
    std::vector<std::uint8_t> ReadPixels(const JpegXlHeader& header);

private:
    Q_DISABLE_COPY(JpegXlDecoder)

    struct Canvas;

    void Begin(int events);
    int Next();
    void Feed();
    void ReadColours(JpegXlHeader& header) const;
    void Receive(Canvas& canvas);
    bool ReadLayers(Canvas& canvas);
    void ReadWhole(Canvas& canvas);

    Source source;
    qint64 position = 0; ///< behind the bytes that the decoder has
    std::vector<std::uint8_t> piece;
    std::unique_ptr<JxlDecoderStruct, void (*)(JxlDecoderStruct*)> decoder;
};

} // namespace BatchWorker
