// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "PlanProbe.h"

#include "hosts/cli/options/PolicyArguments.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/ByteText.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/ManagerPolicies.h"
#include "hosts/common/PartJob.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/options/PolicyOptions.h"
#include "hosts/common/options/ValueTexts.h"
#include "job/plan/RunForecast.h"
#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"
#include "ZTBatchOutputSettings.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <utility>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

constexpr int mostParts = 100'000;

QString Needed(const ParsedArguments& arguments, const QString& option)
{
    if (arguments.Value(option).isEmpty()) {
        throw RequestError{Phrase::English("split needs %1; \"velkora-batch help split\" says more").arg(option)};
    }
    return arguments.Value(option);
}

int PartCount(const ParsedArguments& arguments)
{
    const QString option = QStringLiteral("--parts");
    try {
        return IntegerFromText(Needed(arguments, option), 1, mostParts);
    } catch (const RequestError& error) {
        throw error.text.contains(option) ? error : error.In(option);
    }
}

/// Those of the options, else those of the settings, as in a run.
PolicyValues PoliciesFor(const ParsedArguments& arguments)
{
    ZTBatchManager::InitInstance(SettingsFolder(arguments));
    PolicyValues policies = PoliciesOfManager();
    ZTBatchManager::ReleaseInstance();
    ApplyPolicies(arguments, policies);
    return policies;
}

/// Nobody can be asked while parts are made.
PolicyValues WithoutQuestions(PolicyValues policies)
{
    for (int i = 0; i < policyCount; ++i) {
        int& value = policies[std::size_t(i)];
        value = value == AskingPolicy(PolicyKind(i)) ? safePolicy : value;
    }
    return policies;
}

/// The policies of the plan itself: about names and formats a user who asks has to decide before.
Policies PoliciesOfPlan(const PolicyValues& policies)
{
    Policies ofPlan{WithoutQuestions(policies)};
    for (const PolicyKind kind : {PolicyKind::Naming, PolicyKind::WriteToFormat}) {
        if (policies[std::size_t(kind)] == AskingPolicy(kind)) {
            ofPlan.Set(kind, Decision::Ask);
        }
    }
    return ofPlan;
}

/// The settings of `job`, which is the first one and has no inputs any more, and of the others.
void AddJobs(PartPlan& plan, const ZTBatchDocument& job, const GivenJobs& given)
{
    plan.folder = QDir::cleanPath(given.OutputFolder(job));
    plan.jobs.append({given.bundle.parts.value(0).name, job.Serialize(nullptr), job.GetOutputSettings()->GetPath()});
    for (const JobBundle::Part& part : given.bundle.parts.mid(1)) {
        plan.jobs.append({part.name, part.document, part.outputFolder});
    }
}

/// Removes the files of `job` from it: as nodes of a document, a million of them take most of the memory.
QVector<JobFile> TakeFiles(ZTBatchDocument& job)
{
    ZTBatchInputModel& model = *job.GetInputModel();
    const QVector<JobFile> files = FilesOfJob(model);
    model.removeRows(0, model.rowCount());
    return files;
}

/// The settings of the jobs. Also notes the files that they name.
QVector<JobSettings> SettingsOf(PartPlan& plan)
{
    QVector<JobSettings> settings;
    for (const PartPlan::Job& planned : qAsConst(plan.jobs)) {
        ZTBatchDocument job;
        job.Deserialize(planned.document);
        settings.append(CheckSettings(job).settings);
        for (const QString& path : FilesOfSettings(settings.last())) {
            if (const std::optional<FileStamp> stamp = StampOf(path)) {
                plan.sources.append({path, *stamp});
            }
        }
    }
    return settings;
}

/// Throws RequestError for what has to be decided before.
void CheckProspect(const RunForecast& forecast, int index)
{
    const RunForecast::Prospect& prospect = forecast.Of(index);
    const QString input = forecast.Names().Input(index);
    if (prospect.trouble.kind == PolicyKind::Output) {
        throw RequestError{prospect.trouble.reason};
    }
    if (prospect.decision == Decision::Ask) {
        throw RequestError{Phrase::English("%1: %2. Nobody can be asked about it while parts are made; decide with %3")
                               .arg(input, prospect.trouble.reason, PolicyOption(prospect.trouble.kind))};
    }
    if (prospect.decision == Decision::Stop) {
        throw RequestError{Phrase::English("%1: %2. By %3 stop, the job would end there; it was not split")
                               .arg(input, prospect.trouble.reason, PolicyOption(prospect.trouble.kind))};
    }
}

PlannedResult ResultAt(const RunForecast& forecast, int index)
{
    CheckProspect(forecast, index);
    const OutputPlan& names = forecast.Names();
    PlannedResult result;
    const QString output = names.Output(index);
    result.name.output = output.isEmpty() ? QString() : QDir(names.OutputFolder()).relativeFilePath(output);
    result.name.format = names.Format(index) ? names.Format(index)->name : QString();
    result.name.number = names.NumberOf(index);
    result.name.isRenamed = forecast.Plan().IsRenamed(index);
    result.name.isOverwriting = forecast.Plan().IsOverwriting(index);
    result.name.hasOtherFormat = forecast.Plan().HasOtherFormat(index);
    const RunForecast::Prospect& prospect = forecast.Of(index);
    if (prospect.decision == Decision::Skip) {
        result.code = prospect.trouble.code;
        result.reason = prospect.trouble.reason;
    }
    return result;
}

/// Of each file. Taken before anything is said about its result, so that a change in between is noticed.
QVector<FileStamp> StampsOf(const OutputPlan& names)
{
    QVector<FileStamp> stamps;
    stamps.reserve(names.Count() / names.JobCount());
    for (int i = 0; i < names.Count(); i += names.JobCount()) {
        stamps.append(StampOf(names.Input(i)).value_or(FileStamp()));
    }
    return stamps;
}

QVector<qint64> SizesOf(const QVector<FileStamp>& stamps)
{
    QVector<qint64> sizes;
    sizes.reserve(stamps.size());
    for (const FileStamp& stamp : stamps) {
        sizes.append(stamp.bytes);
    }
    return sizes;
}

/// Throws RequestError for what has to be decided before, and if the plan cannot be written.
void Write(const QString& path, PartPlan& plan, int parts, const QVector<FileStamp>& stamps,
           const RunForecast& forecast)
{
    PlanWriter writer(path, plan, CutIntoParts(SizesOf(stamps), parts));
    const int jobs = forecast.Names().JobCount();
    for (int i = 0; i < stamps.size(); ++i) {
        PlannedFile file{forecast.Names().Input(i * jobs), stamps.at(i), {}};
        for (int result = i * jobs; result < (i + 1) * jobs; ++result) {
            file.results.append(ResultAt(forecast, result));
        }
        writer.Add(file);
    }
    QString problem;
    if (!writer.Commit(problem)) {
        throw RequestError{Phrase::English("the plan %1 cannot be written: %2").arg(path, problem)};
    }
}

void TellParts(const PartPlan& plan, const QString& path)
{
    for (int i = 0; i < plan.parts.size(); ++i) {
        const PartPlan::Part& part = plan.parts.at(i);
        WriteOut(Messages::tr("Part %1: pictures: %2, %3")
                     .arg(QString::number(i + 1), QString::number(part.files), ByteText(part.inputBytes)) +
                 QLatin1Char('\n'));
    }
    WriteErrorLine(Messages::tr("The plan of %1 parts is in %2. For each of them: velkora-batch run --plan %2 --part "
                                "NUMBER. At the end: velkora-batch collect %2")
                       .arg(QString::number(plan.parts.size()), path));
}

} // namespace

ExitCode SplitJob(const ParsedArguments& arguments)
{
    const int count = PartCount(arguments);
    const QString path = AbsolutePath(Needed(arguments, QStringLiteral("--plan")));
    const PolicyValues policies = PoliciesFor(arguments);
    QStringList inputs = arguments.inputs;
    ZTBatchDocument job;
    const GivenJobs given = BuildJobs(job, arguments, inputs);
    if (!HasPictures(job, arguments, inputs)) {
        return ExitCode::NoPictures;
    }
    if (given.losses.problems > 0) {
        throw RequestError{Phrase::English("not all inputs could be read, as said above; nothing was split")};
    }
    RequireRunnableJob(job);

    QVector<JobFile> files = TakeFiles(job);
    PartPlan plan;
    AddJobs(plan, job, given);
    plan.policies = WithoutQuestions(policies);
    for (int i = 0; i < policyCount; ++i) {
        const QString option = PolicyOption(PolicyKind(i));
        if (arguments.Has(option)) {
            plan.said.insert(option, arguments.Value(option));
        }
    }
    plan.makers = MakersHere(QCoreApplication::applicationVersion());
    if (count > files.size()) {
        throw RequestError{Phrase::English("%1 pictures cannot be cut into %2 parts; each needs a picture")
                               .arg(files.size())
                               .arg(count)};
    }
    RunPlan names(OutputPlan(std::exchange(files, {}), SettingsOf(plan), plan.folder));
    {
        StatusLine line(!arguments.Has(QStringLiteral("--quiet")));
        line.ShowNow(Messages::tr("Planning %1 files").arg(names.Count()));
        const QVector<FileStamp> stamps = StampsOf(names.Names());
        names.ReadInputs();
        const PlanProbe probe = ProbeInputs(names, job, false, arguments.Has(QStringLiteral("--verbose")), line);
        const RunForecast forecast(std::move(names), PoliciesOfPlan(policies), probe.unreadable);
        Write(path, plan, count, stamps, forecast);
    }
    if (!arguments.Has(QStringLiteral("--quiet"))) {
        TellParts(plan, path);
    }
    TellLeftOut(given.losses.leftOut, arguments);
    return ExitCode::Done;
}

} // namespace BatchCli
