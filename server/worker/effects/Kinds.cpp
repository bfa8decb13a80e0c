#include "Kinds.h"

#include "server/worker/colour/Colour.h"
#include "server/worker/colour/ColourProfile.h"
#include "server/worker/pixels/PixelFilter.h"

#include <cmath>

namespace BatchWorker {

namespace {

Picture GreyAsRgb(const Picture& grey)
{
    const bool isDeep = HasSixteenBits(grey);
    if (ProfileOf(grey).isEmpty()) {
        const Picture repeated = Picture::bandjoin(std::vector<Picture>{grey, grey, grey});
        return repeated.copy(
            Picture::option()->set("interpretation", isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB));
    }
    return grey.icc_transform("srgb", Picture::option()
                                          ->set("embedded", true)
                                          ->set("intent", VIPS_INTENT_RELATIVE)
                                          ->set("black_point_compensation", true)
                                          ->set("depth", isDeep ? 16 : 8));
}

std::vector<double> InProfile(const Picture& picture, const QColor& colour)
{
    const std::vector<double> written{double(colour.red()), double(colour.green()), double(colour.blue())};
    const Picture dot = Picture::black(1, 1, Picture::option()->set("bands", 3))
                            .linear(std::vector<double>{1, 1, 1}, written)
                            .cast(VIPS_FORMAT_UCHAR)
                            .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    const std::vector<double> converted = InProfileOf(picture, dot).getpoint(0, 0);
    constexpr double visible = 2.0;
    for (size_t band = 0; band < 3; ++band) {
        if (std::abs(converted[band] - written[band]) > visible) {
            return converted;
        }
    }
    return written;
}

} // namespace

Picture AsRgb(const Picture& picture)
{
    if (ColourBands(picture) == 3) {
        return picture;
    }
    return picture.has_alpha() ? GreyAsRgb(WithoutAlpha(picture)).bandjoin(AlphaOf(picture)) : GreyAsRgb(picture);
}

Picture WithAlpha(const Picture& picture)
{
    return picture.has_alpha() ? picture : picture.bandjoin_const({LargestValue(picture)});
}

QColor ColourOf(const QString& text)
{
    // Qt puts alpha first, users put it last.
    QColor colour(text.left(7));
    if (text.size() > 7) {
        colour.setAlpha(text.mid(7).toInt(nullptr, 16));
    }
    return colour;
}

Painted PaintedFor(const Picture& picture, const QColor& colour)
{
    const bool isGrey = colour.red() == colour.green() && colour.green() == colour.blue();
    Painted painted{isGrey ? picture : AsRgb(picture), {}};
    painted.ink = ColourBands(painted.picture) == 1 ? std::vector<double>{double(colour.red())}
                                                    : InProfile(painted.picture, colour);
    if (colour.alpha() < 255) {
        painted.picture = WithAlpha(painted.picture);
    }
    if (painted.picture.has_alpha()) {
        painted.ink.push_back(colour.alpha());
    }
    for (double& value : painted.ink) {
        value = value / 255.0 * LargestValue(painted.picture);
    }
    return painted;
}

Picture InProfileOf(const Picture& picture, const Picture& pixels)
{
    const QByteArray profile = ProfileOf(picture);
    if (profile.isEmpty() || IsSrgb(profile)) {
        return pixels;
    }
    // A profile that cannot be used was reported when the picture was read.
    QStringList warnings;
    return ConvertedTo(profile, WithProfile(pixels, {}), warnings);
}

} // namespace BatchWorker
