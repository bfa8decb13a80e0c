// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

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

/// The check that a job has to pass before any of its pictures is touched. Call everything here on the document's
/// thread.
namespace BatchJob {

/// Why a job or an order is refused.
struct Refusal
{
    ZTBatchMessage::Error code = ZTBatchMessage::NoError; ///< NoError: it is accepted
    QString message; ///< names the field, its value and what is allowed; empty if it is accepted
};

/// An effect to apply.
struct JobEffect
{
    const EffectSchema* schema = nullptr; ///< one of Effects()
    QJsonObject parameters;               ///< complete with the defaults
};

/// Whether one of `effects` changes pixels.
bool ChangePixels(const QVector<JobEffect>& effects);

/// The checked settings of a job: the server understands every value.
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
    ZTBatchOutputSettings::Transformation framing; ///< values that its switches turn off are unchecked
    QVector<JobEffect> effects;                    ///< those that are enabled, in their order
};

struct CheckedSettings
{
    JobSettings settings; ///< meaningless when refused
    Refusal refusal;

    bool IsAccepted() const { return refusal.code == ZTBatchMessage::NoError; }
};

/// Checks the output settings and the effects of `job`, not its inputs. Gives ReadOutputSettingsError for an unknown or
/// invalid value, NoAdjustment for an unknown effect, ApplyAdjustmentError for an effect with invalid parameters.
CheckedSettings CheckSettings(const ZTBatchDocument& job);

/// As CheckSettings(), and EmptyBatchDocument for a job without files.
CheckedSettings CheckJob(const ZTBatchDocument& job);

/// Checks the five policies of `order`. Gives ReadOutputSettingsError for a value that a policy does not have.
Refusal CheckPolicies(const ZTBatchPayload::Process& order);

} // namespace BatchJob
