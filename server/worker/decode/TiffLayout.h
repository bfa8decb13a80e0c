// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TiffHandle.h"

#include "job/values/Warning.h"

namespace BatchWorker {

/// What the samples of a TIFF file mean.
enum class TiffColours {
    Grey,
    InverseGrey, ///< 0 is white
    Palette,
    Rgb,
    Cmyk,
    CieLab,
    IccLab,   ///< like CieLab, with other codes
    ItuLab,   ///< like CieLab, with other ranges
    LogGrey,  ///< light, which the decoder gives as floating point
    LogXyz,   ///< the same in three channels: X, Y, Z
    Converted ///< the decoder makes RGB of 8 bits of it: brightness and colour differences
};

enum class TiffNumbers { Unsigned, Signed, Floating };

enum class TiffAlpha { None, Straight, Premultiplied };

/// How the pixels of a TIFF file are stored.
struct TiffLayout
{
    int width = 0;
    int height = 0;
    TiffColours colours = TiffColours::Grey;
    int colourSamples = 1; ///< at the front of a pixel
    TiffAlpha alpha = TiffAlpha::None;
    int alphaSample = 0; ///< its place in the pixel
    int samples = 1;     ///< of a pixel, those included that nothing is known of
    int bits = 8;        ///< of a sample
    TiffNumbers numbers = TiffNumbers::Unsigned;
    bool isPlanar = false; ///< each sample in a plane of its own
    bool isTiled = false;
    int unitWidth = 0;  ///< of a tile; of a strip that of the picture
    int unitHeight = 0; ///< of a tile or strip, at most that of the picture for strips
};

/// The layout of the first directory of `file`, which is set to decode it. Throws PictureFailure with a reason for what
/// cannot be read; a warning tells what is left out.
TiffLayout LayoutOf(const TiffHandle& file, BatchJob::Warnings& warnings);

} // namespace BatchWorker
