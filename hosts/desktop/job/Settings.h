// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/settings/NamePart.h"
#include "job/values/PolicyValues.h"

#include "ZTBatchOutputSettings.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <array>

class ZTBatchDocument;

namespace BatchDesktop {

/// What a user sets for a job: everything but its inputs. A plain value, so that steps of the history are pairs of it.
struct Settings
{
    struct Effect
    {
        QString name;
        QByteArray parameters; ///< JSON
        bool isEnabled = true;

        bool operator==(const Effect& other) const;
    };

    QString outputFolder;
    ZTBatchOutputSettings::FolderStructure structure = ZTBatchOutputSettings::StructureFlat;
    std::array<BatchJob::NamePart, 3> nameParts; ///< by ZTBatchOutputSettings::NamingPart
    QString prefixSeparator;
    QString suffixSeparator;
    QString format;
    QByteArray formatOptions; ///< JSON
    QByteArray profile;
    ZTBatchOutputSettings::ImageSize imageSize;
    ZTBatchOutputSettings::Crop crop;
    ZTBatchOutputSettings::Transformation framing;
    QVector<Effect> effects;

    /// What happens on errors. It is the window's own, and no part of a saved job; at first the user is asked.
    BatchJob::PolicyValues policies = AskingPolicies();

    static BatchJob::PolicyValues AskingPolicies();

    /// Those of `job`, with the policies of `policies`.
    static Settings Of(const ZTBatchDocument& job, const BatchJob::PolicyValues& policies = AskingPolicies());

    /// Makes them those of `job`, but for the policies. Its signals come for what has changed.
    void ApplyTo(ZTBatchDocument& job) const;

    bool operator==(const Settings& other) const;
    bool operator!=(const Settings& other) const { return !(*this == other); }
};

} // namespace BatchDesktop
