// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Colour.h"

#include "job/values/Phrase.h"

#include "ColourProfile.h"
#include "ColourTransform.h"
#include "GeneratedProfile.h"
#include "WorkingForm.h"

#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <optional>

using namespace BatchJob;

namespace BatchWorker {

namespace {

constexpr int inkBands = 4;

ColourKind KindOf(const Picture& picture)
{
    if (IsCmyk(picture)) {
        return ColourKind::Cmyk;
    }
    return IsGrey(picture) ? ColourKind::Grey : ColourKind::Rgb;
}

QByteArray BuiltInProfileFor(const Picture& picture)
{
    return IsCmyk(picture) ? BuiltInCmyk() : BuiltInSrgb();
}

// From the profile that the picture carries, or the built-in one of its kind, to `profile`, which the result carries.
// Nothing when the profiles cannot be used.
std::optional<Picture> Transformed(const Picture& picture, const QByteArray& profile)
{
    const bool hasAlpha = picture.has_alpha();
    const int bands = IsCmyk(picture) ? inkBands : ColourBands(picture);
    Picture colours = hasAlpha ? picture.extract_band(0, Picture::option()->set("n", bands)) : picture;
    const QByteArray own = ProfileOf(picture);
    if (own.isEmpty() && KindOf(picture) == ColourKind::Grey) {
        colours = colours.colourspace(HasSixteenBits(picture) ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    }
    const std::optional<Picture> changed =
        ConvertedByProfiles(colours, own.isEmpty() ? BuiltInProfileFor(picture) : own, profile);
    if (!changed) {
        return std::nullopt;
    }
    return WithProfile(hasAlpha ? changed->bandjoin(picture.extract_band(bands)) : *changed, profile);
}

// A profile for grey or RGB, whichever `profile` is not for, in which the values mean the same. Empty if none can be
// made.
QByteArray ProfileForKind(ColourKind wanted, ColourKind kind, const QByteArray& profile)
{
    if (wanted == ColourKind::Grey && kind == ColourKind::Rgb) {
        return GreyProfileFor(profile);
    }
    return wanted == ColourKind::Rgb && kind == ColourKind::Grey ? RgbProfileFor(profile) : QByteArray();
}

Picture FittingProfile(const Picture& picture, Warnings& warnings)
{
    const QByteArray profile = ProfileOf(picture);
    if (profile.isEmpty()) {
        return picture;
    }
    const std::optional<ColourKind> kind = KindOfProfile(profile);
    if (!kind || !IsReadable(profile)) {
        warnings.append(
            {WarningKind::ProfileUnused, Phrase::English("the embedded colour profile is damaged and is not used")});
        return WithProfile(picture, {});
    }
    if (kind == KindOf(picture)) {
        return picture;
    }
    const QByteArray other = ProfileForKind(KindOf(picture), *kind, profile);
    if (other.isEmpty()) {
        warnings.append({WarningKind::ProfileUnused,
                         Phrase::English("the embedded colour profile does not fit the picture and is not used")});
    }
    return WithProfile(picture, other);
}

// Inks of 8 or 16 bits.
Picture InWorkingInks(const Picture& decoded)
{
    switch (decoded.format()) {
    case VIPS_FORMAT_UCHAR:
    case VIPS_FORMAT_USHORT:
        return decoded;
    case VIPS_FORMAT_FLOAT:
    case VIPS_FORMAT_DOUBLE:
        return decoded.linear(65535, 0.5).cast(VIPS_FORMAT_USHORT);
    default:
        return decoded.cast(VIPS_FORMAT_USHORT, Picture::option()->set("shift", true));
    }
}

// With the profile of sRGB.
Picture InksInSrgb(const Picture& inks, Warnings& warnings)
{
    if (const std::optional<Picture> changed = Transformed(inks, BuiltInSrgb())) {
        return *changed;
    }
    warnings.append({WarningKind::ProfileUnused, Phrase::English("the embedded colour profile cannot be used")});
    return Transformed(WithProfile(inks, {}), BuiltInSrgb()).value();
}

// Effects, and most programs, take equal values of red, green and blue for a grey.
Picture InUsualRgb(const Picture& picture, Warnings& warnings)
{
    if (ProfileOf(picture).isEmpty() || KindOf(picture) != ColourKind::Rgb || HasNeutralGreys(ProfileOf(picture))) {
        return picture;
    }
    warnings.append({WarningKind::ColoursConverted,
                     Phrase::English("its colour profile is one for storing colours only; the result is sRGB")});
    return InPlainSrgb(picture, warnings);
}

} // namespace

bool IsCmyk(const Picture& picture)
{
    return picture.interpretation() == VIPS_INTERPRETATION_CMYK && picture.bands() >= 4;
}

Picture InWorkingColours(const Picture& decoded, bool keepsCmyk, Warnings& warnings)
{
    if (!IsCmyk(decoded)) {
        // What floating-point values mean depends on the profile.
        const Picture known = IsFloatingPoint(decoded) ? FittingProfile(decoded, warnings) : decoded;
        return InUsualRgb(FittingProfile(InWorkingForm(known), warnings), warnings);
    }
    const Picture inks = FittingProfile(InWorkingInks(decoded), warnings);
    return keepsCmyk ? inks : InksInSrgb(inks, warnings);
}

Picture ConvertedTo(const QByteArray& profile, const Picture& picture, Warnings& warnings)
{
    if (!KindOfProfile(profile)) {
        warnings.append(
            {WarningKind::ProfileUnused,
             Phrase::English("the job's colour profile does not describe pictures; the colours are not converted")});
        return picture;
    }
    const std::optional<Picture> changed = Transformed(picture, profile);
    if (!changed) {
        warnings.append({WarningKind::ProfileUnused,
                         Phrase::English("the colour profile cannot be used; the colours are not converted")});
    }
    return changed.value_or(picture);
}

Picture InPlainSrgb(const Picture& picture, Warnings& warnings)
{
    const QByteArray profile = ProfileOf(picture);
    if (!IsCmyk(picture) && (profile.isEmpty() || IsSrgb(profile))) {
        return WithProfile(picture, {});
    }
    const std::optional<Picture> changed = Transformed(picture, BuiltInSrgb());
    if (!changed) {
        warnings.append(
            {WarningKind::ProfileUnused,
             Phrase::English("the colours cannot be converted to sRGB; their values are taken for sRGB as they are")});
        return WithProfile(picture, {});
    }
    const Picture plain = WithProfile(*changed, {});
    if (KindOf(picture) != ColourKind::Grey) {
        return plain;
    }
    const Picture grey = plain.extract_band(0);
    return InWorkingForm(picture.has_alpha() ? grey.bandjoin(AlphaOf(plain)) : grey);
}

Picture AsRgbWithItsCurve(const Picture& grey)
{
    const QByteArray profile = ProfileOf(grey);
    const Picture rgb = grey.colourspace(HasSixteenBits(grey) ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    return profile.isEmpty() ? rgb : WithProfile(rgb, RgbProfileFor(profile));
}

Picture WithCurveForEightBits(const Picture& picture)
{
    const QByteArray profile = ProfileOf(picture);
    if (profile.isEmpty() || IsCmyk(picture) || !IsNearlyLinear(profile)) {
        return picture;
    }
    return Transformed(picture, WithSrgbCurve(profile)).value_or(picture);
}

Picture AsCmyk(const QByteArray& profile, const Picture& picture, Warnings& warnings)
{
    if (!profile.isEmpty()) {
        return ConvertedTo(profile, picture, warnings);
    }
    return WithProfile(Transformed(picture, BuiltInCmyk()).value(), {});
}

} // namespace BatchWorker
