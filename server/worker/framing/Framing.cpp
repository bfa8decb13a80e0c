#include "Framing.h"

#include "Background.h"
#include "Blending.h"
#include "Coverage.h"
#include "Placement.h"
#include "Shadow.h"

#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/PixelForms.h"

#include <vector>

using namespace BatchProtocol;

namespace BatchWorker {

namespace {

using Transformation = ZTBatchOutputSettings::Transformation;

void CheckFrame(const QSize& frame, qint64 pixelLimit)
{
    if (qint64(frame.width()) * frame.height() > pixelLimit) {
        const QString text = QStringLiteral("the frame of %1 x %2 pixels is above the limit of %3 pixels")
                                 .arg(frame.width())
                                 .arg(frame.height())
                                 .arg(pixelLimit);
        throw FramingError(text.toStdString());
    }
}

bool HasColour(const QColor& colour)
{
    return colour.red() != colour.green() || colour.green() != colour.blue();
}

bool BringsColour(const Transformation& framing, const std::optional<Picture>& backgroundFile)
{
    return (framing.backgroundType == int(BatchJob::BackgroundType::Colour) && HasColour(framing.backgroundColor)) ||
           (backgroundFile && !IsGrey(*backgroundFile)) || (framing.shadowEnabled && HasColour(framing.shadowColor));
}

// Pixels that are seen through must not lend their colour to their neighbours. The library's whole-number filters have
// weights of few bits, which is enough for 8 bits a channel only: at 16 bits white would become grey.
template<typename Filter>
Picture Filtered(const Picture& picture, const Filter& filter)
{
    if (picture.has_alpha()) {
        return filter(picture.premultiply()).unpremultiply().rint().cast(picture.format());
    }
    if (picture.format() == VIPS_FORMAT_UCHAR) {
        return filter(picture);
    }
    return filter(picture.cast(VIPS_FORMAT_FLOAT)).rint().cast(picture.format());
}

Picture Scaled(const Picture& picture, const QSize& size)
{
    if (size == QSize(picture.width(), picture.height())) {
        return picture;
    }
    return Filtered(picture, [&size](const Picture& source) {
        return source.resize(size.width() / double(source.width()),
                             Picture::option()->set("vscale", size.height() / double(source.height())));
    });
}

// For what is read in another order than its file holds it.
Picture ReadableInAnyOrder(const Picture& picture)
{
    return vips_image_is_sequential(picture.get_image()) != 0 ? WithRandomAccess(picture) : picture;
}

Picture TurnedByQuarters(const Picture& picture, int quarterTurns)
{
    return quarterTurns == 0 ? picture : ReadableInAnyOrder(picture).rot(VipsAngle(quarterTurns));
}

// Turned by any angle. Its own colours go on beyond its edges; the edges themselves are the coverage's matter.
Picture TurnedFreely(const Picture& picture, const FramePlacement& placement)
{
    constexpr int beyond = 3;
    const Picture widened = picture.embed(beyond, beyond, picture.width() + 2 * beyond, picture.height() + 2 * beyond,
                                          Picture::option()->set("extend", VIPS_EXTEND_COPY));
    const QTransform& toFrame = placement.toFrame;
    // The library counts from the centres of pixels.
    const QPointF firstPixel = toFrame.map(QPointF(0.5 - beyond, 0.5 - beyond)) - QPointF(0.5, 0.5);
    const std::vector<double> matrix{toFrame.m11(), toFrame.m21(), toFrame.m12(), toFrame.m22()};
    const std::vector<int> area{0, 0, placement.frame.width(), placement.frame.height()};
    return widened.affine(matrix, Picture::option()
                                      ->set("interpolate", vips::VInterpolate::new_from_name("bicubic"))
                                      ->set("odx", firstPixel.x())
                                      ->set("ody", firstPixel.y())
                                      ->set("oarea", area)
                                      ->set("premultiplied", true));
}

// The picture where it stands in the frame, on pixels that mean nothing where it does not.
Picture Placed(const Picture& picture, const FramePlacement& placement)
{
    const Picture scaled = Scaled(picture, placement.drawn);
    if (placement.quarterTurns >= 0) {
        return TurnedByQuarters(scaled, placement.quarterTurns)
            .embed(placement.upright.x(), placement.upright.y(), placement.frame.width(), placement.frame.height());
    }
    return Filtered(ReadableInAnyOrder(scaled),
                    [&placement](const Picture& source) { return TurnedFreely(source, placement); });
}

Picture WithShadow(const Picture& background, const Picture& placed, const Picture& coverage,
                   const FramePlacement& placement, const Transformation& framing, QStringList& warnings)
{
    const Picture shade =
        placed.has_alpha() ? ShadowOfAlpha(placed, coverage, framing) : ShadowOfRectangle(placement, framing);
    const Picture layer = placed.new_from_image(ColourInSpaceOf(placed, framing.shadowColor, warnings));
    return Blend(background, layer, shade, framing.shadowOpacity, BatchJob::Blending::Normal);
}

} // namespace

Picture FramePicture(const Picture& original, const Transformation& framing, const ServerLimits& limits,
                     QStringList& warnings)
{
    const FramePlacement placement(QSize(original.width(), original.height()), framing);
    CheckFrame(placement.frame, limits.pixels);
    if (!placement.hasRoom) {
        warnings.append(QStringLiteral("the margins leave nothing of the frame free and have no effect"));
    }
    const std::optional<Picture> backgroundFile = ReadBackgroundFile(framing, placement.frame, limits, warnings);
    const Picture picture = BringsColour(framing, backgroundFile) ? ToRgb(original) : original;
    const Picture coverage = Coverage(placement.corners).OfFrame(placement.frame);

    Picture placed = Placed(picture, placement);
    Picture below = MakeBackground(framing, backgroundFile, placement.frame, picture, warnings);
    if (framing.shadowEnabled) {
        // Picture and shadow read it at different places.
        placed = placed.has_alpha() ? ReadableInAnyOrder(placed) : placed;
        below = WithShadow(below, placed, coverage, placement, framing, warnings);
    }
    const Picture framed = Blend(below, placed, coverage, framing.opacity, BatchJob::Blending(framing.blending));

    const bool isPictureOpaque = !picture.has_alpha() && framing.opacity >= 1;
    const bool isOpaque = IsBackgroundOpaque(framing, backgroundFile) || (isPictureOpaque && placement.CoversFrame());
    return isOpaque ? WithoutAlpha(framed) : framed;
}

} // namespace BatchWorker
