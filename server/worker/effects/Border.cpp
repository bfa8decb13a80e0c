#include "AllEffects.h"
#include "Kinds.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

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
    const Painted painted = PaintedFor(picture, ColourOf(parameters[QLatin1String("colour")].toString()));
    return painted.picture.embed(
        left, top, left + picture.width() + right, top + picture.height() + bottom,
        Picture::option()->set("extend", VIPS_EXTEND_BACKGROUND)->set("background", painted.ink));
}

} // namespace BatchWorker
