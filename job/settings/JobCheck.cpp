// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobCheck.h"

#include "OutputChecks.h"
#include "ValueChecks.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/values/JobValues.h"
#include "job/values/ParameterSchema.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTStyle.h"

#include <QDir>

#include <algorithm>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

void CheckFormat(ValueChecks& checks, const Settings& settings, JobSettings& accepted)
{
    QByteArray options;
    settings.GetFormat(accepted.format, options);
    if (accepted.format != Settings::GetOriginalFormat() && !FindFormat(accepted.format)) {
        QStringList known{Settings::GetOriginalFormat()};
        for (const FormatSchema& format : Formats()) {
            known.append(format.name);
        }
        checks.Refuse(Phrase::Marked("The format"), Quoted(accepted.format),
                      Phrase::English("one of %1").arg(known.join(QStringLiteral(", "))));
        return;
    }
    const CheckedParameters checked = CheckFormatOptions(accepted.format, options);
    accepted.formatOptions = checked.values;
    if (!checked.IsValid()) {
        checks.Refuse(Phrase::English("The options of the format %1: %2").arg(accepted.format, checked.error));
    }
}

Refusal CheckEffects(const ZTStyle& style, QVector<JobEffect>& accepted)
{
    for (int i = 0; i < style.GetEffectCount(); ++i) {
        if (!style.IsEnabled(i)) {
            continue;
        }
        const QString id = style.EffectAt(i);
        const EffectSchema* schema = FindEffect(id);
        if (!schema) {
            QStringList known;
            for (const EffectSchema& effect : Effects()) {
                known.append(effect.id);
            }
            const QString nearest = NearestWord(id, known);
            QString message = Phrase::English("Effect %1, \"%2\", does not exist").arg(i + 1).arg(id);
            message += nearest.isEmpty() ? Phrase::English("; there are %1").arg(known.join(QStringLiteral(", ")))
                                         : Phrase::English("; did you mean \"%1\"?").arg(nearest);
            return {ZTBatchMessage::NoAdjustment, message};
        }
        const CheckedParameters checked = CheckEffect(*schema, style.DataAt(i));
        if (!checked.IsValid()) {
            return {ZTBatchMessage::ApplyAdjustmentError,
                    Phrase::English("Effect %1, \"%2\": %3").arg(QString::number(i + 1), id, checked.error)};
        }
        accepted.append({schema, checked.values});
    }
    return {};
}

Refusal OutputRefusal(const QString& error)
{
    return error.isEmpty() ? Refusal() : Refusal{ZTBatchMessage::ReadOutputSettingsError, error};
}

} // namespace

bool ChangePixels(const QVector<JobEffect>& effects)
{
    return std::any_of(effects.begin(), effects.end(),
                       [](const JobEffect& effect) { return effect.schema->changesPixels; });
}

CheckedSettings CheckSettings(const ZTBatchDocument& job)
{
    const Settings& settings = *job.GetOutputSettings();
    CheckedSettings checked;
    JobSettings& accepted = checked.settings;
    ValueChecks checks;
    CheckOutputFolder(checks, settings);
    CheckNaming(checks, settings);
    CheckFormat(checks, settings, accepted);
    accepted.outputFolder = QDir::cleanPath(settings.GetPath());
    accepted.folderStructure = settings.GetFolderStructure();
    accepted.naming = OutputNaming(settings);
    accepted.profile = settings.GetICCProfile();
    accepted.imageSize = settings.GetImageSizeSettings();
    accepted.crop = settings.GetCropSettings();
    accepted.framing = settings.GetTransformationSettings();
    CheckImageSize(checks, accepted.imageSize);
    CheckCrop(checks, accepted.crop);
    CheckFraming(checks, accepted.framing);
    checked.refusal = OutputRefusal(checks.Error());
    if (checked.IsAccepted()) {
        checked.refusal = CheckEffects(*job.GetStyle(), accepted.effects);
    }
    return checked;
}

CheckedSettings CheckJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() < 1) {
        return {{}, {ZTBatchMessage::EmptyBatchDocument, Phrase::English("The job has no files")}};
    }
    return CheckSettings(job);
}

Refusal CheckPolicies(const ZTBatchPayload::Process& order)
{
    ValueChecks checks;
    checks.OneOf(Phrase::Marked("The input policy"), order.inputPolicy, FilePolicyWords);
    checks.OneOf(Phrase::Marked("The output policy"), order.outputPolicy, FilePolicyWords);
    checks.OneOf(Phrase::Marked("The processing policy"), order.processingPolicy, FilePolicyWords);
    checks.OneOf(Phrase::Marked("The naming policy"), order.namingPolicy, NamingPolicyWords);
    checks.OneOf(Phrase::Marked("The write-to-format policy"), order.writeToFormatPolicy, WriteToFormatPolicyWords);
    return OutputRefusal(checks.Error());
}

} // namespace BatchJob
