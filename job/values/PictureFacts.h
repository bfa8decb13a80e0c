// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>

namespace BatchJob {

/// The longest side, in pixels, that a picture can have.
constexpr int longestPictureSide = 10'000'000;

/// What is known of a picture that was written.
struct PictureFacts
{
    QSize inputSize;         ///< pixels, upright; empty if it is not known
    QSize outputSize;        ///< pixels; empty if it is not known
    qint64 outputBytes = -1; ///< of the file; negative if it is not known
    int quality = 0;         ///< 1 to 100; 0 if the format has none, or the picture was written without loss
    int milliseconds = -1;   ///< that the picture took; negative if it is not known

    bool operator==(const PictureFacts& other) const
    {
        return inputSize == other.inputSize && outputSize == other.outputSize && outputBytes == other.outputBytes &&
               quality == other.quality && milliseconds == other.milliseconds;
    }
};

/// `facts`, with what no picture can have taken as not known.
PictureFacts PossibleFacts(const PictureFacts& facts);

} // namespace BatchJob
