#include "AllEffects.h"
#include "PixelFilter.h"

namespace BatchServer {

Picture ApplyInvert(const Picture& picture, const QJsonObject&)
{
    return MapValues(picture, [](double value) { return 1.0 - value; });
}

} // namespace BatchServer
