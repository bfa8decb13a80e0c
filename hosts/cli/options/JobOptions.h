#pragma once

#include "OptionInfo.h"

#include <QVector>

#include <functional>

class ZTBatchDocument;

/// The one place where the options of the command line meet the values of a job.
namespace BatchCli {

struct JobOption
{
    OptionInfo info;

    /// Puts the value that a user wrote into a job. Throws RequestError.
    std::function<void(ZTBatchDocument&, const QString&)> apply;

    /// The values that would give a job what it has now: one, or any number of a repeatable option. Empty where the
    /// value means nothing, such as the shadow of a picture without frame.
    std::function<QStringList(const ZTBatchDocument&)> texts;
};

/// Every value of a job but its inputs, in the order in which options are applied and shown.
const QVector<JobOption>& JobOptions();

} // namespace BatchCli
