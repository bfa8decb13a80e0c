// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CropSection.h"

#include "hosts/common/Language.h"
#include "job/settings/OutputChecks.h"

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

bool HasSize(const Settings& settings)
{
    return HasCropSize(settings.crop.type);
}

} // namespace

CropSection::CropSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : FormSection(Messages::tr("&Crop"), QStringLiteral("crop"), job, choosers, parent)
{
    MakeForm();
}

QVector<BoundParameter> CropSection::Parameters() const
{
    constexpr int longest = 1'000'000; // as the job's checks have it
    return {
        {ChoiceRow("type", Messages::tr("Kind of crop"), ChoicesOf(CropTypeWords), "The crop's type"),
         [](const Settings& settings) { return settings.crop.type; },
         [](Settings& settings, const QJsonValue& value) { settings.crop.type = value.toInt(); }},
        {IntegerRow("width", Messages::tr("Width"), 1, longest, "", "The crop's width"),
         [](const Settings& settings) { return settings.crop.size.width(); },
         [](Settings& settings, const QJsonValue& value) { settings.crop.size.setWidth(value.toInt()); }, HasSize},
        {IntegerRow("height", Messages::tr("Height"), 1, longest, "", "The crop's height"),
         [](const Settings& settings) { return settings.crop.size.height(); },
         [](Settings& settings, const QJsonValue& value) { settings.crop.size.setHeight(value.toInt()); }, HasSize},
        {ChoiceRow("alignment", Messages::tr("Place"), ChoicesOf(AlignmentWords), "The crop's alignment"),
         [](const Settings& settings) { return settings.crop.alignment; },
         [](Settings& settings, const QJsonValue& value) { settings.crop.alignment = value.toInt(); },
         [](const Settings& settings) { return HasCropAlignment(settings.crop.type); }},
    };
}

QString CropSection::State() const
{
    const ZTBatchOutputSettings::Crop& crop = Now().crop;
    const auto filled = [&crop](const QString& text) { return text.arg(crop.size.width()).arg(crop.size.height()); };
    switch (CropType(crop.type)) {
    case CropType::Ratio:
        return filled(Messages::tr("Ratio %1 : %2"));
    case CropType::TurningRatio:
        return filled(Messages::tr("Ratio %1 : %2, turned with the picture"));
    case CropType::Interesting:
        return filled(Messages::tr("What draws the eye, ratio %1 : %2"));
    case CropType::TurningInteresting:
        return filled(Messages::tr("What draws the eye, ratio %1 : %2, turned with the picture"));
    case CropType::Fill:
        return filled(Messages::tr("Scaled and cut to %1 \u00d7 %2 px"));
    case CropType::Exact:
        return filled(Messages::tr("Cut to %1 \u00d7 %2 px"));
    case CropType::Trim:
        return Messages::tr("Borders of one colour are cut off");
    default:
        return Messages::tr("No crop");
    }
}

QString CropSection::Problem() const
{
    ValueChecks checks;
    CheckCrop(checks, Now().crop);
    return checks.Error();
}

} // namespace BatchDesktop
