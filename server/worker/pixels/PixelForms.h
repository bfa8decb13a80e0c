// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

#include <QColor>

#include <cstdint>
#include <vector>

/// The forms of pixels that say nothing about their colours, and conversions between them: depth, channels, alpha.
namespace BatchWorker {

/// Whether `picture` has 16 bits a channel; of the pictures between stages the others have 8.
bool HasSixteenBits(const Picture& picture);

/// The largest value of a channel: 255, or 65535 at 16 bits.
double LargestValue(const Picture& picture);

/// Whether `picture`, RGB or grey, is grey.
bool IsGrey(const Picture& picture);

/// The channels of `picture`, RGB or grey, without alpha: 1 or 3.
int ColourBands(const Picture& picture);

/// `picture`, of the form that stages hand on or of CMYK, with `bits` (8 or 16) a channel; 0 and the largest value stay
/// what they are, the values between are rounded.
Picture WithDepth(const Picture& picture, int bits);

/// `picture` laid on `background`, without alpha channel; as it is when it has none.
Picture Flattened(const Picture& picture, const QColor& background);

/// `picture` with an alpha channel, opaque where it is new.
Picture WithAlpha(const Picture& picture);

/// The colour channels alone, and the alpha channel alone. There must be one.
Picture WithoutAlpha(const Picture& picture);
Picture AlphaOf(const Picture& picture);

/// The values of `picture`, of 8 bits a channel, line by line.
std::vector<std::uint8_t> BytesOf(const Picture& picture);

} // namespace BatchWorker
