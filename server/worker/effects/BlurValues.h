// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// What of a picture is blurred.
enum class BlurSubject {
    Colours, ///< with alpha, if there is one
    Luma,    ///< of the colours
    Bands,   ///< of floating-point values, each by itself
};

/// Values of a picture, in its range, as they are blurred: those of opacity less than full are weighted by it, so that
/// the result is right for colours of any opacity.
class BlurValues
{
public:
    BlurValues(const Picture& picture, BlurSubject subject);

    /// How many there are of each pixel.
    int Channels() const { return channels; }

    /// The bytes of a pixel of the picture.
    int PixelSize() const { return pixelSize; }

    /// Those of `count` pixels of the picture.
    void Load(const VipsPel* pixels, int count, float* values) const;

    /// Takes the weight of the opacity out again. A colour of no opacity becomes 0. Of luma the alpha is left out, so
    /// that one value for each pixel stays.
    void Finish(float* values, int count) const;

private:
    int bands;
    int channels;
    int pixelSize;
    bool hasAlpha;
    float largest;
    VipsBandFormat format;
    BlurSubject subject;
};

} // namespace BatchWorker
