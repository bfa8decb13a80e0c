#include "RunPlan.h"

#include "job/formats/NearestFormat.h"

#include <QSet>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchSupervisor {

RunPlan::RunPlan(const OutputPlan& plan)
    : plan(plan)
    , marks(std::size_t(plan.Count()))
{
}

void RunPlan::TakeProbe(int file, const Report& report)
{
    plan.TakeProbe(file, report.captured, report.inputFormat);
    if (!plan.Format(file) && !report.nearestFormat.isEmpty()) {
        nearestFormats.insert(file, report.nearestFormat);
    }
}

bool RunPlan::MakeNames(const Policies& policies, const OutputPlan::Cancelled& isCancelled)
{
    if (!plan.MakeNames(isCancelled)) {
        return false;
    }
    Settle(0, policies);
    return true;
}

void RunPlan::Settle(int first, const Policies& policies)
{
    const Decision format = policies.Of(Case::WriteToFormat);
    const Decision naming = policies.Of(Case::Naming);
    if (format != Decision::Nearest && naming != Decision::Rename && naming != Decision::Overwrite) {
        return;
    }
    for (int i = first; i < plan.Count(); ++i) {
        SettleFile(i, policies);
    }
}

void RunPlan::SettleFile(int file, const Policies& policies)
{
    if (failedProbes.contains(file) || plan.IsKept(file) || HasItsLastName(file)) {
        return;
    }
    if (!plan.Format(file)) {
        if (policies.Of(Case::WriteToFormat) != Decision::Nearest || !ChangeFormat(file, NearestFormat(file))) {
            return;
        }
    }
    if (plan.ClashOf(file) == OutputPlan::Clash::None || IsOverwriting(file) || HasItsLastName(file)) {
        return;
    }
    const Decision naming = policies.Of(Case::Naming);
    // Who lets results take the place of what is there does not mean pictures that still have to be read.
    if (naming == Decision::Rename || (naming == Decision::Overwrite && IsAnothersSource(file))) {
        Rename(file);
    }
}

bool RunPlan::HasItsLastName(int file) const
{
    const auto last = left.constFind(file);
    return last != left.constEnd() && *last == plan.Output(file);
}

Trouble RunPlan::TroubleOf(int file) const
{
    const auto failed = failedProbes.constFind(file);
    if (failed != failedProbes.constEnd()) {
        return *failed;
    }
    if (!plan.Format(file)) {
        const QString format = plan.InputFormat(file);
        return {Case::WriteToFormat, ZTBatchMessage::UnsupportedOutputFormat,
                format.isEmpty() ? QStringLiteral("its own format cannot be written")
                                 : QStringLiteral("its own format, %1, cannot be written").arg(format),
                NearestFormat(file)};
    }
    if (IsOverwriting(file)) {
        return {};
    }
    const QString output = plan.Output(file);
    switch (plan.ClashOf(file)) {
    case OutputPlan::Clash::None:
        break;
    case OutputPlan::Clash::Disk:
        return {Case::Naming,
                ZTBatchMessage::FileNameAlreadyExists,
                QStringLiteral("there is a file \"%1\"").arg(output),
                {}};
    case OutputPlan::Clash::Source:
        return {Case::Naming,
                ZTBatchMessage::FileNameAlreadyExists,
                QStringLiteral("\"%1\" is a source of this job").arg(output),
                {}};
    case OutputPlan::Clash::Result:
        return {Case::Naming,
                ZTBatchMessage::FileNameAlreadyExists,
                QStringLiteral("\"%1\" is the result of \"%2\"").arg(output, plan.Input(plan.ClashesWith(file))),
                {}};
    }
    return {};
}

void RunPlan::Rename(int file)
{
    plan.Rename(file);
    marks[std::size_t(file)].isRenamed = true;
}

bool RunPlan::ChangeFormat(int file, const QString& format)
{
    const FormatSchema* schema = FindFormat(format);
    if (!schema || HasOtherFormat(file)) {
        return false;
    }
    plan.ChangeFormat(file, *schema);
    marks[std::size_t(file)].hasOtherFormat = true;
    return true;
}

QStringList RunPlan::Folders() const
{
    QSet<QString> folders;
    for (int i = 0; i < plan.Count(); ++i) {
        folders.insert(plan.Folder(i));
    }
    return folders.values();
}

/// What a picture of a format that is not written is written in, as far as that can be told without looking at it.
QString RunPlan::NearestFormat(int file) const
{
    return nearestFormats.value(file, BatchJob::NearestFormat(plan.InputFormat(file)).name);
}

} // namespace BatchSupervisor
