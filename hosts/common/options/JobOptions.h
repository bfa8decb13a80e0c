// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OptionInfo.h"

#include <QVector>

#include <functional>

class ZTBatchDocument;

/// Maps the options of the command line to the values of a job and back.
namespace BatchHost {

struct JobOption
{
    OptionInfo info;

    /// Applies the value that a user wrote to a job. Throws RequestError.
    std::function<void(ZTBatchDocument&, const QString&)> apply;

    /// The values of the option that would produce `job`: one, or several for a repeatable option. Empty where the
    /// value has no effect, such as the shadow of a picture without a frame.
    std::function<QStringList(const ZTBatchDocument&)> texts;
};

/// An option for every value of a job but its inputs, in the order in which they are applied and shown.
const QVector<JobOption>& JobOptions();

} // namespace BatchHost
