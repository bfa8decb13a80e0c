// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CropSearch.h"

#include "job/geometry/Geometry.h"

#include "server/worker/pixels/PixelForms.h"

#include <QPair>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace BatchWorker {

namespace {

/// The place of the first sum that is not 0, and how many there are up to the last; 0 when there is none.
QPair<int, int> Extent(const Picture& sums)
{
    std::size_t size = 0;
    void* const memory = sums.write_to_memory(&size);
    const auto* const begin = static_cast<const std::uint32_t*>(memory);
    const auto* const end = begin + size / sizeof(std::uint32_t);
    const auto isContent = [](std::uint32_t sum) { return sum != 0; };
    const auto* const first = std::find_if(begin, end, isContent);
    const auto* last = end;
    while (last != first && !isContent(last[-1])) {
        --last;
    }
    const QPair<int, int> extent(int(first - begin), int(last - first));
    g_free(memory);
    return extent;
}

} // namespace

QRect FrameWithoutBorder(const Picture& picture, const std::vector<double>& border)
{
    constexpr double smallDifference = 10; // of 255
    Picture visible = picture;
    std::vector<double> background = border;
    if (picture.has_alpha()) {
        // On transparency the colours mean nothing: then the border ends where something can be seen.
        const bool isTransparent = background.back() == 0;
        background.pop_back();
        if (isTransparent) {
            visible = AlphaOf(picture);
            background = {0.0};
        } else {
            visible = picture.flatten(Picture::option()->set("background", background));
        }
    }
    const double depth = LargestValue(picture) / 255.0;
    // The library's own search takes thin lines and single pixels for noise.
    const Picture content = ((visible - background).abs() > smallDifference * depth).bandor();
    Picture rows;
    const Picture columns = content.project(&rows);
    const auto [left, width] = Extent(columns);
    const auto [top, height] = Extent(rows);
    const bool hasOneColour = width == 0;
    return hasOneColour ? QRect(0, 0, picture.width(), picture.height()) : QRect(left, top, width, height);
}

QRect FrameOfInterest(const Picture& picture, const QSize& sourceSize, const QSize& ratio)
{
    const double scale = interestSearchSide / std::max(picture.width(), picture.height());
    const Picture small = picture.resize(std::min(1.0, scale)).copy_memory();
    const QSize smallFrame = BatchJob::LargestOfRatio(ratio, QSize(small.width(), small.height()));
    const Picture found = small.smartcrop(smallFrame.width(), smallFrame.height(),
                                          Picture::option()->set("interesting", VIPS_INTERESTING_ATTENTION));
    const QSize frame = BatchJob::LargestOfRatio(ratio, sourceSize);
    const auto scaled = [](int offset, int from, int to) { return int(std::lround(double(offset) * to / from)); };
    return {
        std::min(scaled(-found.xoffset(), small.width(), sourceSize.width()), sourceSize.width() - frame.width()),
        std::min(scaled(-found.yoffset(), small.height(), sourceSize.height()), sourceSize.height() - frame.height()),
        frame.width(), frame.height()};
}

} // namespace BatchWorker
