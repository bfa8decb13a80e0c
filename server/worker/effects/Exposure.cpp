#include "AllEffects.h"

#include <cmath>

namespace BatchServer {

// Light adds up in linear values, so the picture is multiplied there and not in its encoded values.
Picture ApplyExposure(const Picture& picture, const QJsonObject& parameters)
{
    const double gain = std::exp2(parameters[QLatin1String("stops")].toDouble());
    const bool hasAlpha = picture.has_alpha();
    const int colourBands = picture.bands() - (hasAlpha ? 1 : 0);
    const Picture colour = hasAlpha ? picture.extract_band(0, Picture::option()->set("n", colourBands)) : picture;
    const Picture changed = colour.colourspace(VIPS_INTERPRETATION_scRGB)
                                .linear(gain, 0.0)
                                .colourspace(picture.interpretation())
                                .cast(picture.format());
    return hasAlpha ? changed.bandjoin(picture.extract_band(colourBands)) : changed;
}

} // namespace BatchServer
