// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

namespace BatchWorker {

/// A part of a picture as floats, four of each pixel.
struct PixelBlock
{
    int left;
    int top;
    std::ptrdiff_t stride; ///< floats of a row
    const float* values;
};

/// Values between pixels by Catmull and Rom's cubic, at steps of 1/64 of a pixel.
class BicubicTurn
{
public:
    /// Places of the source, in pixels from the middle of its first one, along a row of the canvas.
    struct Line
    {
        double x;
        double y;
        double stepX;
        double stepY;
    };

    BicubicTurn();

    /// `count` pixels from `first` on. `block` holds the four nearest of each direction.
    void Interpolate(const PixelBlock& block, const Line& line, int first, int count, float* values) const;

private:
    std::vector<float> across; ///< for each step the four weights, each for the four values of a pixel
    std::vector<float> down;   ///< for each step the four weights
};

} // namespace BatchWorker
