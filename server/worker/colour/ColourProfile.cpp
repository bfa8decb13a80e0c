// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourProfile.h"

#include "IccHandles.h"
#include "RenderingIntent.h"

#include <vips/vips8>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace BatchWorker {

namespace {

bool DescribesPictures(cmsHPROFILE profile)
{
    switch (cmsGetDeviceClass(profile)) {
    case cmsSigInputClass:
    case cmsSigDisplayClass:
    case cmsSigOutputClass:
    case cmsSigColorSpaceClass:
        return true;
    default:
        return false;
    }
}

IccTransform ToLab(const IccProfile& profile)
{
    const IccProfile lab(cmsCreateLab4Profile(nullptr));
    const cmsUInt32Number space = cmsUInt32Number(_cmsLCMScolorSpace(cmsGetColorSpace(profile.get())));
    const cmsUInt32Number layout = FLOAT_SH(1U) | COLORSPACE_SH(space) |
                                   CHANNELS_SH(cmsChannelsOf(cmsGetColorSpace(profile.get()))) | BYTES_SH(4U);
    return IccTransform(cmsCreateTransform(profile.get(), layout, lab.get(), TYPE_Lab_DBL,
                                           IntentOf(profile.get(), IccUse::Source),
                                           cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE));
}

using Rgb = std::array<float, 3>;

// Empty when `profile` cannot be used.
std::vector<cmsCIELab> LabOf(const IccProfile& profile, const std::vector<Rgb>& colours)
{
    const IccTransform transform = profile ? ToLab(profile) : nullptr;
    if (!transform) {
        return {};
    }
    std::vector<cmsCIELab> lab(colours.size());
    cmsDoTransform(transform.get(), colours.data(), lab.data(), cmsUInt32Number(colours.size()));
    return lab;
}

std::vector<Rgb> EvenlySpread()
{
    constexpr int steps = 5;
    std::vector<Rgb> colours;
    for (int i = 0; i < steps * steps * steps; ++i) {
        const auto level = [](int step) { return float(step) / (steps - 1); };
        colours.push_back({level(i % steps), level(i / steps % steps), level(i / steps / steps)});
    }
    return colours;
}

QByteArray BuiltIn(const char* name)
{
    VipsBlob* blob = nullptr;
    if (vips_profile_load(name, &blob, nullptr) != 0) {
        throw vips::VError();
    }
    std::size_t size = 0;
    const void* const bytes = vips_blob_get(blob, &size);
    const QByteArray profile(static_cast<const char*>(bytes), int(size));
    vips_area_unref(VIPS_AREA(blob));
    return profile;
}

} // namespace

std::optional<ColourKind> KindOfProfile(const QByteArray& profile)
{
    const IccProfile opened = OpenIccProfile(profile);
    if (!opened || !DescribesPictures(opened.get())) {
        return std::nullopt;
    }
    switch (cmsGetColorSpace(opened.get())) {
    case cmsSigGrayData:
        return ColourKind::Grey;
    case cmsSigRgbData:
        return ColourKind::Rgb;
    case cmsSigCmykData:
        return ColourKind::Cmyk;
    default:
        return std::nullopt;
    }
}

bool IsReadable(const QByteArray& profile)
{
    const IccProfile opened = OpenIccProfile(profile);
    return opened && ToLab(opened);
}

bool IsSrgb(const QByteArray& profile)
{
    const IccProfile opened = OpenIccProfile(profile);
    if (!opened || cmsGetColorSpace(opened.get()) != cmsSigRgbData) {
        return false;
    }
    const std::vector<Rgb> colours = EvenlySpread();
    const std::vector<cmsCIELab> own = LabOf(opened, colours);
    const std::vector<cmsCIELab> srgb = LabOf(IccProfile(cmsCreate_sRGBProfile()), colours);
    constexpr double visible = 1.0;
    return std::equal(own.begin(), own.end(), srgb.begin(), srgb.end(),
                      [](const cmsCIELab& a, const cmsCIELab& b) { return cmsDeltaE(&a, &b) < visible; });
}

bool HasNeutralGreys(const QByteArray& profile)
{
    constexpr double mostOfCameras = 40.0; // how colourful a grey may be, in Lab
    const std::vector<cmsCIELab> greys =
        LabOf(OpenIccProfile(profile), {{0.25F, 0.25F, 0.25F}, {0.5F, 0.5F, 0.5F}, {0.75F, 0.75F, 0.75F}});
    return std::all_of(greys.begin(), greys.end(),
                       [](const cmsCIELab& grey) { return std::hypot(grey.a, grey.b) < mostOfCameras; });
}

QByteArray BuiltInSrgb()
{
    static const QByteArray profile = BuiltIn("srgb");
    return profile;
}

QByteArray BuiltInCmyk()
{
    static const QByteArray profile = BuiltIn("cmyk");
    return profile;
}

} // namespace BatchWorker
