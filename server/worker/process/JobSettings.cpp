#include "JobSettings.h"

#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/PictureFailure.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

PictureFailure WrongJob(ZTBatchMessage::Error error, const QString& reason)
{
    return {Case::Processing, error, reason};
}

QVector<JobEffect> EffectsOf(const ZTStyle& style)
{
    QVector<JobEffect> effects;
    for (int i = 0; i < style.GetEffectCount(); ++i) {
        if (!style.IsEnabled(i)) {
            continue;
        }
        const EffectSchema* schema = FindEffect(style.EffectAt(i));
        if (!schema) {
            throw WrongJob(ZTBatchMessage::NoAdjustment,
                           QStringLiteral("the effect \"%1\" is unknown").arg(style.EffectAt(i)));
        }
        const CheckedParameters checked = CheckEffect(*schema, style.DataAt(i));
        if (!checked.IsValid()) {
            throw WrongJob(ZTBatchMessage::ApplyAdjustmentError,
                           QStringLiteral("effect \"%1\": %2").arg(schema->id, checked.error));
        }
        effects.append({schema->id, checked.values});
    }
    return effects;
}

} // namespace

JobSettings ReadJob(const Job& job)
{
    ZTBatchDocument document;
    if (!document.Deserialize(job.document)) {
        throw WrongJob(ZTBatchMessage::ReadOutputSettingsError, QStringLiteral("the job cannot be read"));
    }
    const ZTBatchOutputSettings& output = *document.GetOutputSettings();
    QString format;
    QByteArray options;
    output.GetFormat(format, options);
    const CheckedParameters checked = CheckFormatOptions(format, options);
    if (!checked.IsValid()) {
        throw WrongJob(ZTBatchMessage::ReadOutputSettingsError, checked.error);
    }
    JobSettings settings;
    settings.imageSize = output.GetImageSizeSettings();
    settings.crop = output.GetCropSettings();
    settings.framing = output.GetTransformationSettings();
    settings.profile = output.GetICCProfile();
    settings.formatOptions = checked.values;
    settings.effects = EffectsOf(*document.GetStyle());
    settings.limits = job.limits;
    return settings;
}

} // namespace BatchWorker
