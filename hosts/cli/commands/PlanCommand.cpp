// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "PlanProbe.h"

#include "hosts/cli/options/PolicyArguments.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "job/geometry/ResultSize.h"
#include "job/plan/RunForecast.h"
#include "job/values/VisibleText.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <optional>
#include <utility>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

/// What a run would do, and the sizes of its pictures.
struct Outlook
{
    RunForecast forecast;
    PlanProbe probe;
    QVector<JobSettings> settings; ///< of the jobs
    QStringList names;             ///< of the jobs; empty for one

    QSize InputSize(int index) const { return probe.sizes.value(index); }

    /// Empty where nothing is written, or the size is not known.
    QSize OutputSize(int index) const
    {
        const std::optional<Decision> decision = forecast.Of(index).decision;
        const QSize input = InputSize(index);
        if (input.isEmpty() || decision == Decision::Skip || decision == Decision::Stop) {
            return {};
        }
        return ResultSize(input, settings.at(forecast.Names().JobOf(index))).value_or(QSize());
    }
};

/// The settings of the jobs of a bundle, of which `first` is the first, or of that alone.
QVector<JobSettings> SettingsOf(const ZTBatchDocument& first, const JobBundle& bundle)
{
    QVector<JobSettings> settings{CheckSettings(first).settings};
    for (const JobBundle::Part& part : bundle.parts.mid(1)) {
        ZTBatchDocument job;
        job.Deserialize(part.document);
        settings.append(CheckSettings(job).settings);
    }
    return settings;
}

Outlook LookAhead(const ZTBatchDocument& job, const GivenJobs& given, const PolicyValues& policies,
                  const ParsedArguments& arguments)
{
    const QVector<JobSettings> settings = SettingsOf(job, given.bundle);
    QStringList names;
    for (const JobBundle::Part& part : given.bundle.parts) {
        names.append(part.name);
    }
    RunPlan plan(OutputPlan(FilesOfJob(*job.GetInputModel()), settings,
                            given.bundle.IsEmpty() ? settings.first().outputFolder : given.bundle.folder));
    if (arguments.Has(QStringLiteral("--in-place"))) {
        plan.ReplaceOriginals();
    }
    StatusLine line(!arguments.Has(QStringLiteral("--quiet")));
    line.ShowNow(Messages::tr("Planning %1 files").arg(plan.Count()));
    plan.ReadInputs();
    const PlanProbe probe = ProbeInputs(plan, job, !arguments.Has(QStringLiteral("--no-sizes")),
                                        arguments.Has(QStringLiteral("--verbose")), line);
    return {RunForecast(std::move(plan), Policies(policies), probe.unreadable), probe, settings, names};
}

QString ProspectWord(const RunForecast::Prospect& prospect)
{
    if (!prospect.decision) {
        return prospect.isInPlace ? QStringLiteral("replace") : QStringLiteral("write");
    }
    switch (*prospect.decision) {
    case Decision::Skip:
        return QStringLiteral("skip");
    case Decision::Stop:
        return QStringLiteral("stop");
    case Decision::Ask:
        return QStringLiteral("ask");
    case Decision::Overwrite:
        return QStringLiteral("overwrite");
    case Decision::Rename:
        return QStringLiteral("rename");
    case Decision::Nearest:
        return QStringLiteral("nearest");
    }
    return {};
}

QString SizeText(const QSize& size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// "6000 x 4000 -> 1600 x 1067 px"; one size where both are equal.
QString SizesText(const QSize& input, const QSize& output)
{
    return QStringLiteral("%1 px").arg(input == output ? SizeText(output)
                                                       : SizeText(input) + QStringLiteral(" -> ") + SizeText(output));
}

QString Line(const Outlook& outlook, int index)
{
    const RunForecast& forecast = outlook.forecast;
    const RunForecast::Prospect& prospect = forecast.Of(index);
    const QString output = forecast.Names().Output(index);
    QString line = forecast.Names().Input(index);
    if (!output.isEmpty()) {
        line += QStringLiteral(" -> ") + output;
    }
    const QSize size = outlook.OutputSize(index);
    if (!size.isEmpty()) {
        line += QStringLiteral("  ") + SizesText(outlook.InputSize(index), size);
    }
    if (prospect.decision) {
        line += QStringLiteral("  [%1: %2]").arg(ProspectWord(prospect), Translated(prospect.trouble.reason));
    } else if (prospect.isInPlace) {
        line += QStringLiteral("  [%1]").arg(Messages::tr("replaces the original"));
    }
    return VisibleText(line) + QLatin1Char('\n');
}

void InsertSize(QJsonObject& object, const QString& width, const QString& height, const QSize& size)
{
    if (!size.isEmpty()) {
        object.insert(width, size.width());
        object.insert(height, size.height());
    }
}

QString JsonLine(const Outlook& outlook, int index)
{
    const RunForecast& forecast = outlook.forecast;
    const RunForecast::Prospect& prospect = forecast.Of(index);
    QJsonObject object{{QStringLiteral("input"), forecast.Names().Input(index)},
                       {QStringLiteral("output"), forecast.Names().Output(index)},
                       {QStringLiteral("result"), ProspectWord(prospect)}};
    if (prospect.decision) {
        object.insert(QStringLiteral("reason"), prospect.trouble.reason);
    }
    if (!outlook.names.isEmpty()) {
        object.insert(QStringLiteral("preset"), outlook.names.at(forecast.Names().JobOf(index)));
    }
    InsertSize(object, QStringLiteral("inputWidth"), QStringLiteral("inputHeight"), outlook.InputSize(index));
    InsertSize(object, QStringLiteral("width"), QStringLiteral("height"), outlook.OutputSize(index));
    return QString::fromUtf8(VisibleJson(QJsonDocument(object).toJson(QJsonDocument::Compact))) + QLatin1Char('\n');
}

void TellMissingSizes(const PlanProbe& probe)
{
    if (!probe.problem.isEmpty()) {
        WriteErrorLine(QStringLiteral("velkora-batch: ") +
                       Messages::tr("sizes in pixels are not known: %1.").arg(Translated(probe.problem)));
    }
}

} // namespace

ExitCode PlanJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    PolicyValues policies{ZTBatchManager::InputAsk, ZTBatchManager::OutputAsk, ZTBatchManager::ProcessingAsk,
                          ZTBatchManager::NamingAsk, ZTBatchManager::WriteToFormatAsk};
    ApplyPolicies(arguments, policies);
    ZTBatchDocument job;
    const GivenJobs given = BuildJobs(job, arguments, inputs);
    const InputLosses& losses = given.losses;
    if (!HasPictures(job, arguments, inputs)) {
        return losses.problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
    }
    RequireUsableSettings(job);

    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    const bool isJson = arguments.Has(QStringLiteral("--json"));
    const Outlook outlook = LookAhead(job, given, policies, arguments);
    const RunForecast& forecast = outlook.forecast;
    const int count = forecast.Names().Count();
    int clear = 0;
    int unclear = 0;
    QString text;
    for (int i = 0; i < count; ++i) {
        ++(forecast.Of(i).decision ? unclear : clear);
        text += isJson ? JsonLine(outlook, i) : Line(outlook, i);
    }
    WriteOut(text);
    if (!isQuiet) {
        TellMissingSizes(outlook.probe);
        const QString summary =
            count == 1 ? Messages::tr("%1 file: %2 without trouble, %3 in brackets. Nothing was written.")
                       : Messages::tr("%1 files: %2 without trouble, %3 in brackets. Nothing was written.");
        WriteErrorLine(summary.arg(QString::number(count), QString::number(clear), QString::number(unclear)));
    }
    TellLeftOut(losses.leftOut, arguments);
    return losses.problems == 0 && unclear == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

} // namespace BatchCli
