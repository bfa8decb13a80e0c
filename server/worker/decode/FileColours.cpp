// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileColours.h"

#include "job/values/Phrase.h"

#include "server/worker/colour/GeneratedProfile.h"
#include "server/worker/colour/ToneMapping.h"
#include "server/worker/colour/WorkingForm.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/PixelForms.h"

#include <vector>

using namespace BatchJob;

namespace BatchWorker {

namespace {

bool IsSrgbByNumber(const CodedColours& coded)
{
    constexpr int bt709 = 1;
    constexpr int srgb = 13;
    return (coded.primaries == bt709 || coded.primaries == CodedColours::unspecified) &&
           (coded.transfer == srgb || coded.transfer == CodedColours::unspecified);
}

// Source of the range: Rec. ITU-R BT.709 and BT.2100, narrow range of RGB.
Picture WithFullRange(const Picture& picture)
{
    constexpr double black = 16.0;
    constexpr double reach = 219.0; // from black to white
    const double ofByte = HasSixteenBits(picture) ? 256.0 : 1.0;
    const double factor = LargestValue(picture) / (reach * ofByte);
    const int colours = ColourBands(picture);
    std::vector<double> factors(std::size_t(picture.bands()), 1.0);
    std::vector<double> offsets(std::size_t(picture.bands()), 0.0);
    for (int band = 0; band < colours; ++band) {
        factors[std::size_t(band)] = factor;
        offsets[std::size_t(band)] = -black * ofByte * factor + 0.5;
    }
    return picture.linear(factors, offsets)
        .cast(picture.format())
        .copy(Picture::option()->set("interpretation", picture.interpretation()));
}

void AppendOnce(const Warning& warning, Warnings& warnings)
{
    if (!warnings.contains(warning)) {
        warnings.append(warning);
    }
}

} // namespace

FileColours ColoursOf(const CodedColours& coded)
{
    FileColours colours;
    colours.hdr = HdrColoursOf(coded);
    if (colours.hdr || IsSrgbByNumber(coded)) {
        return colours;
    }
    const std::optional<Primaries> primaries = PrimariesOf(coded.primaries);
    const std::optional<ToneCurve> curve = ToneCurveOf(coded.transfer);
    colours.isUnusable = !primaries || !curve;
    if (!colours.isUnusable) {
        colours.profile = ProfileOf(*primaries, *curve);
    }
    return colours;
}

Picture WithColoursOfFile(const Picture& picture, const FileColours& colours, Warnings& warnings)
{
    if (colours.isUnusable && ProfileOf(picture).isEmpty()) {
        AppendOnce({WarningKind::ProfileUnused,
                    Phrase::English("what the file says of its colours is damaged or unknown and is not used")},
                   warnings);
    }
    Picture shown = colours.isNarrow ? WithFullRange(InWorkingForm(picture)) : picture;
    if (colours.hdr) {
        return FromHdr(InWorkingForm(shown), *colours.hdr, warnings);
    }
    return colours.isSrgb || !colours.profile.isEmpty() ? WithProfile(shown, colours.profile) : shown;
}

} // namespace BatchWorker
