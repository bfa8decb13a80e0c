#include "CommandFunctions.h"
#include "JobBuilder.h"

#include "hosts/cli/options/PolicyOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/FileProber.h"
#include "job/formats/NearestFormat.h"
#include "job/plan/OutputPlan.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

using BatchJob::OutputPlan;

/// What will become of one file, as far as that can be known before it is read.
struct Prospect
{
    QString result; ///< "write", "rename", "overwrite", "skip", "stop", "ask"
    QString reason; ///< what stands in the way of the planned name; empty when nothing does
};

QString JobSettingsText(const ZTBatchDocument& job)
{
    ZTBatchDocument settings;
    settings.Deserialize(job.Serialize(nullptr));
    settings.GetInputModel()->removeRows(0, settings.GetInputModel()->rowCount());
    return settings.Serialize(nullptr);
}

QString ClashText(const OutputPlan& plan, int index)
{
    switch (plan.ClashOf(index)) {
    case OutputPlan::Clash::Disk:
        return QStringLiteral("exists already");
    case OutputPlan::Clash::Source:
        return QStringLiteral("is a source of this job");
    case OutputPlan::Clash::Result:
        return QStringLiteral("is the result of %1").arg(plan.Input(plan.ClashesWith(index)));
    case OutputPlan::Clash::None:
        break;
    }
    return {};
}

class JobPlan
{
public:
    JobPlan(const ZTBatchDocument& job, const PolicyValues& policies, bool isQuiet)
        : policies(policies)
        , plan(BatchJob::FilesOfJob(*job.GetInputModel()), BatchJob::CheckSettings(job).settings)
    {
        StatusLine line(!isQuiet);
        line.ShowNow(QStringLiteral("Planning %1 files").arg(plan.Count()));
        plan.ReadInputs();
        Probe(job, line);
        plan.MakeNames();
    }

    int Count() const { return plan.Count(); }
    QString Input(int index) const { return plan.Input(index); }
    QString Output(int index) const { return plan.Output(index); }

    /// Settles the file as the policies say. Called for all files in their order: a new name depends on those before.
    Prospect Settle(int index)
    {
        const auto failed = failures.constFind(index);
        if (failed != failures.constEnd()) {
            return {PolicyWord(PolicyKind::Input, Policy(PolicyKind::Input)), *failed};
        }
        if (!QFileInfo::exists(plan.Input(index))) {
            return {PolicyWord(PolicyKind::Input, Policy(PolicyKind::Input)), QStringLiteral("it does not exist")};
        }
        if (plan.Format(index) == nullptr) {
            const QString reason = QStringLiteral("its format, %1, cannot be written")
                                       .arg(plan.InputFormat(index).isEmpty() ? QStringLiteral("which is unknown")
                                                                              : plan.InputFormat(index));
            if (Policy(PolicyKind::WriteToFormat) != ZTBatchManager::WriteToFormatNearest) {
                return {PolicyWord(PolicyKind::WriteToFormat, Policy(PolicyKind::WriteToFormat)), reason};
            }
            plan.ChangeFormat(index, NearestFormat(index));
        }
        const QString folderReason = FolderTrouble(QFileInfo(plan.Output(index)).path());
        if (!folderReason.isEmpty()) {
            return {PolicyWord(PolicyKind::Output, Policy(PolicyKind::Output)), folderReason};
        }
        return SettleName(index);
    }

private:
    /// Why nothing can be written into the folder, which may have to be made; empty when it looks possible.
    QString FolderTrouble(const QString& folder)
    {
        const auto known = folderTroubles.constFind(folder);
        if (known != folderTroubles.constEnd()) {
            return *known;
        }
        QFileInfo there(folder);
        while (!there.exists() && !there.isRoot()) {
            there.setFile(there.path());
        }
        const QString trouble = !there.isDir()        ? QStringLiteral("%1 is no folder").arg(there.filePath())
                                : !there.isWritable() ? QStringLiteral("%1 cannot be written").arg(there.filePath())
                                                      : QString();
        return *folderTroubles.insert(folder, trouble);
    }

    int Policy(PolicyKind kind) const { return policies[std::size_t(kind)]; }

    void Probe(const ZTBatchDocument& job, StatusLine& line)
    {
        QVector<FileProber::File> files;
        for (const int index : plan.FilesToProbe()) {
            files.append({index, plan.Input(index)});
        }
        if (files.isEmpty()) {
            return;
        }
        int done = 0;
        FileProber::Probe(files, JobSettingsText(job), [&](const BatchProtocol::Report& report) {
            ++done;
            line.Show([&] { return QStringLiteral("Looking at pictures: %1 of %2").arg(done).arg(files.size()); });
            if (report.failure != BatchProtocol::Case::None) {
                failures.insert(report.number, report.reason);
                return;
            }
            plan.TakeProbe(report.number, report.captured, report.inputFormat);
            nearestFormats.insert(report.number, report.nearestFormat);
        });
    }

    Prospect SettleName(int index)
    {
        const QString clash = ClashText(plan, index);
        if (clash.isEmpty()) {
            return {QStringLiteral("write"), {}};
        }
        const QString reason = QStringLiteral("%1 %2").arg(plan.Output(index), clash);
        const int naming = Policy(PolicyKind::Naming);
        const bool overwrites = naming == ZTBatchManager::NamingOverwrite && !plan.IsAnothersSource(index);
        if (overwrites) {
            return {QStringLiteral("overwrite"), reason};
        }
        if (naming == ZTBatchManager::NamingRename || naming == ZTBatchManager::NamingOverwrite) {
            plan.Rename(index);
            return {QStringLiteral("rename"), reason};
        }
        return {PolicyWord(PolicyKind::Naming, naming), reason};
    }

    const BatchJob::FormatSchema& NearestFormat(int index) const
    {
        const BatchJob::FormatSchema* const format = BatchJob::FindFormat(nearestFormats.value(index));
        return format != nullptr ? *format : BatchJob::NearestFormat(plan.InputFormat(index));
    }

    const PolicyValues policies;
    OutputPlan plan;
    QHash<int, QString> nearestFormats;
    QHash<int, QString> failures;
    QHash<QString, QString> folderTroubles;
};

QString Line(const JobPlan& plan, int index, const Prospect& prospect)
{
    const QString output = plan.Output(index);
    QString line = plan.Input(index);
    if (!output.isEmpty()) {
        line += QStringLiteral(" -> ") + output;
    }
    if (!prospect.reason.isEmpty()) {
        line += QStringLiteral("  [%1: %2]").arg(prospect.result, prospect.reason);
    }
    return Visible(line) + QLatin1Char('\n');
}

QString JsonLine(const JobPlan& plan, int index, const Prospect& prospect)
{
    QJsonObject object{{QStringLiteral("input"), plan.Input(index)},
                       {QStringLiteral("output"), plan.Output(index)},
                       {QStringLiteral("result"), prospect.result}};
    if (!prospect.reason.isEmpty()) {
        object.insert(QStringLiteral("reason"), prospect.reason);
    }
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + QLatin1Char('\n');
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
    const int problems = BuildJob(job, arguments, savedJob, inputs);
    CheckJob(job);

    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    const bool isJson = arguments.Has(QStringLiteral("--json"));
    JobPlan plan(job, policies, isQuiet);
    int clear = 0;
    int unclear = 0;
    QString text;
    for (int i = 0; i < plan.Count(); ++i) {
        const Prospect prospect = plan.Settle(i);
        ++(prospect.reason.isEmpty() ? clear : unclear);
        text += isJson ? JsonLine(plan, i, prospect) : Line(plan, i, prospect);
    }
    WriteOut(text);
    if (!isQuiet) {
        WriteErrorLine(QStringLiteral("%1 %2: %3 without trouble, %4 in brackets. Nothing was written.")
                           .arg(plan.Count())
                           .arg(plan.Count() == 1 ? QStringLiteral("file") : QStringLiteral("files"))
                           .arg(clear)
                           .arg(unclear));
    }
    return problems == 0 && unclear == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

} // namespace BatchCli
