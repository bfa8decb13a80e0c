// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GeneratedProfile.h"

#include "IccHandles.h"
#include "RenderingIntent.h"

#include <QtEndian>

#include <array>
#include <cmath>
#include <vector>

namespace BatchWorker {

namespace {

IccCurve CurveOf(const ToneCurve& curve)
{
    const bool isGamma = curve.a == 1.0 && curve.b == 0.0 && curve.start == 0.0;
    const std::array<double, 5> parameters{curve.exponent, curve.a, curve.b, curve.c, curve.start};
    constexpr int inTwoParts = 4;
    return IccCurve(isGamma ? cmsBuildGamma(nullptr, curve.exponent)
                            : cmsBuildParametricToneCurve(nullptr, inTwoParts, parameters.data()));
}

// The bytes of `profile`, which calls itself `name`, with a date that says nothing.
QByteArray Saved(const IccProfile& profile, const char* name)
{
    if (!profile) {
        return {};
    }
    const std::unique_ptr<cmsMLU, decltype(&cmsMLUfree)> text(cmsMLUalloc(nullptr, 1), cmsMLUfree);
    cmsMLUsetASCII(text.get(), "en", "US", name);
    cmsWriteTag(profile.get(), cmsSigProfileDescriptionTag, text.get());
    cmsUInt32Number size = 0;
    if (!cmsSaveProfileToMem(profile.get(), nullptr, &size)) {
        return {};
    }
    QByteArray bytes(int(size), '\0');
    if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &size)) {
        return {};
    }
    // The same whenever and wherever it is made. Source of the places in the header: ICC.1, table 17.
    constexpr int placeOfDate = 24;
    const std::array<quint16, 6> date{2000, 1, 1, 0, 0, 0};
    for (std::size_t i = 0; i < date.size(); ++i) {
        qToBigEndian(date[i], bytes.data() + placeOfDate + 2 * i);
    }
    constexpr int placeOfPlatform = 40;
    bytes.replace(placeOfPlatform, 4, "APPL");
    return bytes;
}

IccProfile RgbProfile(const Primaries& primaries, cmsToneCurve* curve)
{
    const auto point = [](const Chromaticity& chromaticity) { return cmsCIExyY{chromaticity.x, chromaticity.y, 1.0}; };
    const cmsCIExyY white = point(primaries.white);
    const cmsCIExyYTRIPLE triple{point(primaries.red), point(primaries.green), point(primaries.blue)};
    cmsToneCurve* const curves[3] = {curve, curve, curve};
    return IccProfile(cmsCreateRGBProfile(&white, &triple, curves));
}

// All profiles of grey have the same white: that of the space which connects profiles.
IccProfile GreyProfile(cmsToneCurve* curve)
{
    return IccProfile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
}

// The brightness, 0 to 1, of equally many steps from the least to the largest value, all channels alike. Empty for
// profiles that are neither RGB nor grey, and for those that cannot be read.
std::vector<float> NeutralCurve(const QByteArray& bytes)
{
    constexpr int steps = 1024;
    const IccProfile profile = OpenIccProfile(bytes);
    if (!profile) {
        return {};
    }
    const bool isGrey = cmsGetColorSpace(profile.get()) == cmsSigGrayData;
    if (!isGrey && cmsGetColorSpace(profile.get()) != cmsSigRgbData) {
        return {};
    }
    const IccProfile xyz(cmsCreateXYZProfile());
    const IccTransform transform(cmsCreateTransform(profile.get(), isGrey ? TYPE_GRAY_FLT : TYPE_RGB_FLT, xyz.get(),
                                                    TYPE_XYZ_DBL, IntentOf(profile.get(), IccUse::Source),
                                                    cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE));
    if (!transform) {
        return {};
    }
    std::vector<float> curve;
    for (int i = 0; i < steps; ++i) {
        const float value = float(i) / (steps - 1);
        const std::array<float, 3> colour{value, value, value};
        cmsCIEXYZ light{};
        cmsDoTransform(transform.get(), colour.data(), &light, 1);
        curve.push_back(float(light.Y));
    }
    return curve;
}

IccCurve NeutralToneCurve(const QByteArray& bytes)
{
    std::vector<float> values = NeutralCurve(bytes);
    if (values.empty() || values.back() <= 0.0F) {
        return nullptr;
    }
    const float largest = values.back();
    for (float& value : values) {
        value /= largest;
    }
    return IccCurve(cmsBuildTabulatedToneCurveFloat(nullptr, cmsUInt32Number(values.size()), values.data()));
}

// The curve of an RGB profile that has one for all channels, or of a grey one, as it is written there; otherwise null.
// It belongs to the profile.
cmsToneCurve* OwnCurve(cmsHPROFILE profile)
{
    if (cmsGetColorSpace(profile) == cmsSigGrayData) {
        return static_cast<cmsToneCurve*>(cmsReadTag(profile, cmsSigGrayTRCTag));
    }
    const bool isMatrix = cmsIsMatrixShaper(profile) && !cmsIsTag(profile, cmsSigAToB0Tag);
    return isMatrix ? static_cast<cmsToneCurve*>(cmsReadTag(profile, cmsSigGreenTRCTag)) : nullptr;
}

IccCurve ToneCurveOfProfile(const QByteArray& bytes)
{
    const IccProfile profile = OpenIccProfile(bytes);
    const cmsToneCurve* const own = profile ? OwnCurve(profile.get()) : nullptr;
    return own ? IccCurve(cmsDupToneCurve(own)) : NeutralToneCurve(bytes);
}

QByteArray CopiedWithCurve(cmsHPROFILE source, cmsToneCurve* curve)
{
    const IccProfile copy(cmsCreateProfilePlaceholder(nullptr));
    cmsSetProfileVersion(copy.get(), 4.3);
    cmsSetDeviceClass(copy.get(), cmsSigDisplayClass);
    cmsSetColorSpace(copy.get(), cmsSigRgbData);
    cmsSetPCS(copy.get(), cmsSigXYZData);
    cmsWriteTag(copy.get(), cmsSigMediaWhitePointTag, cmsD50_XYZ());
    for (const cmsTagSignature tag :
         {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag, cmsSigChromaticAdaptationTag}) {
        if (const void* const value = cmsReadTag(source, tag)) {
            cmsWriteTag(copy.get(), tag, value);
        }
    }
    for (const cmsTagSignature tag : {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag}) {
        cmsWriteTag(copy.get(), tag, curve);
    }
    return Saved(copy, "the colours of the source with the curve of sRGB");
}

} // namespace

QByteArray ProfileOf(const Primaries& primaries, const ToneCurve& curve)
{
    const IccCurve built = CurveOf(curve);
    return built ? Saved(RgbProfile(primaries, built.get()), "RGB as the file describes it") : QByteArray();
}

QByteArray GreyProfileOf(const ToneCurve& curve)
{
    const IccCurve built = CurveOf(curve);
    return built ? Saved(GreyProfile(built.get()), "grey as the file describes it") : QByteArray();
}

QByteArray GreyProfileFor(const QByteArray& rgb)
{
    const IccCurve curve = ToneCurveOfProfile(rgb);
    return curve ? Saved(GreyProfile(curve.get()), "grey of an RGB space") : QByteArray();
}

QByteArray RgbProfileFor(const QByteArray& grey)
{
    const IccCurve curve = ToneCurveOfProfile(grey);
    return curve ? Saved(RgbProfile(SrgbPrimaries(), curve.get()), "RGB with the curve of a grey space") : QByteArray();
}

QByteArray WithSrgbCurve(const QByteArray& profile)
{
    const IccProfile source = OpenIccProfile(profile);
    if (!source) {
        return {};
    }
    if (cmsGetColorSpace(source.get()) == cmsSigGrayData) {
        return GreyProfileOf(SrgbCurve());
    }
    if (!OwnCurve(source.get())) {
        return ProfileOf(SrgbPrimaries(), SrgbCurve());
    }
    return CopiedWithCurve(source.get(), CurveOf(SrgbCurve()).get());
}

bool IsNearlyLinear(const QByteArray& profile)
{
    const std::vector<float> curve = NeutralCurve(profile);
    constexpr float nearlyLinear = 0.36F; // of the middle value; an exponent of about 1.5
    return !curve.empty() && curve[curve.size() / 2] > nearlyLinear * curve.back();
}

} // namespace BatchWorker
