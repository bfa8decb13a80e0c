// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobBuilder.h"

#include "hosts/cli/options/Contradictions.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JobBundles.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/Presets.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/options/JobOptions.h"
#include "job/settings/JobFiles.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>

#include <algorithm>
#include <memory>
#include <vector>

using namespace BatchHost;

namespace BatchCli {

namespace {

const QString presetOption = QStringLiteral("--preset");

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

RequestError BothGiven(const QString& savedJob)
{
    return {
        BatchJob::Phrase::English("%1 and --preset exclude each other: give one of them to start from").arg(savedJob)};
}

/// Throws RequestError for options that contradict several results of each picture.
void CheckSeveral(const ParsedArguments& arguments)
{
    if (arguments.Has(QStringLiteral("--in-place"))) {
        throw RequestError{
            BatchJob::Phrase::English("--in-place makes one result of each picture, but several presets or jobs are "
                                      "given; remove --in-place, or all but one of them")};
    }
    if (!arguments.Has(QStringLiteral("--output"))) {
        throw RequestError{BatchJob::Phrase::English("several presets or jobs need one output folder, in which each "
                                                     "gets a folder of its name"),
                           RequestError::Kind::NoOutputFolder};
    }
}

/// Whether `job` has no inputs of its own, or those of `first`.
bool HasNoOtherInputs(const ZTBatchDocument& job, const ZTBatchDocument& first)
{
    const QVector<BatchJob::JobFile> own = BatchJob::FilesOfJob(*job.GetInputModel());
    const QVector<BatchJob::JobFile> others = BatchJob::FilesOfJob(*first.GetInputModel());
    return own.isEmpty() || std::equal(own.begin(), own.end(), others.begin(), others.end(),
                                       [](const BatchJob::JobFile& left, const BatchJob::JobFile& right) {
                                           return left.path == right.path && left.folder == right.folder;
                                       });
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
    CheckContradictions(arguments);
    SetJobDefaults(job);
    QStringList warnings;
    if (arguments.Has(presetOption)) {
        if (!savedJob.isEmpty()) {
            throw BothGiven(arguments.Has(QStringLiteral("--from")) ? QStringLiteral("--from") : savedJob);
        }
        warnings = Presets(SettingsFolder(arguments)).Load(job, arguments.Value(presetOption));
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

QString GivenJobs::OutputFolder(const ZTBatchDocument& job) const
{
    return bundle.IsEmpty() ? job.GetOutputSettings()->GetPath() : bundle.folder;
}

void GivenJobs::WriteInputs(const ZTBatchDocument& job)
{
    if (!bundle.IsEmpty()) {
        bundle.parts.first().document = job.Serialize(nullptr);
    }
}

GivenJobs BuildJobs(ZTBatchDocument& job, const ParsedArguments& arguments, QStringList& inputs)
{
    const QStringList presets = arguments.Values(presetOption);
    const QStringList savedJobs = TakeSavedJobs(inputs);
    if (std::max(presets.size(), savedJobs.size()) < 2) {
        return {{}, BuildJob(job, arguments, savedJobs.value(0), inputs)};
    }
    if (!presets.isEmpty() && !savedJobs.isEmpty()) {
        throw BothGiven(savedJobs.first());
    }
    CheckSeveral(arguments);
    const Presets known(SettingsFolder(arguments));
    std::vector<std::unique_ptr<ZTBatchDocument>> later;
    QVector<NamedJob> jobs;
    for (const QString& name : presets + savedJobs) {
        ParsedArguments ofOne = arguments;
        if (!presets.isEmpty()) {
            ofOne.options[presetOption] = QStringList{name};
        }
        if (!jobs.isEmpty()) {
            later.push_back(std::make_unique<ZTBatchDocument>());
        }
        ZTBatchDocument& one = jobs.isEmpty() ? job : *later.back();
        BuildSettings(one, ofOne, presets.isEmpty() ? name : QString());
        ResolveOutputFolder(*one.GetOutputSettings());
        if (!jobs.isEmpty() && !HasNoOtherInputs(one, job)) {
            throw RequestError{
                BatchJob::Phrase::English("%1 has other inputs than %2; results of one run have the same "
                                          "inputs, and --no-inputs drops those of saved jobs")
                    .arg(name, savedJobs.first())};
        }
        jobs.append({presets.isEmpty() ? NameOfJobFile(name) : known.NameOf(name), &one});
    }
    GivenJobs given;
    const QString folder = job.GetOutputSettings()->GetPath();
    given.losses = AddInputs(job, arguments, inputs);
    given.bundle = BundleOf(jobs, folder);
    return given;
}

QStringList TakeSavedJobs(QStringList& inputs)
{
    QStringList jobs;
    for (QString job = TakeSavedJob(inputs); !job.isEmpty(); job = TakeSavedJob(inputs)) {
        jobs.append(job);
    }
    return jobs;
}

QString TakeSavedJob(QStringList& inputs)
{
    const QString first = inputs.value(0);
    const bool isJob = first.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) || IsSavedJob(first);
    return isJob ? inputs.takeFirst() : QString();
}

} // namespace BatchCli
