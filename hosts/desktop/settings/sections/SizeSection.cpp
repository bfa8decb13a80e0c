// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SizeSection.h"

#include "hosts/common/Language.h"
#include "job/settings/OutputChecks.h"

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

using ImageSize = ZTBatchOutputSettings::ImageSize;

bool IsScaled(const Settings& settings)
{
    return settings.imageSize.restriction != int(SizeRestriction::None);
}

QString LengthText(const ImageSize& size)
{
    const QString number = QString::number(size.size, 'g', 10);
    switch (SizeUnit(size.unit)) {
    case SizeUnit::Percent:
        return Messages::tr("%1 %").arg(number);
    case SizeUnit::Inches:
        return Messages::tr("%1 in at %2 dpi").arg(number).arg(size.resolution);
    case SizeUnit::Centimetres:
        return Messages::tr("%1 cm at %2 dpi").arg(number).arg(size.resolution);
    case SizeUnit::Millimetres:
        return Messages::tr("%1 mm at %2 dpi").arg(number).arg(size.resolution);
    default:
        return Messages::tr("%1 px").arg(number);
    }
}

QString FitText(SizeSide side)
{
    switch (side) {
    case SizeSide::Width:
        return Messages::tr("Width %1");
    case SizeSide::Height:
        return Messages::tr("Height %1");
    case SizeSide::ShortSide:
        return Messages::tr("Short side %1");
    default:
        return Messages::tr("Long side %1");
    }
}

QString ReduceText(SizeSide side)
{
    switch (side) {
    case SizeSide::Width:
        return Messages::tr("Width %1, only smaller");
    case SizeSide::Height:
        return Messages::tr("Height %1, only smaller");
    case SizeSide::ShortSide:
        return Messages::tr("Short side %1, only smaller");
    default:
        return Messages::tr("Long side %1, only smaller");
    }
}

QString EnlargeText(SizeSide side)
{
    switch (side) {
    case SizeSide::Width:
        return Messages::tr("Width %1, only larger");
    case SizeSide::Height:
        return Messages::tr("Height %1, only larger");
    case SizeSide::ShortSide:
        return Messages::tr("Short side %1, only larger");
    default:
        return Messages::tr("Long side %1, only larger");
    }
}

} // namespace

SizeSection::SizeSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : FormSection(Messages::tr("Si&ze"), QStringLiteral("size"), job, choosers, parent)
{
    MakeForm();
}

QVector<BoundParameter> SizeSection::Parameters() const
{
    // The limits of the job's checks.
    constexpr double shortest = 0.001;
    constexpr double longest = 1'000'000;
    constexpr int highestResolution = 100'000;
    return {
        {ChoiceRow("restriction", Messages::tr("Scaling"), ChoicesOf(SizeRestrictionWords),
                   "The image size's restriction"),
         [](const Settings& settings) { return settings.imageSize.restriction; },
         [](Settings& settings, const QJsonValue& value) { settings.imageSize.restriction = value.toInt(); }},
        {ChoiceRow("side", Messages::tr("Side"), ChoicesOf(SizeSideWords), "The image size's side"),
         [](const Settings& settings) { return settings.imageSize.side; },
         [](Settings& settings, const QJsonValue& value) { settings.imageSize.side = value.toInt(); }, IsScaled},
        {NumberRow("length", Messages::tr("Length"), shortest, longest, "", "The image size"),
         [](const Settings& settings) { return settings.imageSize.size; },
         [](Settings& settings, const QJsonValue& value) { settings.imageSize.size = value.toDouble(); }, IsScaled},
        {ChoiceRow("unit", Messages::tr("Unit"), ChoicesOf(SizeUnitWords), "The image size's unit"),
         [](const Settings& settings) { return settings.imageSize.unit; },
         [](Settings& settings, const QJsonValue& value) { settings.imageSize.unit = value.toInt(); }, IsScaled},
        {IntegerRow("resolution", Messages::tr("Resolution"), 0, highestResolution, "dpi",
                    "The image size's resolution"),
         [](const Settings& settings) { return settings.imageSize.resolution; },
         [](Settings& settings, const QJsonValue& value) { settings.imageSize.resolution = value.toInt(); }},
    };
}

QString SizeSection::State() const
{
    const ImageSize& size = Now().imageSize;
    switch (SizeRestriction(size.restriction)) {
    case SizeRestriction::Fit:
        return FitText(SizeSide(size.side)).arg(LengthText(size));
    case SizeRestriction::ReduceOnly:
        return ReduceText(SizeSide(size.side)).arg(LengthText(size));
    case SizeRestriction::EnlargeOnly:
        return EnlargeText(SizeSide(size.side)).arg(LengthText(size));
    default:
        return Messages::tr("The size stays");
    }
}

QString SizeSection::Problem() const
{
    ValueChecks checks;
    CheckImageSize(checks, Now().imageSize);
    return checks.Error();
}

} // namespace BatchDesktop
