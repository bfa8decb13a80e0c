// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OutputChecks.h"

#include "NamePart.h"

#include "job/tokens/TokenText.h"
#include "job/values/Phrase.h"

#include <QDir>
#include <QFileInfo>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

// More than results need, and far below the overflow of 32-bit arithmetic.
constexpr int longestSide = 1'000'000;
constexpr int highestResolution = 100'000;
constexpr int mostDigits = 64;
constexpr int largestShadow = 10'000;
constexpr int largestPatternScale = 10'000;

void CheckShadow(ValueChecks& checks, const Settings::Transformation& framing)
{
    checks.OneOf(Phrase::Marked("The shadow's mode"), framing.shadowMode, ShadowModeWords);
    checks.Opacity(Phrase::Marked("The shadow's opacity"), framing.shadowOpacity);
    checks.Range(Phrase::Marked("The shadow's distance"), framing.shadowDistance, 0, largestShadow);
    checks.Range(Phrase::Marked("The shadow's size"), framing.shadowSize, 0, largestShadow);
}

void CheckBackground(ValueChecks& checks, const Settings::Transformation& framing)
{
    checks.OneOf(Phrase::Marked("The background's type"), framing.backgroundType, BackgroundTypeWords);
    checks.Opacity(Phrase::Marked("The background's opacity"), framing.backgroundOpacity);
    if (framing.backgroundType == int(BackgroundType::Pattern)) {
        checks.Range(Phrase::Marked("The background's pattern"), framing.backgroundPattern[0], 0, builtInPatterns - 1);
        checks.Range(Phrase::Marked("The scale of the background's pattern"), framing.backgroundPattern[1], 0,
                     largestPatternScale);
    }
    if (framing.backgroundType == int(BackgroundType::Image) &&
        !(QDir::isAbsolutePath(framing.backgroundImage) && QFileInfo(framing.backgroundImage).isFile())) {
        checks.Refuse(Phrase::Marked("The background's image"), Quoted(framing.backgroundImage),
                      Phrase::English("the absolute path of a file that exists"));
    }
    if (framing.backgroundCustomOutput) {
        checks.Range(Phrase::Marked("The frame's width"), framing.backgroundCustomSize.width(), 1, longestSide);
        checks.Range(Phrase::Marked("The frame's height"), framing.backgroundCustomSize.height(), 1, longestSide);
    }
}

} // namespace

void CheckOutputFolder(ValueChecks& checks, const Settings& settings)
{
    if (!QDir::isAbsolutePath(settings.GetPath())) {
        checks.Refuse(Phrase::Marked("The output folder"), Quoted(settings.GetPath()),
                      Phrase::English("an absolute path"));
    }
    checks.OneOf(Phrase::Marked("The folder structure"), settings.GetFolderStructure(), FolderStructureWords);
}

void CheckNaming(ValueChecks& checks, const Settings& settings)
{
    struct Part
    {
        Settings::NamingPart part;
        const char* field;
        const char* digits;
    };
    constexpr std::array parts{
        Part{Settings::PartPrefix, Phrase::Marked("The name's prefix"),
             Phrase::Marked("The number of digits in the name's prefix")},
        Part{Settings::PartMiddle, Phrase::Marked("The name's middle"),
             Phrase::Marked("The number of digits in the name's middle")},
        Part{Settings::PartSuffix, Phrase::Marked("The name's suffix"),
             Phrase::Marked("The number of digits in the name's suffix")},
    };
    for (const Part& part : parts) {
        const Settings::NamingTemplate kind = settings.GetNamingTemplate(part.part);
        checks.OneOf(part.field, kind, NamingTemplateWords);
        if (kind == Settings::TemplateNumber) {
            checks.Range(part.digits, settings.GetDigitsCount(part.part), 1, mostDigits);
        }
        const NamePart named = NamePartOf(settings, part.part);
        const TokenText tokens(named.kind == TemplateTokens ? named.text : QString());
        if (!tokens.IsValid()) {
            checks.Refuse(QStringLiteral("%1: %2").arg(QLatin1String(part.field), tokens.Error()));
        }
    }
}

void CheckImageSize(ValueChecks& checks, const Settings::ImageSize& size)
{
    checks.OneOf(Phrase::Marked("The image size's restriction"), size.restriction, SizeRestrictionWords);
    const bool isLength = size.restriction != int(SizeRestriction::None) && size.unit != int(SizeUnit::Pixels) &&
                          size.unit != int(SizeUnit::Percent);
    // Jobs without a resolution have 0.
    checks.Range(Phrase::Marked("The image size's resolution"), size.resolution, isLength ? 1 : 0, highestResolution);
    if (size.restriction == int(SizeRestriction::None)) {
        return;
    }
    checks.OneOf(Phrase::Marked("The image size's side"), size.side, SizeSideWords);
    checks.OneOf(Phrase::Marked("The image size's unit"), size.unit, SizeUnitWords);
    if (!(size.size > 0.0 && size.size <= longestSide)) {
        checks.Refuse(Phrase::Marked("The image size"), QString::number(size.size),
                      Phrase::English("a number above 0, up to %1").arg(longestSide));
    }
}

void CheckCrop(ValueChecks& checks, const Settings::Crop& crop)
{
    checks.OneOf(Phrase::Marked("The crop's type"), crop.type, CropTypeWords);
    if (!HasCropSize(crop.type)) {
        return;
    }
    checks.Range(Phrase::Marked("The crop's width"), crop.size.width(), 1, longestSide);
    checks.Range(Phrase::Marked("The crop's height"), crop.size.height(), 1, longestSide);
    if ((crop.alignment & ~(Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask)) != 0) {
        checks.Refuse(Phrase::Marked("The crop's alignment"), QString::number(crop.alignment),
                      Phrase::English("a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)"));
    }
}

void CheckFraming(ValueChecks& checks, const Settings::Transformation& framing)
{
    if (!framing.state) {
        return;
    }
    const QMargins& margins = framing.margins;
    for (const int margin : {margins.left(), margins.top(), margins.right(), margins.bottom()}) {
        checks.Range(Phrase::Marked("The frame's margin"), margin, -longestSide, longestSide);
    }
    checks.OneOf(Phrase::Marked("The frame's blending"), framing.blending, BlendingWords);
    checks.Opacity(Phrase::Marked("The picture's opacity"), framing.opacity);
    if (framing.shadowEnabled) {
        CheckShadow(checks, framing);
    }
    CheckBackground(checks, framing);
}

} // namespace BatchJob
