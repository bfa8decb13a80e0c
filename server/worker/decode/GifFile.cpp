// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GifFile.h"

#include "ByteScanner.h"
#include "LibraryLoader.h"

#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PixelForms.h"

#include <QRect>

#include <optional>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

void SkipPalette(ByteScanner& file, int flags)
{
    constexpr int hasPalette = 0x80;
    constexpr int sizeBits = 7;
    if ((flags & hasPalette) != 0) {
        file.Skip(qint64(3) * (2 << (flags & sizeBits)));
    }
}

void SkipExtension(ByteScanner& file)
{
    file.Next(); // its kind
    for (int size = file.Next(); size > 0; size = file.Next()) {
        file.Skip(size);
    }
}

// The place of the first frame on the canvas. Nothing if the file has no frame. Source of the layout: CompuServe,
// Graphics Interchange Format, Version 89a.
std::optional<QRect> FirstFrame(int descriptor)
{
    constexpr int signatureAndCanvas = 6 + 4;
    constexpr int backgroundAndAspect = 2;
    constexpr int extension = 0x21;
    constexpr int frame = 0x2C;
    ByteScanner file(descriptor);
    file.Skip(signatureAndCanvas);
    const int flags = file.Next();
    file.Skip(backgroundAndAspect);
    SkipPalette(file, flags);
    int block = file.Next();
    for (; block == extension; block = file.Next()) {
        SkipExtension(file);
    }
    if (block != frame) {
        return std::nullopt;
    }
    const int left = file.NextLittleWord();
    const int top = file.NextLittleWord();
    const int width = file.NextLittleWord();
    const int height = file.NextLittleWord();
    return QRect(left, top, width, height);
}

} // namespace

Picture ReadGif(int descriptor, int, const ServerLimits&, Warnings&)
{
    const Picture canvas = LoadWithLibrary("gifload_source", SourceOf(descriptor));
    const QRect whole(0, 0, canvas.width(), canvas.height());
    const QRect frame = FirstFrame(descriptor).value_or(whole).intersected(whole);
    if (frame == whole || frame.isEmpty()) {
        return canvas;
    }
    // The decoder paints black where no frame has been.
    return WithAlpha(canvas.extract_area(frame.left(), frame.top(), frame.width(), frame.height()))
        .embed(frame.left(), frame.top(), whole.width(), whole.height());
}

} // namespace BatchWorker
