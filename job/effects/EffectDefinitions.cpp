#include "EffectGroups.h"

#include <QHash>

namespace BatchJob {

QString DefinitionOf(const QString& id)
{
    static const QHash<QString, const char*> definitions{
        {QStringLiteral("exposure"),
         "Light is multiplied by 2^stops: each value is decoded by the transfer function of sRGB "
         "(IEC 61966-2-1), multiplied and encoded again."},
        {QStringLiteral("brightness-contrast"),
         "v becomes (v + b - 0.5) k + 0.5 with b = brightness / 100; k = 1 + c below and 1 / (1 - "
         "c) above 0, with c = contrast / 100. Values v run from 0 to 1."},
        {QStringLiteral("levels"),
         "v becomes ((v - black) / (white - black))^(1 / gamma), held within 0 to 1 before the "
         "power."},
        {QStringLiteral("curve"),
         "A monotone cubic through the points, with the slopes of Fritsch and Butland (1984); at "
         "its ends the slope of the line to the next point."},
        {QStringLiteral("auto-levels"),
         "Black is the lowest value that more than the clipped share of the pixels does not "
         "exceed, white likewise from above; values are spread linearly between them. Together, "
         "the lowest black and the highest white of the channels count. Pixels without any opacity "
         "do not count."},
        {QStringLiteral("white-balance"),
         "Light is multiplied by 2^(temperature / 200) in red, 2^(-tint / 200) in green and "
         "2^(-temperature / 200) in blue; then all by one factor, so that the luminance of grey "
         "(weights of Rec. ITU-R BT.709) stays."},
        {QStringLiteral("saturation"),
         "Each channel v becomes Y + (1 + amount / 100) (v - Y), where Y = 0.2126 R + 0.7152 G + "
         "0.0722 B of the stored values (Rec. ITU-R BT.709)."},
        {QStringLiteral("vibrance"),
         "As saturation, with the amount multiplied by 1 - (max - min) of the three channels."},
        {QStringLiteral("hue"),
         "The matrix of hueRotate in the Filter Effects Module Level 1 of the W3C: a turn around "
         "the axis of greys that keeps luma."},
        {QStringLiteral("grayscale"),
         "luminance: light weighted 0.2126, 0.7152, 0.0722 (Rec. ITU-R BT.709) and encoded again. "
         "luma: the stored values with the same weights. average: a third of each."},
        {QStringLiteral("sepia"),
         "The matrix of sepia() in the Filter Effects Module Level 1 of the W3C: red is 0.393 R + "
         "0.769 G + 0.189 B, green 0.349 R + 0.686 G + 0.168 B, blue 0.272 R + 0.534 G + 0.131 B; "
         "mixed with the picture by the amount."},
        {QStringLiteral("invert"), "v becomes 1 - v."},
        {QStringLiteral("posterize"), "v becomes the nearest of the values 0, 1 / (levels - 1), ..., 1."},
        {QStringLiteral("blur"), "A Gaussian that ends at three sigma; beyond its border a picture goes on as there. "
                                 "Colours count by their opacity, and alpha is blurred as well. From a sigma of 8 the "
                                 "picture is reduced, blurred and enlarged, which differs by at most 0.5 %."},
        {QStringLiteral("sharpen"),
         "v becomes v + amount / 100 (v - m), where m is the picture blurred as by blur, and where "
         "|v - m| reaches the threshold."},
        {QStringLiteral("denoise"),
         "A bilateral filter (Tomasi and Manduchi, 1998): the mean of the neighbours within two "
         "sigma, weighted by exp(-d^2 / (2 sigma^2)) of their distance, by exp(-e^2 / (2 "
         "strength^2)) of the root mean square e of their differences, and by their opacity."},
        {QStringLiteral("clarity"),
         "Each channel changes by amount / 100 x 4 Y (1 - Y) (Y - B), where Y is the luma and B "
         "the luma blurred as by blur."},
        {QStringLiteral("vignette"),
         "Values go towards black or white by |amount| / 100 x (3 t^2 - 2 t^3), where t runs from "
         "0 to 1 over the transition; distances are measured on ellipses of the shape of the "
         "picture, 100 percent at the corners."},
        {QStringLiteral("lut"),
         "Tables in version 1.0 of the Cube LUT format, of 2 to 65536 entries in one or 2 to 129 "
         "along each of three dimensions; TITLE, DOMAIN_MIN, DOMAIN_MAX and comments are "
         "understood. Colours outside the domain count as the nearest inside. Values are mapped as "
         "they are stored in the picture."},
        {QStringLiteral("rotate"),
         "Bicubic interpolation around the middle, weighted by opacity; borders are smooth by the "
         "share of each pixel that they cover. The canvas is the smallest that holds the picture. "
         "A grey picture becomes a colour picture for a background with colour."},
        {QStringLiteral("flip"), "Every pixel keeps its value."},
        {QStringLiteral("border"),
         "Sizes are rounded to whole pixels. A grey picture becomes a colour picture for a colour "
         "that is not grey."},
        {QStringLiteral("watermark-text"),
         "Laid over by the operator \"over\" of Porter and Duff. A grey picture becomes a colour "
         "picture for a colour that is not grey."},
        {QStringLiteral("watermark-image"),
         "Scaled to its width, with its own proportions, then laid over by the operator \"over\" of "
         "Porter and Duff. Its colours are converted to the profile of the picture."},
    };
    return QString::fromLatin1(definitions.value(id));
}

} // namespace BatchJob
