// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Background.h"

#include "Patterns.h"

#include "job/values/JobValues.h"
#include "job/values/Phrase.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/decode/JobPicture.h"
#include "server/worker/pixels/GeneratedPicture.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <cmath>
#include <vector>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

using BatchJob::BackgroundType;

// One pixel as large as the frame.
Picture Filled(const std::vector<double>& values, const QSize& size, const Picture& like)
{
    return (Picture::black(1, 1) + values)
        .cast(like.format())
        .copy(Picture::option()->set("interpretation", like.interpretation()))
        .embed(0, 0, size.width(), size.height(), Picture::option()->set("extend", VIPS_EXTEND_COPY));
}

// How light a pixel of a tile is: the mean of several points in it.
double PatternPixel(Pattern pattern, int x, int y, double side)
{
    constexpr int places = 4;
    double sum = 0;
    for (int row = 0; row < places; ++row) {
        for (int column = 0; column < places; ++column) {
            sum += PatternValue(pattern, (x + (column + 0.5) / places) / side, (y + (row + 0.5) / places) / side);
        }
    }
    return sum / (places * places);
}

// One tile, or the part of it that a frame of `size` shows, in floats from 0 to 1.
Picture PatternTile(Pattern pattern, int side, const QSize& size)
{
    const QSize shown = size.boundedTo(QSize(side, side));
    const PictureShape shape{shown.width(), shown.height(), 1, VIPS_FORMAT_FLOAT, VIPS_INTERPRETATION_MULTIBAND};
    return GeneratePicture(shape, {}, [pattern, side](VipsRegion* target, const std::vector<VipsRegion*>&) {
        const VipsRect& area = target->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            auto* line = PixelAt<float>(target, area.left, y);
            for (int x = 0; x < area.width; ++x) {
                line[x] = static_cast<float>(PatternPixel(pattern, area.left + x, y, side));
            }
        }
    });
}

// Equal values of red, green and blue are neutral in every space that pictures come in, so nothing is converted.
Picture PatternPicture(const ZTBatchOutputSettings::Transformation& framing, const QSize& size, const Picture& like)
{
    const int side = PatternTileSide(framing.backgroundPattern[1]);
    const Picture tile = PatternTile(Pattern(framing.backgroundPattern[0]), side, size)
                             .linear(LargestValue(like), 0.5)
                             .cast(like.format())
                             .copy(Picture::option()->set("interpretation", like.interpretation()))
                             .copy_memory();
    const Picture grey = tile.replicate((size.width() + side - 1) / side, (size.height() + side - 1) / side)
                             .crop(0, 0, size.width(), size.height());
    return IsGrey(like) ? grey : Picture::bandjoin({grey, grey, grey});
}

Picture BackgroundColours(const ZTBatchOutputSettings::Transformation& framing, const std::optional<Picture>& file,
                          const QSize& size, const Picture& like, Warnings& warnings)
{
    switch (BackgroundType(framing.backgroundType)) {
    case BackgroundType::None:
        break;
    case BackgroundType::Colour:
        return Filled(ColourInSpaceOf(like, framing.backgroundColor, warnings), size, like);
    case BackgroundType::Pattern:
        return PatternPicture(framing, size, like);
    case BackgroundType::Image:
        return InSpaceOf(like, *file, warnings);
    }
    return Filled(std::vector<double>(IsGrey(like) ? 1 : 3, 0.0), size, like);
}

} // namespace

std::optional<Picture> ReadBackgroundFile(const ZTBatchOutputSettings::Transformation& framing, const QSize& size,
                                          const ServerLimits& limits, Warnings& warnings)
{
    if (framing.backgroundType != int(BackgroundType::Image)) {
        return std::nullopt;
    }
    ZTBatchOutputSettings::Crop covering;
    covering.type = int(CropType::Fill);
    covering.size = size;
    try {
        return ReadJobPicture(framing.backgroundImage, covering, {}, limits, warnings);
    } catch (const PictureFailure& failure) {
        throw ProcessingFailed(Phrase::English("the background picture %1 cannot be read: %2")
                                   .arg(framing.backgroundImage, failure.reason),
                               failure.detail);
    }
}

Picture MakeBackground(const ZTBatchOutputSettings::Transformation& framing, const std::optional<Picture>& file,
                       const QSize& size, const Picture& like, Warnings& warnings)
{
    const Picture background = BackgroundColours(framing, file, size, like, warnings);
    const bool isNone = framing.backgroundType == int(BackgroundType::None);
    const double opacity = isNone ? 0 : framing.backgroundOpacity;
    if (background.has_alpha()) {
        const Picture alpha = AlphaOf(background).linear(opacity, 0.5).cast(background.format());
        return WithoutAlpha(background).bandjoin(alpha);
    }
    return background.bandjoin(std::round(opacity * LargestValue(like)));
}

bool IsBackgroundOpaque(const ZTBatchOutputSettings::Transformation& framing, const std::optional<Picture>& file)
{
    return framing.backgroundType != int(BackgroundType::None) && framing.backgroundOpacity >= 1 &&
           !(file && file->has_alpha());
}

} // namespace BatchWorker
