#include "CommandFunctions.h"
#include "JobBuilder.h"

#include "hosts/cli/options/PolicyOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/FileProber.h"
#include "hosts/common/JobRequirements.h"
#include "job/plan/RunForecast.h"
#include "job/plan/WarningLine.h"
#include "job/values/VisibleText.h"
#include "server/protocol/TaskFailure.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

void Probe(RunPlan& plan, const ZTBatchDocument& job, StatusLine& line, bool isVerbose)
{
    QVector<FileProber::File> files;
    for (const int index : plan.Names().FilesToProbe()) {
        files.append({index, plan.Names().Input(index)});
    }
    if (files.isEmpty()) {
        return;
    }
    int done = 0;
    FileProber::Probe(files, SettingsTextOf(job), [&](const BatchProtocol::Report& report) {
        ++done;
        line.Show([&] { return QStringLiteral("Looking at pictures: %1 of %2").arg(done).arg(files.size()); });
        if (report.failure == PolicyKind::None) {
            plan.SetProbe(report.number, BatchProtocol::ProbeResultOf(report));
        } else {
            plan.SetProbeFailure(report.number, BatchProtocol::TroubleOf(report));
            if (isVerbose && !report.detail.isEmpty()) {
                line.Clear();
                WriteErrorLine(DetailLine{plan.Names().Input(report.number), report.detail}.Text());
            }
        }
    });
}

RunForecast Forecast(const ZTBatchDocument& job, const PolicyValues& policies, const ParsedArguments& arguments)
{
    RunPlan plan(OutputPlan(FilesOfJob(*job.GetInputModel()), CheckSettings(job).settings));
    if (arguments.Has(QStringLiteral("--in-place"))) {
        plan.ReplaceOriginals();
    }
    StatusLine line(!arguments.Has(QStringLiteral("--quiet")));
    line.ShowNow(QStringLiteral("Planning %1 files").arg(plan.Count()));
    plan.ReadInputs();
    Probe(plan, job, line, arguments.Has(QStringLiteral("--verbose")));
    return {plan, Policies(policies)};
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

QString Line(const RunForecast& forecast, int index)
{
    const RunForecast::Prospect& prospect = forecast.Of(index);
    const QString output = forecast.Names().Output(index);
    QString line = forecast.Names().Input(index);
    if (!output.isEmpty()) {
        line += QStringLiteral(" -> ") + output;
    }
    if (prospect.decision) {
        line += QStringLiteral("  [%1: %2]").arg(ProspectWord(prospect), prospect.trouble.reason);
    } else if (prospect.isInPlace) {
        line += QStringLiteral("  [replaces the original]");
    }
    return VisibleText(line) + QLatin1Char('\n');
}

QString JsonLine(const RunForecast& forecast, int index)
{
    const RunForecast::Prospect& prospect = forecast.Of(index);
    QJsonObject object{{QStringLiteral("input"), forecast.Names().Input(index)},
                       {QStringLiteral("output"), forecast.Names().Output(index)},
                       {QStringLiteral("result"), ProspectWord(prospect)}};
    if (prospect.decision) {
        object.insert(QStringLiteral("reason"), prospect.trouble.reason);
    }
    return QString::fromUtf8(VisibleJson(QJsonDocument(object).toJson(QJsonDocument::Compact))) + QLatin1Char('\n');
}

} // namespace

ExitCode PlanJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    PolicyValues policies{ZTBatchManager::InputAsk, ZTBatchManager::OutputAsk, ZTBatchManager::ProcessingAsk,
                          ZTBatchManager::NamingAsk, ZTBatchManager::WriteToFormatAsk};
    ApplyPolicies(arguments, policies);
    ZTBatchDocument job;
    const InputLosses losses = BuildJob(job, arguments, savedJob, inputs);
    if (!HasPictures(job, arguments, inputs)) {
        return losses.problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
    }
    RequireUsableSettings(job);

    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    const bool isJson = arguments.Has(QStringLiteral("--json"));
    const RunForecast forecast = Forecast(job, policies, arguments);
    const int count = forecast.Names().Count();
    int clear = 0;
    int unclear = 0;
    QString text;
    for (int i = 0; i < count; ++i) {
        ++(forecast.Of(i).decision ? unclear : clear);
        text += isJson ? JsonLine(forecast, i) : Line(forecast, i);
    }
    WriteOut(text);
    if (!isQuiet) {
        WriteErrorLine(QStringLiteral("%1 %2: %3 without trouble, %4 in brackets. Nothing was written.")
                           .arg(count)
                           .arg(count == 1 ? QStringLiteral("file") : QStringLiteral("files"))
                           .arg(clear)
                           .arg(unclear));
    }
    TellLeftOut(losses.leftOut, arguments);
    return losses.problems == 0 && unclear == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

} // namespace BatchCli
