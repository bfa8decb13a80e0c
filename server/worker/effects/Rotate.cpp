#include "AllEffects.h"
#include "Kinds.h"

#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

/// Turns a size clockwise by any angle onto the smallest canvas that holds it. Both stand on their middle.
class Turn
{
public:
    Turn(int width, int height, double degrees)
        : m_width(width)
        , m_height(height)
        , m_cosine(std::cos(degrees * M_PI / 180.0))
        , m_sine(std::sin(degrees * M_PI / 180.0))
    {
        // What is over by rounding errors makes no further pixel.
        constexpr double tolerance = 1e-6;
        const double c = std::abs(m_cosine);
        const double s = std::abs(m_sine);
        m_canvasWidth = static_cast<int>(std::ceil(width * c + height * s - tolerance));
        m_canvasHeight = static_cast<int>(std::ceil(width * s + height * c - tolerance));
    }

    /// Of bicubic interpolation; the border goes on outside.
    Picture Turned(const Picture& picture) const
    {
        const double x = (m_width - 1) / 2.0;
        const double y = (m_height - 1) / 2.0;
        return picture.affine({m_cosine, -m_sine, m_sine, m_cosine},
                              Picture::option()
                                  ->set("interpolate", vips::VInterpolate::new_from_name("bicubic"))
                                  ->set("odx", (m_canvasWidth - 1) / 2.0 - (m_cosine * x - m_sine * y))
                                  ->set("ody", (m_canvasHeight - 1) / 2.0 - (m_sine * x + m_cosine * y))
                                  ->set("oarea", std::vector<int>{0, 0, m_canvasWidth, m_canvasHeight})
                                  ->set("extend", VIPS_EXTEND_COPY)
                                  ->set("premultiplied", true));
    }

    /// How much of the pixel x, y of the canvas the picture covers, 0 to 1.
    double Coverage(int x, int y) const
    {
        const double right = x + 0.5 - m_canvasWidth / 2.0;
        const double down = y + 0.5 - m_canvasHeight / 2.0;
        const double across = m_width / 2.0 - std::abs(m_cosine * right + m_sine * down);
        const double along = m_height / 2.0 - std::abs(m_cosine * down - m_sine * right);
        // A pixel's own extent across a border that stands at this angle.
        const double extent = std::abs(m_cosine) + std::abs(m_sine);
        return std::clamp(across / extent + 0.5, 0.0, 1.0) * std::clamp(along / extent + 0.5, 0.0, 1.0);
    }

private:
    int m_width;
    int m_height;
    double m_cosine;
    double m_sine;
    int m_canvasWidth = 0;
    int m_canvasHeight = 0;
};

/// `turned`, floating point and premultiplied, over `ink`, premultiplied too.
Picture OverInk(const Picture& turned, const Turn& turn, const std::vector<double>& ink)
{
    return FilterAreas({turned}, 0, [turn, ink](VipsRegion* const* inputs, VipsRegion* output) {
        const VipsRect& area = output->valid;
        const auto bands = static_cast<size_t>(output->im->Bands);
        for (int y = area.top; y < area.top + area.height; ++y) {
            const auto* in = reinterpret_cast<const float*>(VIPS_REGION_ADDR(inputs[0], area.left, y));
            auto* out = reinterpret_cast<float*>(VIPS_REGION_ADDR(output, area.left, y));
            for (int x = area.left; x < area.left + area.width; ++x, in += bands, out += bands) {
                const double coverage = turn.Coverage(x, y);
                for (size_t band = 0; band < bands; ++band) {
                    // What lies far outside may hold anything; nothing of it is to come through.
                    out[band] = coverage > 0.0
                                    ? static_cast<float>(coverage * double(in[band]) + (1.0 - coverage) * ink[band])
                                    : static_cast<float>(ink[band]);
                }
            }
        }
    });
}

Picture TurnedByAnyAngle(const Picture& picture, double degrees, const QColor& background)
{
    Painted painted = PaintedFor(picture, background);
    const double largest = LargestValue(painted.picture);
    const bool hasAlpha = painted.picture.has_alpha();
    const Turn turn(picture.width(), picture.height(), degrees);

    Picture source = painted.picture.cast(VIPS_FORMAT_FLOAT);
    if (hasAlpha) {
        source = painted.picture.premultiply(Picture::option()->set("max_alpha", largest));
        for (size_t band = 0; band + 1 < painted.ink.size(); ++band) {
            painted.ink[band] *= painted.ink.back() / largest;
        }
    }
    Picture turned = OverInk(turn.Turned(source), turn, painted.ink);
    if (hasAlpha) {
        turned = turned.unpremultiply(Picture::option()->set("max_alpha", largest));
    }
    return turned.linear(1.0, 0.5)
        .cast(picture.format())
        .copy(Picture::option()->set("interpretation", painted.picture.interpretation()));
}

} // namespace

Picture ApplyRotate(const Picture& picture, const QJsonObject& parameters)
{
    const double turn = std::fmod(parameters[QLatin1String("angle")].toDouble(), 360.0);
    const double degrees = turn < 0.0 ? turn + 360.0 : turn;
    if (degrees == 0.0) {
        return picture;
    }
    if (degrees == 90.0) {
        return picture.rot90();
    }
    if (degrees == 180.0) {
        return picture.rot180();
    }
    if (degrees == 270.0) {
        return picture.rot270();
    }
    return TurnedByAnyAngle(picture, degrees, ColourOf(parameters[QLatin1String("background")].toString()));
}

} // namespace BatchWorker
