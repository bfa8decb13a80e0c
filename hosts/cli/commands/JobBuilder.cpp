// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobBuilder.h"

#include "hosts/cli/options/Contradictions.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/Presets.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/options/JobOptions.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>

using namespace BatchHost;

namespace BatchCli {

namespace {

void ApplyOptions(ZTBatchDocument& job, const ParsedArguments& arguments)
{
    for (const JobOption& option : JobOptions()) {
        for (const QString& value : arguments.Values(option.info.name)) {
            try {
                option.apply(job, value);
            } catch (const RequestError& error) {
                throw error.In(option.info.name);
            }
        }
    }
}

/// A preset or a job may say where results go relative to where it is run.
void ResolveOutputFolder(ZTBatchOutputSettings& output)
{
    const QString folder = output.GetPath();
    if (!folder.isEmpty() && QDir::isRelativePath(folder)) {
        output.SetPath(AbsolutePath(folder));
    }
}

} // namespace

void BuildSettings(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob)
{
    const QString preset = QStringLiteral("--preset");
    CheckContradictions(arguments);
    SetJobDefaults(job);
    QStringList warnings;
    if (arguments.Has(preset)) {
        if (!savedJob.isEmpty()) {
            throw RequestError{
                BatchJob::Phrase::English("%1 and --preset exclude each other: give one of them to start from")
                    .arg(arguments.Has(QStringLiteral("--from")) ? QStringLiteral("--from") : savedJob)};
        }
        warnings = Presets(SettingsFolder(arguments)).Load(job, arguments.Value(preset));
    } else if (!savedJob.isEmpty()) {
        warnings = LoadJob(job, savedJob);
    }
    for (const QString& warning : qAsConst(warnings)) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(Translated(warning)));
    }
    if (arguments.Has(QStringLiteral("--no-inputs"))) {
        job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    }
    ApplyOptions(job, arguments);
}

InputLosses BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
                     const QStringList& inputs)
{
    BuildSettings(job, arguments, savedJob);
    ResolveOutputFolder(*job.GetOutputSettings());
    return AddInputs(job, arguments, inputs);
}

QString TakeSavedJob(QStringList& inputs)
{
    const QString first = inputs.value(0);
    const bool isJob = first.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) || IsSavedJob(first);
    return isJob ? inputs.takeFirst() : QString();
}

} // namespace BatchCli
