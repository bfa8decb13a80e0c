#include "ColourParameter.h"
#include "EffectFunctions.h"

#include "server/worker/colour/PictureColours.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

// The size changes. A grey picture becomes RGB for a colour that is not grey, and a colour that is not opaque gives an
// alpha channel.
Picture ApplyBorder(const Picture& picture, const QJsonObject& parameters)
{
    const bool isPercent = parameters[QLatin1String("unit")].toString() == QLatin1String("percent");
    const double unit = isPercent ? std::min(picture.width(), picture.height()) / 100.0 : 1.0;
    const auto pixels = [&parameters, unit](const char* side) {
        return static_cast<int>(std::lround(parameters[QLatin1String(side)].toDouble() * unit));
    };
    const int left = pixels("left");
    const int top = pixels("top");
    const int right = pixels("right");
    const int bottom = pixels("bottom");
    if (left + top + right + bottom == 0) {
        return picture;
    }
    const PaintablePicture paintable = PaintableWith(ColourOf(parameters[QLatin1String("colour")].toString()), picture);
    return paintable.picture.embed(
        left, top, left + picture.width() + right, top + picture.height() + bottom,
        Picture::option()->set("extend", VIPS_EXTEND_BACKGROUND)->set("background", paintable.paint));
}

} // namespace BatchWorker
