// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultColours.h"

#include "job/values/Phrase.h"

#include "server/worker/colour/Colour.h"
#include "server/worker/pixels/PixelForms.h"

using namespace BatchJob;

namespace BatchWorker {

ResultColours::ResultColours(const JobSettings& job, const FormatSchema& format, const QStringList& keep)
    : job(job)
    , format(format)
    , wantsProfile(keep.contains(QLatin1String("icc")) && format.metadata.holdsProfile)
{
}

// Inks that nothing touches but crop and size stay what they are. To go by RGB would turn black into a mix of all four.
// What lies under transparency is a colour, which inks would have to be mixed for.
bool ResultColours::KeepsInks() const
{
    return (format.holdsTransparency || !isTransparent) && !ChangePixels(job.effects) && !job.framing.state &&
           job.profile.isEmpty() && format.holdsCmyk && KeepsProfile();
}

void ResultColours::NoteSource(const Picture& decoded)
{
    hasInks = IsCmyk(decoded);
    isTransparent = decoded.has_alpha();
    inks = hasInks ? ProfileOf(decoded) : QByteArray();
}

bool ResultColours::KeepsProfile() const
{
    return wantsProfile && !isForgone;
}

Picture ResultColours::Of(const Picture& picture, int bits, Warnings& warnings) const
{
    const Picture coloured = InColours(picture, warnings);
    const bool isReduced = HasSixteenBits(coloured) && bits == 8 && job.profile.isEmpty();
    const Picture curved = isReduced ? WithCurveForEightBits(coloured) : coloured;
    return IsGrey(curved) && !format.holdsGrey ? AsRgbWithItsCurve(curved) : curved;
}

Picture ResultColours::InColours(const Picture& picture, Warnings& warnings) const
{
    if (!job.profile.isEmpty() && !isForgone) {
        if (!format.metadata.holdsProfile) {
            warnings.append(
                {WarningKind::ColoursConverted,
                 Phrase::English("%1 files cannot hold a colour profile; the result is sRGB").arg(format.name)});
            return InPlainSrgb(picture, warnings);
        }
        return ConvertedTo(job.profile, picture, warnings);
    }
    if (hasInks && !IsCmyk(picture)) {
        if (format.holdsCmyk && KeepsProfile() && !picture.has_alpha()) {
            return AsCmyk(inks, picture, warnings);
        }
        warnings.append({WarningKind::ColoursConverted, Phrase::English("the result is sRGB instead of CMYK")});
    }
    return KeepsProfile() ? picture : InPlainSrgb(picture, warnings);
}

} // namespace BatchWorker
