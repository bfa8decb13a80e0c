// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

#include <cstdint>
#include <vector>

namespace BatchWorker {

/// A small picture that is laid over another: 8 bits a channel, red, green, blue and straight alpha for each pixel.
struct Overlay
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// Where along one axis an overlay lies.
struct OverlaySpan
{
    int start = 0;
    int length = 0;
    int period = 0; ///< from one tile to the next; 0: there is one only

    /// The overlay's own coordinate at the picture's coordinate `at`; negative where there is none.
    int Inside(int at) const;
};

struct OverlayPlace
{
    OverlaySpan across;
    OverlaySpan down;
    double opacity = 1;
};

/// `picture` under `overlay`, by the operator "over" of Porter and Duff for alpha that is not premultiplied; what would
/// lie outside is cut off. A grey picture takes the overlay's red.
Picture Overlaid(const Picture& picture, const Overlay& overlay, const OverlayPlace& place);

} // namespace BatchWorker
