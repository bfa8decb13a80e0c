// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewPlan.h"

#include "server/protocol/TaskFailure.h"

#include "ZTBatchDocument.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchDesktop {

namespace {

/// Nothing is gained by packing what is read again at once.
const QByteArray displayOptions = R"({"compressionLevel": 0, "bitDepth": 8, "keep": []})";

WorkerJob JobOf(const Settings& settings, const QVector<JobFile>& files)
{
    ZTBatchDocument document;
    settings.ApplyTo(document);
    return WorkerJob::Of(SettingsTextOf(document), files);
}

Settings ForDisplay(Settings settings, const PreviewPlace& place)
{
    settings.outputFolder = place.folder;
    settings.format = DisplayFormat();
    settings.formatOptions = displayOptions;
    settings.profile = place.displayProfile;
    settings.effects.clear();
    settings.framing = {};
    return settings;
}

/// Of results in a folder that is always empty: their names are nobody's concern.
RunPlan NamesOf(const QVector<JobFile>& files, JobSettings settings)
{
    settings.outputFolder += QStringLiteral("/names");
    settings.folderStructure = ZTBatchOutputSettings::StructureFlat;
    settings.naming = {};
    return RunPlan(OutputPlan(files, settings));
}

QByteArray KeyOf(const QFileInfo& file, const QString& document)
{
    const QString text = QStringLiteral("%1\n%2\n%3\n%4\n%5")
                             .arg(file.filePath(), IdentityOf(file.filePath()).value_or(FileIdentity()).Text())
                             .arg(ChangeTimeOf(file.filePath()).value_or(0))
                             .arg(file.size())
                             .arg(document);
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
}

} // namespace

PreviewPlan PreviewPlan::Of(const QString& file, const Settings& settings, const PreviewPlace& place)
{
    const QVector<JobFile> files{{file, QString()}};
    Settings ofResult = settings;
    ofResult.outputFolder = place.folder;
    PreviewPlan plan;
    plan.result = JobOf(ofResult, files);
    plan.refusal = plan.result.refusal;
    if (plan.refusal.code != ZTBatchMessage::NoError) {
        return plan;
    }
    plan.before = JobOf(ForDisplay(settings, place), files);
    plan.policies = Policies(settings.policies);
    plan.names = NamesOf(files, plan.result.settings);
    plan.names.ReadInputs();
    plan.names.MakeNames(plan.policies);
    const QFileInfo info(file);
    plan.inputBytes = info.exists() ? info.size() : -1;
    plan.beforeKey = KeyOf(info, plan.before.document);
    return plan;
}

bool PreviewPlan::NeedsProbe() const
{
    return !names.Names().FilesToProbe().isEmpty();
}

void PreviewPlan::SetProbe(const Report& report)
{
    if (report.failure == PolicyKind::None) {
        names.SetProbe(0, ProbeResultOf(report));
    } else {
        names.SetProbeFailure(0, TroubleOf(report));
    }
    names.MakeNames(policies);
}

WorkerJob DisplayJob(const PreviewPlace& place)
{
    // What is in the folder of the job is readable with it.
    return JobOf(ForDisplay(Settings::Of(ZTBatchDocument()), place),
                 {{place.folder + QStringLiteral("/result"), QStringLiteral("previews")}});
}

QString DisplayFormat()
{
    return QStringLiteral("PNG");
}

} // namespace BatchDesktop
