// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

namespace BatchWorker {

/// What is the same for all tiles of a picture.
struct Jpeg2000Layout
{
    int bands = 0;
    bool isDeep = false;       ///< samples have 16 bits, otherwise 8
    bool isSubsampled = false; ///< RGB becomes brightness and two differences of colour, these with half the sides
};

/// The part of a picture that is a tile. Its place in the picture is even in both directions.
struct Jpeg2000Area
{
    const std::uint8_t* samples = nullptr; ///< the first pixel, the channels of a pixel together
    std::size_t lineSize = 0;              ///< in bytes
    int width = 0;
    int height = 0;
};

/// The samples of a tile as the encoder takes them: channel by channel, line by line. The vector is that of the last
/// tile, so that memory is taken once.
void FillPlanes(const Jpeg2000Area& area, const Jpeg2000Layout& layout, std::vector<std::uint8_t>& planes);

} // namespace BatchWorker
