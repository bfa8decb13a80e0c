#include "Effects.h"

#include "AllEffects.h"
#include "Blurred.h"

#include <QHash>

#include <cmath>

namespace BatchWorker {

namespace {

using EffectFunction = Picture (*)(const Picture&, const QJsonObject&);

const QHash<QString, EffectFunction>& Functions()
{
    static const QHash<QString, EffectFunction> functions{
        {QStringLiteral("exposure"), ApplyExposure},
        {QStringLiteral("brightness-contrast"), ApplyBrightnessContrast},
        {QStringLiteral("levels"), ApplyLevels},
        {QStringLiteral("curve"), ApplyCurve},
        {QStringLiteral("auto-levels"), ApplyAutoLevels},
        {QStringLiteral("white-balance"), ApplyWhiteBalance},
        {QStringLiteral("saturation"), ApplySaturation},
        {QStringLiteral("vibrance"), ApplyVibrance},
        {QStringLiteral("hue"), ApplyHue},
        {QStringLiteral("grayscale"), ApplyGrayscale},
        {QStringLiteral("sepia"), ApplySepia},
        {QStringLiteral("invert"), ApplyInvert},
        {QStringLiteral("posterize"), ApplyPosterize},
        {QStringLiteral("blur"), ApplyBlur},
        {QStringLiteral("sharpen"), ApplySharpen},
        {QStringLiteral("denoise"), ApplyDenoise},
        {QStringLiteral("clarity"), ApplyClarity},
        {QStringLiteral("vignette"), ApplyVignette},
        {QStringLiteral("lut"), ApplyLut},
        {QStringLiteral("rotate"), ApplyRotate},
        {QStringLiteral("flip"), ApplyFlip},
        {QStringLiteral("border"), ApplyBorder},
        {QStringLiteral("watermark-text"), ApplyWatermarkText},
        {QStringLiteral("watermark-image"), ApplyWatermarkImage},
    };
    return functions;
}

} // namespace

Picture ApplyEffect(const QString& id, const QJsonObject& parameters, const Picture& picture)
{
    const auto found = Functions().constFind(id);
    if (found == Functions().constEnd()) {
        throw EffectError("the effect " + id.toStdString() + " is not available");
    }
    return (*found)(picture, parameters);
}

bool NeedsRandomAccess(const QString& id, const QJsonObject& parameters)
{
    if (id == QLatin1String("flip")) {
        return parameters[QLatin1String("direction")].toString() != QLatin1String("horizontal");
    }
    if (id == QLatin1String("rotate")) {
        return std::fmod(parameters[QLatin1String("angle")].toDouble(), 360.0) != 0.0;
    }
    if (id == QLatin1String("sharpen")) {
        return parameters[QLatin1String("sigma")].toDouble() > largestDirectSigma;
    }
    return id == QLatin1String("auto-levels") || id == QLatin1String("clarity");
}

QStringList EffectFunctionNames()
{
    QStringList names = Functions().keys();
    names.sort();
    return names;
}

} // namespace BatchWorker
