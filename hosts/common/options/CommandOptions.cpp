// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandOptions.h"

#include "JobOptions.h"
#include "PolicyOptions.h"

#include "hosts/common/JobDefaults.h"
#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

using namespace BatchJob;

namespace BatchHost {

namespace {

const QString nameOption = QStringLiteral("--job-name");
const QString profileOption = QStringLiteral("--icc");

/// A value that begins with a hyphen would pass for an option.
void Append(QStringList& arguments, const QString& option, const QString& value)
{
    if (value.startsWith(QLatin1Char('-'))) {
        arguments.append(option + QLatin1Char('=') + value);
    } else {
        arguments.append(option);
        arguments.append(value);
    }
}

/// Throws RequestError unless `copy` has the settings of `job`.
void RequireSame(const ZTBatchDocument& job, const ZTBatchDocument& copy)
{
    for (const JobOption& option : JobOptions()) {
        if (option.info.name != nameOption && option.texts(job) != option.texts(copy)) {
            throw RequestError{Phrase::English("the option %1 cannot say what the job holds").arg(option.info.name)};
        }
    }
}

} // namespace

QStringList CommandOptions(const ZTBatchDocument& job, const PolicyValues& policies, const QString& profileFile)
{
    ZTBatchDocument defaults;
    ZTBatchDocument copy;
    SetJobDefaults(defaults);
    SetJobDefaults(copy);
    QStringList arguments;
    for (const JobOption& option : JobOptions()) {
        const QStringList texts = option.texts(job);
        if (option.info.name == nameOption || texts == option.texts(defaults)) {
            continue;
        }
        for (const QString& text : texts) {
            const QString value = option.info.name == profileOption ? profileFile : text;
            option.apply(copy, value);
            Append(arguments, option.info.name, value);
        }
    }
    RequireSame(job, copy);
    return arguments + CommandOptions(policies);
}

QStringList CommandOptions(const PolicyValues& policies)
{
    QStringList arguments;
    for (const PolicyKind kind : PolicyOptionKinds()) {
        Append(arguments, PolicyOption(kind), PolicyWord(kind, policies[std::size_t(kind)]));
    }
    return arguments;
}

} // namespace BatchHost
