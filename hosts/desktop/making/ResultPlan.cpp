// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultPlan.h"

#include "server/protocol/TaskFailure.h"

#include "ZTBatchDocument.h"

#include <QFileInfo>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchDesktop {

namespace {

/// Of results in a folder that is always empty: their names are nobody's concern.
RunPlan NamesOf(const QVector<JobFile>& files, JobSettings settings)
{
    settings.outputFolder += QStringLiteral("/names");
    settings.folderStructure = ZTBatchOutputSettings::StructureFlat;
    settings.naming = {};
    return RunPlan(OutputPlan(files, settings));
}

} // namespace

WorkerJob WorkerJobOf(const Settings& settings, const QVector<JobFile>& files)
{
    ZTBatchDocument document;
    settings.ApplyTo(document);
    return WorkerJob::Of(SettingsTextOf(document), files);
}

ResultPlan ResultPlan::Of(const QString& file, const Settings& settings, const QString& folder)
{
    const QVector<JobFile> files{{file, QString()}};
    Settings ofResult = settings;
    ofResult.outputFolder = folder;
    ResultPlan plan;
    plan.job = WorkerJobOf(ofResult, files);
    plan.refusal = plan.job.refusal;
    if (plan.refusal.code != ZTBatchMessage::NoError) {
        return plan;
    }
    plan.policies = Policies(settings.policies);
    plan.names = NamesOf(files, plan.job.settings);
    plan.names.ReadInputs();
    plan.names.MakeNames(plan.policies);
    const QFileInfo info(file);
    plan.inputBytes = info.exists() ? info.size() : -1;
    return plan;
}

bool ResultPlan::NeedsProbe() const
{
    return !names.Names().FilesToProbe().isEmpty();
}

void ResultPlan::SetProbe(const Report& report)
{
    if (report.failure == PolicyKind::None) {
        names.SetProbe(0, ProbeResultOf(report));
    } else {
        names.SetProbeFailure(0, TroubleOf(report));
    }
    names.MakeNames(policies);
}

} // namespace BatchDesktop
