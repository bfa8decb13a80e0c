// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NamePlan.h"

#include "job/plan/RunPlan.h"
#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"

#include "ZTBatchInputModel.h"

#include <QDir>
#include <QSet>

#include <chrono>
#include <utility>

using namespace BatchJob;
using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

constexpr auto quietTime = 200ms;

/// The settings of `job`. As long as there is no output folder, names are planned for one that does not exist: they can
/// still clash with each other.
CheckedSettings SettingsToPlan(const EditedJob& job)
{
    ZTBatchDocument copy;
    Settings settings = job.CurrentSettings();
    if (settings.outputFolder.isEmpty()) {
        settings.outputFolder = QDir::rootPath() + QStringLiteral("velkora-batch has no output folder yet");
    }
    settings.ApplyTo(copy);
    return CheckSettings(copy);
}

} // namespace

NamePlan::NamePlan(EditedJob& job, QObject* parent)
    : QObject(parent)
    , job(job)
{
    delay.setSingleShot(true);
    delay.setInterval(quietTime);
    connect(&delay, &QTimer::timeout, this, &NamePlan::Begin);
    connect(&work, &BackgroundWork::Done, this, [this] {
        plan = std::exchange(next, nullptr);
        isCurrent = true;
        Q_EMIT Planned();
    });
    const ZTBatchInputModel* const model = job.Document().GetInputModel();
    connect(model, &QAbstractItemModel::rowsInserted, this, &NamePlan::Outdate);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &NamePlan::Outdate);
    connect(model, &QAbstractItemModel::modelReset, this, &NamePlan::Outdate);
    connect(&job, &EditedJob::SettingsChanged, this, &NamePlan::Outdate);
    connect(&job, &EditedJob::Replaced, this, &NamePlan::Outdate);
    Outdate();
}

NamePlan::~NamePlan() = default;

NamePlan::Entry NamePlan::Of(const QString& input) const
{
    return plan ? plan->entries.value(input) : Entry();
}

void NamePlan::Outdate()
{
    isCurrent = false;
    work.Cancel();
    delay.start();
}

void NamePlan::Begin()
{
    const CheckedSettings checked = SettingsToPlan(job);
    next = std::make_shared<Plan>();
    if (!checked.IsAccepted()) {
        plan = std::exchange(next, nullptr); // Names come back when the settings can be used.
        isCurrent = true;
        Q_EMIT Planned();
        return;
    }
    work.Start([files = FilesOfJob(*job.Document().GetInputModel()), settings = checked.settings,
                policies = job.CurrentSettings().policies, next = next](const BackgroundWork::Cancelled& isCancelled) {
        *next = Make(files, settings, policies, isCancelled);
    });
}

/// On the thread.
NamePlan::Plan NamePlan::Make(const QVector<JobFile>& files, const JobSettings& settings, const PolicyValues& policies,
                              const BackgroundWork::Cancelled& isCancelled)
{
    RunPlan names(OutputPlan(files, settings));
    if (!names.ReadInputs(isCancelled)) {
        return {};
    }
    // Their names depend on what only a worker finds in the file; the run has it found.
    const QVector<int> unclear = names.Names().FilesToProbe();
    const QSet<int> isUnclear(unclear.begin(), unclear.end());
    if (!names.MakeNames(Policies(policies), isCancelled)) {
        return {};
    }
    const int folderLength = settings.outputFolder.size() + (settings.outputFolder.endsWith(QLatin1Char('/')) ? 0 : 1);
    Plan plan;
    Counts counts;
    const bool overwrites = Policies(policies).Of(PolicyKind::Naming) == Decision::Overwrite;
    plan.entries.reserve(files.size());
    for (int i = 0; i < names.Count() && !isCancelled(); ++i) {
        Entry entry;
        Trouble trouble;
        bool isReplacing = false;
        if (!isUnclear.contains(i)) {
            trouble = names.TroubleOf(i);
            entry.name = names.Names().Output(i).mid(folderLength);
            entry.trouble = trouble.reason;
            entry.isNameTaken = trouble.kind == PolicyKind::Naming;
            isReplacing = overwrites && names.Names().ClashOf(i) == OutputPlan::Clash::Disk;
        }
        ++(isReplacing                        ? counts.replaced
           : entry.isNameTaken                ? counts.takenNames
           : trouble.kind != PolicyKind::None ? counts.unwritable
                                              : counts.newNames);
        if (isReplacing || trouble.kind == PolicyKind::None) {
            plan.writable.append(names.Names().Input(i));
        }
        plan.entries.insert(names.Names().Input(i), entry);
    }
    plan.counts = counts;
    return plan;
}

} // namespace BatchDesktop
