#pragma once

#include "server/protocol/WorkerMessages.h"

#include "ZTBatchOutputSettings.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace BatchWorker {

/// An enabled effect of the job's style, with checked, complete parameters.
struct JobEffect
{
    QString id;
    QJsonObject parameters;
};

/// What a job says about each picture, in the form that the stages take.
struct JobSettings
{
    ZTBatchOutputSettings::ImageSize imageSize;
    ZTBatchOutputSettings::Crop crop;
    ZTBatchOutputSettings::Transformation framing;
    QByteArray profile;        ///< the ICC profile of results; empty: that of each source
    QJsonObject formatOptions; ///< checked; OptionsFor() picks what a format takes
    QVector<JobEffect> effects;
    BatchProtocol::ServerLimits limits;
};

/// Reads `job`, which the supervisor has checked. Throws PictureFailure, with what is wrong, when it makes no sense
/// nevertheless.
JobSettings ReadJob(const BatchProtocol::Job& job);

} // namespace BatchWorker
