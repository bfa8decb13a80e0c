// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BlurValues.h"
#include "BlurredRows.h"

#include "server/worker/pixels/RowWindow.h"

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

namespace BatchWorker {

/// A picture that was reduced by blocks, with a border of one block, and then blurred.
struct SmallCopy
{
    static constexpr int partsOfByte = 257;

    int width;
    int factor;

    /// Those of a picture of 8 bits are whole numbers of parts: they take half of the memory, and are exact enough.
    std::variant<std::vector<std::uint16_t>, std::vector<float>> values;
};

/// Where a row or column of the picture lies in its small copy: between two values.
class PlaceInCopy
{
public:
    PlaceInCopy(int pixel, int factor)
        : steps(2 * factor)
        // A value of the copy belongs to the middle of its block; the border comes before the first.
        , before((2 * pixel - (factor - 1) + steps) / steps)
        , rest((2 * pixel - (factor - 1) + steps) % steps)
    {
    }

    void MoveOn()
    {
        rest += 2;
        if (rest >= steps) {
            rest -= steps;
            ++before;
        }
    }

    /// The value before it, and the share of the one behind.
    int Before() const { return before; }
    float Share() const { return static_cast<float>(rest) / static_cast<float>(steps); }

private:
    int steps;
    int before;
    int rest;
};

/// Enlarges a small copy linearly, first along its rows, then across them.
class EnlargedRows : public BlurredRows
{
public:
    /// `readsSource` says whether Samples() are asked for.
    EnlargedRows(std::shared_ptr<const SmallCopy> copy, BlurValues values, bool readsSource);

    bool Take(VipsRegion* from, const VipsRect& area) override;
    void Give(int x, int y, int count, float* values) override;
    const VipsPel* Samples(int x, int y) override;

private:
    void TakeRow(int row, const VipsRect& area);

    std::shared_ptr<const SmallCopy> copy;
    BlurValues source;
    bool readsSource;
    RowWindow window;
    VipsRegion* region = nullptr;
    int left = 0;
};

} // namespace BatchWorker
