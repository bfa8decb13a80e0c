// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GaussianRows.h"

#include <algorithm>
#include <cstring>

namespace BatchWorker {

GaussianRows::GaussianRows(const Picture& picture, BlurValues values, std::shared_ptr<const GaussianKernel> kernel)
    : width(picture.width())
    , height(picture.height())
    , source(values)
    , kernel(std::move(kernel))
    , window(rowsAtOnce + 2 * this->kernel->Radius())
    , rows(static_cast<std::size_t>(2 * this->kernel->Radius() + 1))
{
}

bool GaussianRows::Take(VipsRegion* region, const VipsRect& area)
{
    const int radius = kernel->Radius();
    const auto values = static_cast<std::size_t>(area.width) * static_cast<std::size_t>(source.Channels());
    bytesOfValues = values * sizeof(float) + RowWindow::bytesBehind;
    left = area.left;
    const std::size_t bytes =
        bytesOfValues + static_cast<std::size_t>(area.width) * static_cast<std::size_t>(source.PixelSize());
    const RowWindow::Range missing =
        window.Hold({std::max(area.top - radius, 0), std::min(area.top + area.height + radius, height)},
                    {area.left, area.left + area.width, bytes});
    if (missing.first == missing.end) {
        return true;
    }
    const int first = std::max(area.left - radius, 0);
    const int end = std::min(area.left + area.width + radius, width);
    const VipsRect needed{first, missing.first, end - first, missing.end - missing.first};
    if (vips_region_prepare(region, &needed) != 0) {
        window.Forget();
        return false;
    }
    for (int y = missing.first; y < missing.end; ++y) {
        TakeRow(VIPS_REGION_ADDR(region, first, y), area, y);
    }
    return true;
}

// `pixels` begins as far left of the area as the picture does, and the radius at most.
void GaussianRows::TakeRow(const VipsPel* pixels, const VipsRect& area, int y)
{
    const int radius = kernel->Radius();
    const int channels = source.Channels();
    const int first = std::max(area.left - radius, 0);
    const int end = std::min(area.left + area.width + radius, width);
    const int before = radius - (area.left - first);
    const int behind = radius - (end - area.left - area.width);
    line.resize(static_cast<std::size_t>((area.width + 2 * radius) * channels + GaussianKernel::valuesAtOnce));
    float* const values = line.data() + before * channels;
    source.Load(pixels, end - first, values);
    for (int i = 0; i < before * channels; ++i) {
        line[static_cast<std::size_t>(i)] = values[i % channels];
    }
    float* const endOfValues = values + (end - first) * channels;
    for (int i = 0; i < behind * channels; ++i) {
        endOfValues[i] = endOfValues[i % channels - channels];
    }

    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = line.data() + i * static_cast<std::size_t>(channels);
    }
    kernel->SumUp(rows.data(), window.Row<float>(y), area.width * channels);
    const int pixelSize = source.PixelSize();
    std::memcpy(window.Row<VipsPel>(y) + bytesOfValues, pixels + (area.left - first) * pixelSize,
                static_cast<std::size_t>(area.width) * static_cast<std::size_t>(pixelSize));
}

void GaussianRows::Give(int x, int y, int count, float* values)
{
    const int radius = kernel->Radius();
    const int channels = source.Channels();
    for (int i = 0; i <= 2 * radius; ++i) {
        rows[static_cast<std::size_t>(i)] =
            window.Row<float>(std::clamp(y + i - radius, 0, height - 1)) + (x - left) * channels;
    }
    kernel->SumUp(rows.data(), values, count * channels);
}

const VipsPel* GaussianRows::Samples(int x, int y)
{
    return window.Row<VipsPel>(y) + bytesOfValues + (x - left) * source.PixelSize();
}

} // namespace BatchWorker
