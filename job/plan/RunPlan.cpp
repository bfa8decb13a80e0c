// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunPlan.h"

#include "job/formats/NearestFormat.h"
#include "job/values/Phrase.h"

#include <QSet>

namespace BatchJob {

RunPlan::RunPlan(const OutputPlan& plan)
    : plan(plan)
    , marks(std::size_t(plan.Count()))
{
}

void RunPlan::UseName(int file, const FixedName& name)
{
    plan.UseName(file, name.output, name.format, name.number);
    if (plan.IsKept(file)) {
        marks[std::size_t(file)] = {name.isRenamed, name.isOverwriting, name.hasOtherFormat, false, true};
    }
}

void RunPlan::SetProbe(int file, const ProbeResult& result)
{
    for (const int one : plan.ResultsToProbe(file)) {
        plan.SetProbe(one, result.captured, result.inputFormat);
        plan.SetPicture(one, result.size, result.texts);
        if (!plan.Format(one) && !result.nearestFormat.isEmpty()) {
            nearestFormats.insert(one, result.nearestFormat);
        }
    }
}

void RunPlan::SetProbeFailure(int file, const Trouble& trouble)
{
    for (const int one : plan.ResultsToProbe(file)) {
        failedProbes.insert(one, trouble);
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
    const Decision format = policies.Of(PolicyKind::WriteToFormat);
    const Decision naming = policies.Of(PolicyKind::Naming);
    const bool canDecide =
        format == Decision::Nearest || naming == Decision::Rename || naming == Decision::Overwrite || replacesOriginals;
    if (!canDecide) {
        return;
    }
    for (int i = first; i < plan.Count(); ++i) {
        SettleFormat(i, policies);
        SettleName(i, policies);
    }
}

void RunPlan::SettleFormat(int file, const Policies& policies)
{
    if (!plan.Format(file) && policies.Of(PolicyKind::WriteToFormat) == Decision::Nearest && !IsSettled(file)) {
        ChangeFormat(file, NearestFormat(file));
    }
}

void RunPlan::SettleName(int file, const Policies& policies)
{
    const bool isTaken = plan.Format(file) && plan.ClashOf(file) != OutputPlan::Clash::None && !IsOverwriting(file);
    if (!isTaken || IsSettled(file)) {
        return;
    }
    if (replacesOriginals && plan.OwnerOfName(file) == file) {
        marks[std::size_t(file)].isOverwriting = true;
        marks[std::size_t(file)].isInPlace = true;
    } else if (SafeDecision(file, policies.Of(PolicyKind::Naming)) == Decision::Rename) {
        Rename(file);
    }
}

/// Whether the policies leave format and name of the file alone.
bool RunPlan::IsSettled(int file) const
{
    return failedProbes.contains(file) || plan.IsKept(file) || WasGivenUpUnderItsName(file);
}

bool RunPlan::WasGivenUpUnderItsName(int file) const
{
    const auto name = givenUp.constFind(file);
    return name != givenUp.constEnd() && *name == plan.Output(file);
}

Trouble RunPlan::TroubleOf(int file) const
{
    const auto failed = failedProbes.constFind(file);
    if (failed != failedProbes.constEnd()) {
        return *failed;
    }
    if (!plan.Format(file)) {
        const QString format = plan.InputFormat(file);
        return {PolicyKind::WriteToFormat, ZTBatchMessage::UnsupportedOutputFormat,
                format.isEmpty() ? Phrase::English("its own format cannot be written")
                                 : Phrase::English("its own format, %1, cannot be written").arg(format),
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
        return {PolicyKind::Naming,
                ZTBatchMessage::FileNameAlreadyExists,
                Phrase::English("\"%1\" exists already").arg(output),
                {}};
    case OutputPlan::Clash::Source:
        return {PolicyKind::Naming,
                ZTBatchMessage::FileNameAlreadyExists,
                Phrase::English("\"%1\" is a source of this job").arg(output),
                {}};
    case OutputPlan::Clash::Result:
        return {PolicyKind::Naming,
                ZTBatchMessage::FileNameAlreadyExists,
                Phrase::English("\"%1\" is the result of \"%2\"").arg(output, plan.Input(plan.ClashesWith(file))),
                {}};
    }
    return {};
}

Decision RunPlan::ResolveName(int file, Decision decision)
{
    const Decision safe = SafeDecision(file, decision);
    if (safe == Decision::Overwrite) {
        marks[std::size_t(file)].isOverwriting = true;
    } else {
        Rename(file);
    }
    return safe;
}

/// A user who lets files be overwritten means results, not originals.
Decision RunPlan::SafeDecision(int file, Decision decision)
{
    if (decision != Decision::Overwrite) {
        return decision;
    }
    const bool isSafe = replacesOriginals ? !plan.IsAnothersSource(file) : !plan.IsSource(file);
    return isSafe ? Decision::Overwrite : Decision::Rename;
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

QVector<RunPlan::SharedName> RunPlan::SharedNames() const
{
    QVector<SharedName> shared;
    for (int i = 0; i < plan.Count(); ++i) {
        if (!plan.Format(i) || IsOverwriting(i) || IsSettled(i)) {
            continue;
        }
        const int owner = plan.OwnerOfName(i);
        if (owner >= 0 && IsInPlace(owner)) {
            shared.append({owner, i});
        } else if (plan.ClashOf(i) == OutputPlan::Clash::Result) {
            shared.append({plan.ClashesWith(i), i});
        }
    }
    return shared;
}

QStringList RunPlan::Folders() const
{
    QSet<QString> folders;
    for (int i = 0; i < plan.Count(); ++i) {
        folders.insert(plan.Folder(i));
    }
    return folders.values();
}

/// The format for a picture whose own format cannot be written, as far as that is known before the picture is read.
QString RunPlan::NearestFormat(int file) const
{
    return nearestFormats.value(file, BatchJob::NearestFormat(plan.InputFormat(file)).name);
}

} // namespace BatchJob
