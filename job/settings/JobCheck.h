#pragma once

#include "OutputNaming.h"

#include "job/effects/EffectCatalog.h"

#include "ZTBatchMessage.h"
#include "ZTBatchOutputSettings.h"
#include "ZTBatchPayload.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

class ZTBatchDocument;

/// The check that a job has to pass before any of its pictures is touched. Everything here is used on the thread that
/// the document belongs to.
namespace BatchJob {

/// Why something is refused.
struct Refusal
{
    ZTBatchMessage::Error code = ZTBatchMessage::NoError; ///< NoError: it is not
    QString message; ///< names the field, its value and what is allowed; empty when nothing is refused
};

/// An effect that is to be applied.
struct JobEffect
{
    const EffectSchema* schema = nullptr; ///< one of Effects()
    QJsonObject parameters;               ///< complete with the defaults
};

/// What a job says about its results, every value being one that the server understands.
struct JobSettings
{
    QString outputFolder; ///< absolute, clean, in Qt's form
    ZTBatchOutputSettings::FolderStructure folderStructure = ZTBatchOutputSettings::StructureFlat;
    OutputNaming naming;
    QString format;            ///< one of Formats(), or ZTBatchOutputSettings::GetOriginalFormat()
    QJsonObject formatOptions; ///< as CheckFormatOptions() gives them; OptionsFor() completes them for a format
    QByteArray profile;        ///< the ICC profile that results are converted to, unchecked; empty for none
    ZTBatchOutputSettings::ImageSize imageSize;
    ZTBatchOutputSettings::Crop crop;
    ZTBatchOutputSettings::Transformation framing; ///< only what its `state` and its switches need is checked
    QVector<JobEffect> effects;                    ///< those that are enabled, in their order
};

struct CheckedSettings
{
    JobSettings settings; ///< means nothing when refused
    Refusal refusal;

    bool IsAccepted() const { return refusal.code == ZTBatchMessage::NoError; }
};

/// Checks the output settings and the effects of `job`, not its inputs: ReadOutputSettingsError for a value that means
/// nothing, NoAdjustment for an effect that does not exist, ApplyAdjustmentError for one whose parameters are wrong.
CheckedSettings CheckSettings(const ZTBatchDocument& job);

/// As CheckSettings(), and EmptyBatchDocument for a job without a single file.
CheckedSettings CheckJob(const ZTBatchDocument& job);

/// Checks the five policies of `order`: ReadOutputSettingsError for a value that is none of the policy's.
Refusal CheckPolicies(const ZTBatchPayload::Process& order);

} // namespace BatchJob
