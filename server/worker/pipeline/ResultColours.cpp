#include "ResultColours.h"

#include "server/worker/colour/Colour.h"

using namespace BatchJob;

namespace BatchWorker {

ResultColours::ResultColours(const JobSettings& job, const FormatSchema& format, const QStringList& keep)
    : job(job)
    , format(format)
    , keepsProfile(keep.contains(QLatin1String("icc")) && format.metadata.holdsProfile)
{
}

// Inks that nothing touches but crop and size stay what they are. To go by RGB would turn black into a mix of all four.
bool ResultColours::KeepsInks() const
{
    return job.effects.isEmpty() && !job.framing.state && job.profile.isEmpty() && format.holdsCmyk && keepsProfile;
}

void ResultColours::NoteSource(const Picture& decoded)
{
    hasInks = IsCmyk(decoded);
    inks = hasInks ? ProfileOf(decoded) : QByteArray();
}

Picture ResultColours::Of(const Picture& picture, Warnings& warnings) const
{
    if (!job.profile.isEmpty()) {
        if (!format.metadata.holdsProfile) {
            warnings.append(
                {WarningKind::ColoursConverted,
                 QStringLiteral("%1 files cannot hold a colour profile; the result is sRGB").arg(format.name)});
            return InPlainSrgb(picture, warnings);
        }
        return ConvertedTo(job.profile, picture, warnings);
    }
    if (hasInks && !IsCmyk(picture)) {
        if (format.holdsCmyk && keepsProfile && !picture.has_alpha()) {
            return AsCmyk(inks, picture, warnings);
        }
        warnings.append({WarningKind::ColoursConverted, QStringLiteral("the result is sRGB instead of CMYK")});
    }
    return keepsProfile ? picture : InPlainSrgb(picture, warnings);
}

} // namespace BatchWorker
