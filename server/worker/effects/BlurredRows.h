// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// Gives a blurred picture in pieces of rows.
class BlurredRows
{
public:
    /// How many rows are taken at once.
    static constexpr int rowsAtOnce = 16;
    /// How many pixels of a row are given at once: those of all rows taken at once fit into the fastest memory.
    static constexpr int pixelsAtOnce = 64;

    BlurredRows() = default;
    BlurredRows(const BlurredRows&) = delete;
    BlurredRows& operator=(const BlurredRows&) = delete;
    virtual ~BlurredRows() = default;

    /// Reads what `area` of the blurred picture needs of `source`, at most `rowsAtOnce` rows. False when that fails.
    virtual bool Take(VipsRegion* source, const VipsRect& area) = 0;

    /// The values of `count` pixels, at most `pixelsAtOnce`, from (x, y) of that area on. They are as BlurValues loads
    /// them, and fill up the last group of GaussianKernel::valuesAtOnce.
    virtual void Give(int x, int y, int count, float* values) = 0;

    /// The samples of the picture itself at (x, y) of that area, with those that follow in the row.
    virtual const VipsPel* Samples(int x, int y) = 0;
};

} // namespace BatchWorker
