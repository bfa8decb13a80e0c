#include "PixelSearch.h"

#include "server/worker/colour/WorkingForm.h"
#include "server/worker/geometry/Geometry.h"
#include "server/worker/geometry/Orientation.h"
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

std::vector<double> CornerColour(PictureSource& source)
{
    const QSize upright = TurnedSize(source.StoredSize(), source.Orientation());
    const QPoint corner = StoredRect(QRect(0, 0, 1, 1), upright, source.Orientation()).topLeft();
    return InWorkingForm(source.Load()).getpoint(corner.x(), corner.y());
}

} // namespace

QRect FrameWithoutBorder(PictureSource& source)
{
    constexpr double smallDifference = 10; // of 255
    std::vector<double> corner = CornerColour(source);
    Picture picture = InWorkingForm(source.Load());
    if (picture.has_alpha()) {
        // On transparency the colours mean nothing: then the border ends where something can be seen.
        const bool isTransparent = corner.back() == 0;
        corner.pop_back();
        if (isTransparent) {
            picture = AlphaOf(picture);
            corner = {0.0};
        } else {
            picture = picture.flatten(Picture::option()->set("background", corner));
        }
    }
    const double depth = HasSixteenBits(picture) ? 65535.0 / 255.0 : 1.0;
    // The library's own search takes thin lines and single pixels for noise.
    const Picture content = ((picture - corner).abs() > smallDifference * depth).bandor();
    Picture rows;
    const Picture columns = content.project(&rows);
    const auto [left, width] = Extent(columns);
    const auto [top, height] = Extent(rows);
    const bool hasOneColour = width == 0;
    return hasOneColour ? QRect(QPoint(0, 0), source.StoredSize()) : QRect(left, top, width, height);
}

QRect FrameOfInterest(PictureSource& source, const QSize& ratio)
{
    constexpr double enough = 512; // pixels; the search looks at far fewer
    const QSize whole = source.StoredSize();
    const double reduction = std::max(1.0, std::max(whole.width(), whole.height()) / enough);
    const Picture loaded = InWorkingForm(source.Load(source.PossibleShrink(reduction)));
    const Picture small =
        loaded.resize(std::min(1.0, enough / std::max(loaded.width(), loaded.height()))).copy_memory();
    const QSize smallFrame = LargestOfRatio(ratio, QSize(small.width(), small.height()));
    const Picture found = small.smartcrop(smallFrame.width(), smallFrame.height(),
                                          Picture::option()->set("interesting", VIPS_INTERESTING_ATTENTION));
    const QSize frame = LargestOfRatio(ratio, whole);
    const auto scaled = [](int offset, int from, int to) { return int(std::lround(double(offset) * to / from)); };
    return {std::min(scaled(-found.xoffset(), small.width(), whole.width()), whole.width() - frame.width()),
            std::min(scaled(-found.yoffset(), small.height(), whole.height()), whole.height() - frame.height()),
            frame.width(), frame.height()};
}

} // namespace BatchWorker
