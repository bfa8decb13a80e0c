// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourTransform.h"

#include "IccHandles.h"
#include "RenderingIntent.h"

#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/GeneratedPicture.h"
#include "server/worker/pixels/PixelForms.h"

#include <array>

namespace BatchWorker {

namespace {

struct SpaceForm
{
    int lcmsSpace;
    int bands;
    VipsInterpretation eightBits;
    VipsInterpretation sixteenBits;
};

std::optional<SpaceForm> FormOf(cmsHPROFILE profile)
{
    switch (cmsGetColorSpace(profile)) {
    case cmsSigGrayData:
        return SpaceForm{PT_GRAY, 1, VIPS_INTERPRETATION_B_W, VIPS_INTERPRETATION_GREY16};
    case cmsSigRgbData:
        return SpaceForm{PT_RGB, 3, VIPS_INTERPRETATION_sRGB, VIPS_INTERPRETATION_RGB16};
    case cmsSigCmykData:
        return SpaceForm{PT_CMYK, 4, VIPS_INTERPRETATION_CMYK, VIPS_INTERPRETATION_CMYK};
    default:
        return std::nullopt;
    }
}

cmsUInt32Number LayoutOf(const SpaceForm& form, int bytes)
{
    return COLORSPACE_SH(unsigned(form.lcmsSpace)) | CHANNELS_SH(unsigned(form.bands)) | BYTES_SH(unsigned(bytes));
}

struct Side
{
    const IccProfile& profile;
    SpaceForm form;
};

std::shared_ptr<void> TransformBetween(const Side& from, const Side& to, int bytes, cmsUInt32Number flags)
{
    std::array<cmsHPROFILE, 2> profiles{from.profile.get(), to.profile.get()};
    std::array<cmsBool, 2> compensation{TRUE, TRUE};
    std::array<cmsUInt32Number, 2> intents{IntentOf(from.profile.get(), IccUse::Source),
                                           IntentOf(to.profile.get(), IccUse::Target)};
    std::array<cmsFloat64Number, 2> adaptation{1.0, 1.0};
    // Without a cache a transform may be used by several threads.
    return IccTransform(cmsCreateExtendedTransform(
        nullptr, cmsUInt32Number(profiles.size()), profiles.data(), compensation.data(), intents.data(),
        adaptation.data(), nullptr, 0, LayoutOf(from.form, bytes), LayoutOf(to.form, bytes), flags | cmsFLAGS_NOCACHE));
}

Picture ConvertedLineByLine(const Picture& colours, const PictureShape& shape, const std::shared_ptr<void>& transform)
{
    const auto convert = [transform](VipsRegion* output, const std::vector<VipsRegion*>& inputs) {
        const VipsRect& area = output->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            cmsDoTransform(transform.get(), VIPS_REGION_ADDR(inputs[0], area.left, y),
                           VIPS_REGION_ADDR(output, area.left, y), cmsUInt32Number(area.width));
        }
    };
    return GeneratePicture(shape, {colours}, convert);
}

// What lcms makes of grey on the way to speed is too coarse for the shadows of linear light.
Picture ConvertedByTable(const Picture& grey, const PictureShape& shape, const std::shared_ptr<void>& transform)
{
    const Picture values = Picture::identity(Picture::option()->set("ushort", HasSixteenBits(grey)));
    PictureShape row = shape;
    row.width = values.width();
    row.height = 1;
    return grey.maplut(ConvertedLineByLine(values, row, transform).copy_memory())
        .copy(Picture::option()->set("interpretation", shape.interpretation));
}

} // namespace

std::optional<Picture> ConvertedByProfiles(const Picture& colours, const QByteArray& from, const QByteArray& to)
{
    const IccProfile source = OpenIccProfile(from);
    const IccProfile target = OpenIccProfile(to);
    if (!source || !target) {
        return std::nullopt;
    }
    const std::optional<SpaceForm> formFrom = FormOf(source.get());
    const std::optional<SpaceForm> formTo = FormOf(target.get());
    if (!formFrom || !formTo || formFrom->bands != colours.bands()) {
        return std::nullopt;
    }
    const bool isDeep = HasSixteenBits(colours);
    const bool isGrey = formFrom->bands == 1;
    const std::shared_ptr<void> transform = TransformBetween({source, *formFrom}, {target, *formTo}, isDeep ? 2 : 1,
                                                             isGrey ? cmsUInt32Number(cmsFLAGS_NOOPTIMIZE) : 0);
    if (!transform) {
        return std::nullopt;
    }
    PictureShape shape = ShapeOf(colours);
    shape.bands = formTo->bands;
    shape.interpretation = isDeep ? formTo->sixteenBits : formTo->eightBits;
    return WithProfile(
        isGrey ? ConvertedByTable(colours, shape, transform) : ConvertedLineByLine(colours, shape, transform), {});
}

} // namespace BatchWorker
