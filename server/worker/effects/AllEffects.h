#pragma once

#include "server/worker/pixels/Picture.h"

#include <QJsonObject>

/// The functions behind the effects, one source file each; the catalogue defines what each computes. They take checked,
/// complete parameters, and keep size, depth, kind, alpha and metadata unless said otherwise. Parameters that change
/// nothing give back the picture itself.
namespace BatchWorker {

Picture ApplyExposure(const Picture& picture, const QJsonObject& parameters);
Picture ApplyBrightnessContrast(const Picture& picture, const QJsonObject& parameters);
Picture ApplyLevels(const Picture& picture, const QJsonObject& parameters);
/// One channel of a grey picture: as it is.
Picture ApplyCurve(const Picture& picture, const QJsonObject& parameters);
/// Reads the picture twice, the first time at once.
Picture ApplyAutoLevels(const Picture& picture, const QJsonObject& parameters);

/// The next four leave a grey picture as it is.
Picture ApplyWhiteBalance(const Picture& picture, const QJsonObject& parameters);
Picture ApplySaturation(const Picture& picture, const QJsonObject& parameters);
Picture ApplyVibrance(const Picture& picture, const QJsonObject& parameters);
Picture ApplyHue(const Picture& picture, const QJsonObject& parameters);
/// Three equal channels; a grey picture stays as it is.
Picture ApplyGrayscale(const Picture& picture, const QJsonObject& parameters);
/// A grey picture becomes RGB.
Picture ApplySepia(const Picture& picture, const QJsonObject& parameters);
Picture ApplyInvert(const Picture& picture, const QJsonObject& parameters);
Picture ApplyPosterize(const Picture& picture, const QJsonObject& parameters);

/// Alpha is blurred as well.
Picture ApplyBlur(const Picture& picture, const QJsonObject& parameters);
Picture ApplySharpen(const Picture& picture, const QJsonObject& parameters);
Picture ApplyDenoise(const Picture& picture, const QJsonObject& parameters);
Picture ApplyClarity(const Picture& picture, const QJsonObject& parameters);

Picture ApplyVignette(const Picture& picture, const QJsonObject& parameters);
/// A grey picture becomes RGB. Throws EffectError when the file cannot be used.
Picture ApplyLut(const Picture& picture, const QJsonObject& parameters);

/// The size changes unless the angle is a multiple of 180. A grey picture becomes RGB for a background with colour, and
/// a background that is not opaque gives an alpha channel; not so at multiples of 90.
Picture ApplyRotate(const Picture& picture, const QJsonObject& parameters);
Picture ApplyFlip(const Picture& picture, const QJsonObject& parameters);
/// The size changes. Kind and alpha as for ApplyRotate().
Picture ApplyBorder(const Picture& picture, const QJsonObject& parameters);

/// A grey picture becomes RGB for a mark with colour. Both throw EffectError for a mark that cannot be made.
Picture ApplyWatermarkText(const Picture& picture, const QJsonObject& parameters);
Picture ApplyWatermarkImage(const Picture& picture, const QJsonObject& parameters);

} // namespace BatchWorker
