#include "EffectExamples.h"

#include <QHash>

namespace BatchReference {

QByteArray ExampleOf(const QString& id)
{
    static const QHash<QString, QByteArray> examples{
        {QStringLiteral("exposure"), R"({"stops": 1})"},
        {QStringLiteral("brightness-contrast"), R"({"brightness": 5, "contrast": 35})"},
        {QStringLiteral("levels"), R"({"black": 10, "white": 85, "gamma": 1.2})"},
        {QStringLiteral("curve"), R"({"points": [[0, 0], [25, 15], [75, 85], [100, 100]]})"},
        {QStringLiteral("auto-levels"), R"({"clip": 0.5, "channels": "each"})"},
        {QStringLiteral("white-balance"), R"({"temperature": 40})"},
        {QStringLiteral("saturation"), R"({"amount": 60})"},
        {QStringLiteral("vibrance"), R"({"amount": 80})"},
        {QStringLiteral("hue"), R"({"angle": 90})"},
        {QStringLiteral("grayscale"), R"({"method": "luminance"})"},
        {QStringLiteral("sepia"), R"({"amount": 80})"},
        {QStringLiteral("invert"), "{}"},
        {QStringLiteral("posterize"), R"({"levels": 3})"},
        {QStringLiteral("blur"), R"({"sigma": 3})"},
        {QStringLiteral("sharpen"), R"({"sigma": 1.5, "amount": 150})"},
        {QStringLiteral("denoise"), R"({"strength": 15, "sigma": 3})"},
        {QStringLiteral("clarity"), R"({"amount": 80, "sigma": 15})"},
        {QStringLiteral("vignette"), R"({"amount": -80, "start": 30})"},
        {QStringLiteral("lut"), R"({"file": "example.cube"})"},
        {QStringLiteral("rotate"), R"({"angle": 12, "background": "#202020"})"},
        {QStringLiteral("flip"), R"({"direction": "horizontal"})"},
        {QStringLiteral("border"),
         R"({"left": 4, "top": 4, "right": 4, "bottom": 12, "unit": "percent", "colour": "#f4f0e8"})"},
        {QStringLiteral("watermark-text"), R"({"text": "Sample", "size": 14, "position": "centre"})"},
        {QStringLiteral("watermark-image"), R"({"file": "example.png", "size": 25, "tile": true, "opacity": 50})"},
    };
    return examples.value(id);
}

} // namespace BatchReference
