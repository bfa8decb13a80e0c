// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Plans the names of a job whose settings, folders and files are fields, with what probes say and with decisions about
// files. Every result has a valid name in the output folder, no two results that are written share a name, and a run
// that is resumed gives every result the name that it would have had.

#include "Fields.h"
#include "Require.h"

#include "job/formats/FormatCatalog.h"
#include "job/plan/RunPlan.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QDir>
#include <QSet>

#include <cstdint>

using namespace BatchJob;

namespace {

using Settings = ZTBatchOutputSettings;
using Node = TreeNode<BatchNodeData>;

constexpr int mostFiles = 60;
constexpr int mostFolders = 30;
constexpr std::array parts{Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix};

// No folder of this name exists, so no name is taken on the disk.
const QString outputFolder = QStringLiteral("/nowhere/results");

void ReadSettings(Fields& fields, Settings& settings)
{
    settings.SetPath(outputFolder);
    settings.SetFolderStructure(Settings::FolderStructure(fields.Number()));
    const QString format = fields.Text();
    settings.SetFormat(format.isEmpty() ? Settings::GetOriginalFormat() : format, {});
    for (const Settings::NamingPart part : parts) {
        settings.SetNamingTemplate(part, Settings::NamingTemplate(fields.Number()));
        settings.SetCustomTemplate(part, fields.Text());
        settings.SetStartNumber(part, fields.Number());
        settings.SetDigitsCount(part, fields.Number());
    }
    settings.SetPrefixSeparator(fields.Text());
    settings.SetSuffixSeparator(fields.Text());
}

/// "+NAME" is a folder, "-" its end, "" the end of the files, and anything else a file.
void ReadInputs(Fields& fields, ZTBatchInputModel& model)
{
    const auto node = [](const QString& name, BatchNodeType type) {
        auto made = std::make_unique<Node>();
        made->data.fileName = name;
        made->data.inputText = name;
        made->data.type = type;
        made->data.fileNodesCount = type == File ? 1 : 0;
        return made.release();
    };
    QVector<QModelIndex> open{QModelIndex()};
    int files = 0;
    int folders = 0;
    for (QString text = fields.Text(); !text.isEmpty(); text = fields.Text()) {
        if (text == QStringLiteral("-")) {
            if (open.size() > 1) {
                open.removeLast();
            }
        } else if (text.startsWith(QLatin1Char('+'))) {
            if (folders++ < mostFolders) {
                open.append(model.InsertBranch(node(text.mid(1), Folder), open.last()));
            }
        } else if (files++ < mostFiles) {
            model.InsertBranch(node(text, File), open.last());
        }
    }
}

Policies ReadPolicies(Fields& fields)
{
    PolicyValues values{};
    for (int i = 0; i < policyCount; ++i) {
        values[std::size_t(i)] = fields.Choice(PolicyWords(PolicyKind(i)).size());
    }
    return Policies(values);
}

using Probes = QHash<int, ProbeResult>;

/// What the worker says of a file is not trusted: a time, two names of formats, and texts for names if there are
/// tokens.
Probes ReadProbes(Fields& fields, const OutputPlan& plan, const OutputNaming& naming)
{
    Probes probes;
    for (const int file : plan.FilesToProbe()) {
        ProbeResult result;
        result.captured = QDateTime::fromMSecsSinceEpoch(fields.Bytes().toLongLong(), Qt::UTC);
        result.inputFormat = fields.Text();
        result.nearestFormat = fields.Text();
        if (naming.NeedsPictureTexts()) {
            const QString text = fields.Text();
            result.size = QSize(fields.Number(), fields.Number());
            result.texts = CleanTexts({text, text, text, text, text, text, text, text});
        }
        probes.insert(file, result);
    }
    return probes;
}

void RequireValidComponent(const QString& name)
{
    Require(!name.isEmpty() && name != QStringLiteral(".") && name != QStringLiteral(".."));
    Require(CleanName(name) == name);
    Require(name.toUtf8().size() <= longestName);
    Require(QString::fromUtf8(name.toUtf8()) == name);
}

void RequireInside(const OutputPlan& plan, int file)
{
    const QString folder = plan.Folder(file);
    Require(folder == outputFolder || folder.startsWith(outputFolder + QLatin1Char('/')));
    Require(QDir::cleanPath(folder) == folder);
    for (const QString& part : folder.mid(outputFolder.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        RequireValidComponent(part);
    }
    const QString name = plan.OutputName(file);
    Require(name.isEmpty() == (plan.Format(file) == nullptr));
    if (!name.isEmpty()) {
        RequireValidComponent(name);
        Require(name.endsWith(QLatin1Char('.') + plan.Format(file)->extensions.first()));
        Require(plan.Output(file) == folder + QLatin1Char('/') + name);
    }
}

/// The files whose results are written as planned, or over the result of another one that a policy gives up.
void RequireSafe(const RunPlan& plan)
{
    QSet<QString> taken;
    for (int file = 0; file < plan.Count(); ++file) {
        RequireInside(plan.Names(), file);
        const bool isWritten = plan.TroubleOf(file).kind == PolicyKind::None && !plan.IsOverwriting(file);
        if (isWritten) {
            const QString key = NameKey(plan.Names().Output(file));
            Require(!taken.contains(key));
            taken.insert(key);
        }
    }
}

void EnterProbes(RunPlan& plan, const Probes& probes)
{
    for (const int file : plan.Names().FilesToProbe()) {
        plan.SetProbe(file, probes.value(file));
    }
}

/// Every second file was written before the run was interrupted; it keeps its name, and so do the others.
void RequireSameWhenResumed(const RunPlan& first, RunPlan resumed, const Probes& probes, const Policies& policies)
{
    for (int file = 0; file < first.Count(); ++file) {
        const bool isWritten = file % 2 == 0 && first.TroubleOf(file).kind == PolicyKind::None;
        if (isWritten) {
            resumed.KeepResult(file, first.Names().Output(file));
        }
    }
    Require(resumed.ReadInputs());
    EnterProbes(resumed, probes);
    Require(resumed.MakeNames(policies));
    for (int file = 0; file < first.Count(); ++file) {
        Require(resumed.Names().Output(file) == first.Names().Output(file));
    }
}

/// What users and workers may bring about while the run is on.
void ApplyDecisions(Fields& fields, RunPlan& plan, const Policies& policies)
{
    for (int i = 0; i < mostFiles && plan.Count() > 0 && !fields.IsAtEnd(); ++i) {
        const int file = fields.Choice(plan.Count());
        const Trouble trouble = plan.TroubleOf(file);
        if (trouble.kind == PolicyKind::Naming) {
            plan.ResolveName(file, fields.Choice(2) == 0 ? Decision::Rename : Decision::Overwrite);
        } else {
            const QString format = fields.Text();
            plan.ChangeFormat(file, format.isEmpty() ? trouble.nearestFormat : format);
        }
        plan.Settle(file, policies);
        RequireSafe(plan);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fields fields(data, size);
    ZTBatchDocument job;
    ReadSettings(fields, *job.GetOutputSettings());
    ReadInputs(fields, *job.GetInputModel());
    const Policies policies = ReadPolicies(fields);
    const CheckedSettings checked = CheckJob(job);
    if (!checked.IsAccepted()) {
        Require(!checked.refusal.message.isEmpty());
        return 0;
    }
    const RunPlan unnamed(OutputPlan(FilesOfJob(*job.GetInputModel()), checked.settings));
    RunPlan plan = unnamed;
    Require(plan.ReadInputs());
    const Probes probes = ReadProbes(fields, plan.Names(), checked.settings.naming);
    EnterProbes(plan, probes);
    Require(plan.MakeNames(policies));
    RequireSafe(plan);
    RequireSameWhenResumed(plan, unnamed, probes, policies);
    ApplyDecisions(fields, plan, policies);
    return 0;
}
