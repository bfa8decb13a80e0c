// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

#include <functional>
#include <vector>

namespace BatchWorker {

struct PictureShape
{
    int width;
    int height;
    int bands;
    VipsBandFormat format;
    VipsInterpretation interpretation;
};

PictureShape ShapeOf(const Picture& picture);

/// Fills the valid area of `target`. `inputs` hold the same area of the inputs, and maybe more. Called on several
/// threads at once, and must not throw.
using FillArea = std::function<void(VipsRegion* target, const std::vector<VipsRegion*>& inputs)>;

/// A picture whose pixels `fill` computes, area by area, when they are asked for; the metadata is that of the first
/// input. The inputs have the size of `shape`. FilledPicture() is for what looks at neighbours.
Picture GeneratePicture(const PictureShape& shape, const std::vector<Picture>& inputs, FillArea fill);

/// The pixel at (x, y), which `region` holds with those that follow it in its line.
template<typename T>
T* PixelAt(VipsRegion* region, int x, int y)
{
    // The library hands out bytes; they are aligned for every format.
    return static_cast<T*>(static_cast<void*>(VIPS_REGION_ADDR(region, x, y)));
}

} // namespace BatchWorker
