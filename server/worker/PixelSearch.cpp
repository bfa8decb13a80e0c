#include "PixelSearch.h"

#include "Geometry.h"
#include "Orientation.h"
#include "PixelForms.h"
#include "WorkingForm.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace BatchServer {

namespace {

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
        }
    }
    const double depth = HasSixteenBits(picture) ? 65535.0 / 255.0 : 1.0;
    int top = 0;
    int width = 0;
    int height = 0;
    const int left = picture.find_trim(
        &top, &width, &height, Picture::option()->set("background", corner)->set("threshold", smallDifference * depth));
    const bool hasOneColour = width == 0 || height == 0;
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

} // namespace BatchServer
