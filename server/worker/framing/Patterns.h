// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchWorker {

/// The built-in background patterns, drawn by code in two neutral greys.
enum class Pattern : int {
    Checkerboard = 0,
    HorizontalStripes = 1,
    VerticalStripes = 2,
    DiagonalStripes = 3,
    Grid = 4,
    Dots = 5,
    Bricks = 6,
    Waves = 7
};

/// The side in pixels of the square tile of a pattern: 32 at 100 percent, at least 2. A `percent` of 0 means 100.
int PatternTileSide(int percent);

/// How light a pattern is at (x, y) of a tile, both 0 to 1 (exclusive): one of the two greys below. Tiles fit together
/// on all sides.
double PatternValue(Pattern pattern, double x, double y);

constexpr double patternGround = 0.94;
constexpr double patternFigure = 0.80;

} // namespace BatchWorker
