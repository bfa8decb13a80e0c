#include "Mark.h"

#include "Kinds.h"

#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

namespace BatchWorker {

namespace {

Picture WithFourChannels(const Picture& image)
{
    return image.has_alpha() ? image : image.bandjoin_const({255.0});
}

/// Where along one axis the mark lies.
struct Span
{
    int start = 0;
    int length = 0;
    int period = 0; ///< from one tile to the next; 0: there is one mark only

    /// The mark's own coordinate at the picture's coordinate `at`; negative where there is no mark.
    int Inside(int at) const
    {
        int offset = at - start;
        if (period > 0) {
            offset %= period;
            offset = offset < 0 ? offset + period : offset;
        }
        return offset < length ? offset : -1;
    }
};

Span SpanOf(int whole, int length, int margin, bool isAtStart, bool isAtEnd, bool isTiled)
{
    const int start = isAtStart ? margin : isAtEnd ? whole - length - margin : (whole - length) / 2;
    return {start, length, isTiled ? length + margin : 0};
}

struct Stamp
{
    Mark mark;
    Span across;
    Span down;
    double opacity = 1;

    template<typename Sample>
    void PutOver(VipsRegion* input, VipsRegion* output) const;

private:
    template<typename Sample>
    void PutOverPixel(const std::uint8_t* top, Sample* pixel, int bands) const;
};

/// The operator "over" of Porter and Duff, for alpha that is not premultiplied.
template<typename Sample>
void Stamp::PutOverPixel(const std::uint8_t* top, Sample* pixel, int bands) const
{
    constexpr double largest = sizeof(Sample) == 1 ? 255.0 : 65535.0;
    const int colourBands = bands < 3 ? 1 : 3;
    const double above = top[3] / 255.0 * opacity;
    const double below = (bands > colourBands ? pixel[colourBands] / largest : 1.0) * (1.0 - above);
    const double whole = above + below;
    if (above <= 0.0) {
        return;
    }
    for (int band = 0; band < colourBands; ++band) {
        const double value = (above * top[band] / 255.0 + below * pixel[band] / largest) / whole;
        pixel[band] = SampleOf<Sample>(value, largest);
    }
    if (bands > colourBands) {
        pixel[colourBands] = SampleOf<Sample>(whole, largest);
    }
}

template<typename Sample>
void Stamp::PutOver(VipsRegion* input, VipsRegion* output) const
{
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    for (int y = area.top; y < area.top + area.height; ++y) {
        auto* out = reinterpret_cast<Sample*>(VIPS_REGION_ADDR(output, area.left, y));
        std::memcpy(out, VIPS_REGION_ADDR(input, area.left, y), VIPS_REGION_SIZEOF_LINE(output));
        const int row = down.Inside(y);
        if (row < 0) {
            continue;
        }
        for (int x = area.left; x < area.left + area.width; ++x, out += bands) {
            const int column = across.Inside(x);
            if (column >= 0) {
                const size_t pixel =
                    static_cast<size_t>(row) * static_cast<size_t>(mark.width) + static_cast<size_t>(column);
                PutOverPixel(&mark.pixels[4 * pixel], out, bands);
            }
        }
    }
}

} // namespace

std::vector<std::uint8_t> BytesOf(const Picture& image)
{
    size_t size = 0;
    const std::unique_ptr<void, decltype(&g_free)> values(image.write_to_memory(&size), g_free);
    const auto* const first = static_cast<const std::uint8_t*>(values.get());
    return {first, first + size};
}

Mark MarkOf(const Picture& image, const Picture& picture)
{
    const Picture own = WithFourChannels(ColourBands(picture) == 3 ? InProfileOf(picture, image) : image);
    return {own.width(), own.height(), BytesOf(own)};
}

bool HasColour(const Picture& image)
{
    const std::vector<std::uint8_t> pixels = BytesOf(WithFourChannels(image));
    for (size_t i = 0; i < pixels.size(); i += 4) {
        if (pixels[i + 3] > 0 && (pixels[i] != pixels[i + 1] || pixels[i] != pixels[i + 2])) {
            return true;
        }
    }
    return false;
}

double LengthIn(const QJsonObject& parameters, const char* name, double whole)
{
    const double length = parameters[QLatin1String(name)].toDouble();
    return parameters[QLatin1String("unit")].toString() == QLatin1String("percent") ? length * whole / 100.0 : length;
}

Picture Stamped(const Picture& picture, const Mark& mark, const QJsonObject& parameters)
{
    const int margin =
        static_cast<int>(std::lround(LengthIn(parameters, "margin", std::min(picture.width(), picture.height()))));
    const QString position = parameters[QLatin1String("position")].toString();
    const auto isAt = [&position](const char* side) { return position.contains(QLatin1String(side)); };
    const bool isTiled = parameters[QLatin1String("tile")].toBool();

    const auto stamp = std::make_shared<const Stamp>(
        Stamp{mark, SpanOf(picture.width(), mark.width, margin, isAt("left"), isAt("right"), isTiled),
              SpanOf(picture.height(), mark.height, margin, isAt("top"), isAt("bottom"), isTiled),
              parameters[QLatin1String("opacity")].toDouble() / 100.0});
    const bool isDeep = HasSixteenBits(picture);
    return FilterAreas({picture}, 0, [stamp, isDeep](VipsRegion* const* inputs, VipsRegion* output) {
        if (isDeep) {
            stamp->PutOver<std::uint16_t>(inputs[0], output);
        } else {
            stamp->PutOver<std::uint8_t>(inputs[0], output);
        }
    });
}

} // namespace BatchWorker
