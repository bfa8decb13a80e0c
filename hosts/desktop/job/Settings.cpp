// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Settings.h"

#include "ZTBatchDocument.h"

#include <ZTStyle.h>

#include <tuple>

using namespace BatchJob;

namespace BatchDesktop {

namespace {

using Output = ZTBatchOutputSettings;

constexpr std::array parts{Output::PartPrefix, Output::PartMiddle, Output::PartSuffix};

QVector<Settings::Effect> EffectsOf(const ZTStyle& style)
{
    QVector<Settings::Effect> effects;
    for (int i = 0; i < style.GetEffectCount(); ++i) {
        effects.append({style.EffectAt(i), style.DataAt(i), style.IsEnabled(i)});
    }
    return effects;
}

} // namespace

bool Settings::Effect::operator==(const Effect& other) const
{
    return std::tie(name, parameters, isEnabled) == std::tie(other.name, other.parameters, other.isEnabled);
}

bool Settings::operator==(const Settings& other) const
{
    const auto tied = [](const Settings& settings) {
        return std::tie(settings.outputFolder, settings.structure, settings.nameParts, settings.prefixSeparator,
                        settings.suffixSeparator, settings.format, settings.formatOptions, settings.profile,
                        settings.imageSize, settings.crop, settings.framing, settings.effects, settings.policies);
    };
    return tied(*this) == tied(other);
}

PolicyValues Settings::AskingPolicies()
{
    PolicyValues values{};
    for (int kind = 0; kind < policyCount; ++kind) {
        values[std::size_t(kind)] = AskingPolicy(PolicyKind(kind));
    }
    return values;
}

Settings Settings::Of(const ZTBatchDocument& job, const PolicyValues& policies)
{
    const Output& output = *job.GetOutputSettings();
    Settings settings;
    settings.policies = policies;
    settings.outputFolder = output.GetPath();
    settings.structure = output.GetFolderStructure();
    for (const Output::NamingPart part : parts) {
        settings.nameParts[std::size_t(part)] = BatchJob::NamePartOf(output, part);
    }
    settings.prefixSeparator = output.GetPrefixSeparator();
    settings.suffixSeparator = output.GetSuffixSeparator();
    output.GetFormat(settings.format, settings.formatOptions);
    settings.profile = output.GetICCProfile();
    settings.imageSize = output.GetImageSizeSettings();
    settings.crop = output.GetCropSettings();
    settings.framing = output.GetTransformationSettings();
    settings.effects = EffectsOf(*job.GetStyle());
    return settings;
}

void Settings::ApplyTo(ZTBatchDocument& job) const
{
    Output& output = *job.GetOutputSettings();
    output.SetPath(outputFolder);
    output.SetFolderStructure(structure);
    for (const Output::NamingPart part : parts) {
        BatchJob::SetNamePart(output, part, nameParts[std::size_t(part)]);
    }
    output.SetPrefixSeparator(prefixSeparator);
    output.SetSuffixSeparator(suffixSeparator);
    output.SetFormat(format, formatOptions);
    if (output.GetICCProfile() != profile) {
        output.SetICCProfile(profile);
    }
    output.SetImageSizeSettings(imageSize);
    output.SetCropSettings(crop);
    output.SetTransformationSettings(framing);
    ZTStyle& style = *job.GetStyle();
    if (EffectsOf(style) != effects) {
        style.Clear();
        for (const Effect& effect : effects) {
            style.AppendEffect(effect.name, effect.parameters, effect.isEnabled);
        }
        Q_EMIT job.StyleChanged();
    }
}

} // namespace BatchDesktop
