#include "Colour.h"

#include "ColourProfile.h"
#include "WorkingForm.h"

#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/VipsText.h"

using namespace BatchJob;

namespace BatchWorker {

namespace {

constexpr const char* builtInSrgb = "srgb";
constexpr const char* builtInCmyk = "cmyk";

ColourKind KindOf(const Picture& picture)
{
    if (IsCmyk(picture)) {
        return ColourKind::Cmyk;
    }
    return IsGrey(picture) ? ColourKind::Grey : ColourKind::Rgb;
}

// From the profile that the picture carries, or the built-in one of its kind, to `profile`, a file or a built-in one.
Picture Transformed(const Picture& picture, const char* profile)
{
    const bool hasAlpha = picture.has_alpha();
    Picture colours = hasAlpha ? WithoutAlpha(picture) : picture;
    const bool hasProfile = !ProfileOf(picture).isEmpty();
    if (!hasProfile && KindOf(picture) == ColourKind::Grey) {
        colours = colours.colourspace(HasSixteenBits(picture) ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    }
    vips::VOption* options = Picture::option()
                                 ->set("intent", VIPS_INTENT_RELATIVE)
                                 ->set("black_point_compensation", true)
                                 ->set("depth", HasSixteenBits(picture) ? 16 : 8)
                                 ->set("embedded", hasProfile);
    if (!hasProfile) {
        options->set("input_profile", IsCmyk(picture) ? builtInCmyk : builtInSrgb);
    }
    const Picture changed = colours.icc_transform(profile, options);
    return hasAlpha ? changed.bandjoin(AlphaOf(picture)) : changed;
}

Picture FittingProfile(const Picture& picture, Warnings& warnings)
{
    const QByteArray profile = ProfileOf(picture);
    const std::optional<ColourKind> kind = KindOfProfile(profile);
    if (profile.isEmpty() || kind == KindOf(picture)) {
        return picture;
    }
    warnings.append({WarningKind::ProfileUnused,
                     kind ? QStringLiteral("the embedded colour profile does not fit the picture and is not used")
                          : QStringLiteral("the embedded colour profile is damaged and is not used")});
    return WithProfile(picture, {});
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
        return FittingProfile(InWorkingForm(known), warnings);
    }
    if (decoded.format() != VIPS_FORMAT_UCHAR && decoded.format() != VIPS_FORMAT_USHORT) {
        throw UnknownFormat(QStringLiteral("only inks of 8 or 16 bits can be read"));
    }
    const Picture inks = FittingProfile(decoded, warnings);
    return keepsCmyk ? inks : Transformed(inks, builtInSrgb);
}

Picture ConvertedTo(const QByteArray& profile, const Picture& picture, Warnings& warnings)
{
    if (KindOfProfile(profile)) {
        const ProfileFile file(profile);
        try {
            return Transformed(picture, file.Name().constData());
        } catch (const vips::VError& problem) {
            warnings.append({WarningKind::ProfileUnused,
                             QStringLiteral("the colour profile cannot be used: %1").arg(TextOf(problem))});
            return picture;
        }
    }
    warnings.append(
        {WarningKind::ProfileUnused,
         QStringLiteral("the job's colour profile does not describe pictures; the colours are not converted")});
    return picture;
}

Picture InPlainSrgb(const Picture& picture, Warnings& warnings)
{
    const QByteArray profile = ProfileOf(picture);
    if (!IsCmyk(picture) && (profile.isEmpty() || IsSrgb(profile))) {
        return WithProfile(picture, {});
    }
    try {
        const bool isGrey = KindOf(picture) == ColourKind::Grey;
        const Picture plain = WithProfile(Transformed(picture, builtInSrgb), {});
        if (!isGrey) {
            return plain;
        }
        const Picture grey = plain.extract_band(0);
        return InWorkingForm(picture.has_alpha() ? grey.bandjoin(AlphaOf(plain)) : grey);
    } catch (const vips::VError& problem) {
        warnings.append({WarningKind::ProfileUnused,
                         QStringLiteral("the colours cannot be converted to sRGB: %1").arg(TextOf(problem))});
        return WithProfile(picture, {});
    }
}

Picture AsCmyk(const QByteArray& profile, const Picture& picture, Warnings& warnings)
{
    if (!profile.isEmpty()) {
        return ConvertedTo(profile, picture, warnings);
    }
    return WithProfile(Transformed(picture, builtInCmyk), {});
}

} // namespace BatchWorker
