// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"

#include "job/effects/BlurLimits.h"
#include "server/worker/pixels/PixelForms.h"

#include <cmath>

namespace BatchWorker {

namespace {

constexpr double leastReducedSigma = 4.0;

Picture DirectlyBlurred(const Picture& picture, double sigma)
{
    // A little less than exp(-4.5): the kernel ends at three sigma.
    constexpr double leastWeight = 0.0111;
    return picture.gaussblur(sigma,
                             Picture::option()->set("min_ampl", leastWeight)->set("precision", VIPS_PRECISION_FLOAT));
}

Picture BlurredBySmallCopy(const Picture& picture, double sigma)
{
    const int factor = static_cast<int>(sigma / leastReducedSigma);
    const int width = picture.width();
    const int height = picture.height();
    // One block of the border on each side, so that the small copy continues like the picture itself.
    const int wholeWidth = (width + factor - 1) / factor * factor + 2 * factor;
    const int wholeHeight = (height + factor - 1) / factor * factor + 2 * factor;
    const Picture padded =
        picture.embed(factor, factor, wholeWidth, wholeHeight, Picture::option()->set("extend", VIPS_EXTEND_COPY));
    // Variances add up: of the mean over a block, and of the linear interpolation between blocks.
    const double square = double(factor) * factor;
    const double done = (square - 1.0) / 12.0 + square / 6.0;
    const double rest = std::sqrt(sigma * sigma - done) / factor;
    const Picture small = DirectlyBlurred(padded.cast(VIPS_FORMAT_FLOAT).shrink(factor, factor), rest).copy_memory();

    // The library places samples at whole numbers; the mean of a block belongs to its middle.
    const double middle = (factor - 1) / 2.0;
    return small.affine({double(factor), 0, 0, double(factor)},
                        Picture::option()
                            ->set("interpolate", vips::VInterpolate::new_from_name("bilinear"))
                            ->set("odx", middle - factor)
                            ->set("ody", middle - factor)
                            ->set("oarea", std::vector<int>{0, 0, width, height})
                            ->set("extend", VIPS_EXTEND_COPY));
}

} // namespace

Picture Blurred(const Picture& picture, double sigma)
{
    return sigma <= BatchJob::largestDirectSigma ? DirectlyBlurred(picture, sigma).cast(VIPS_FORMAT_FLOAT)
                                                 : BlurredBySmallCopy(picture, sigma);
}

Picture BlurredColours(const Picture& picture, double sigma)
{
    const double largest = LargestValue(picture);
    if (!picture.has_alpha()) {
        return Blurred(picture, sigma).linear(1.0 / largest, 0.0);
    }
    const Picture weighted = picture.premultiply(Picture::option()->set("max_alpha", largest));
    return Blurred(weighted, sigma)
        .unpremultiply(Picture::option()->set("max_alpha", largest))
        .linear(1.0 / largest, 0.0);
}

} // namespace BatchWorker
