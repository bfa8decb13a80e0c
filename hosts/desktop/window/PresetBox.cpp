// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetBox.h"

#include "hosts/common/JobDefaults.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"

using namespace BatchHost;

namespace BatchDesktop {

namespace {

/// The settings without what belongs to one use of them: where results go, and what happens on errors.
Settings WithoutPlace(Settings settings)
{
    settings.outputFolder.clear();
    settings.policies = Settings::AskingPolicies();
    return settings;
}

} // namespace

PresetBox::PresetBox(EditedJob& job, const QString& settingsFolder, QWidget* parent)
    : QComboBox(parent)
    , job(job)
    , presets(settingsFolder)
{
    setObjectName(QStringLiteral("preset"));
    setAccessibleName(Messages::tr("Preset"));
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    ReadAgain();
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const QString name = itemData(index).toString();
        if (!name.isEmpty()) {
            Choose(name);
        }
    });
    connect(&job, &EditedJob::SettingsChanged, this, &PresetBox::ShowActive);
    connect(&job, &EditedJob::Replaced, this, [this] {
        active.clear();
        settingsOfActive.reset();
        ShowActive();
    });
}

bool PresetBox::IsChanged() const
{
    return settingsOfActive && WithoutPlace(job.CurrentSettings()) != WithoutPlace(*settingsOfActive);
}

void PresetBox::ReadAgain()
{
    clear();
    addItem(Messages::tr("No preset"), QString());
    for (const Preset& preset : presets.All()) {
        addItem(preset.name, preset.name);
        const QString tip = preset.problem.isEmpty() ? preset.title : preset.problem;
        setItemData(count() - 1, Translated(tip), Qt::ToolTipRole);
    }
    ShowActive();
}

void PresetBox::Choose(const QString& name)
{
    ZTBatchDocument preset;
    SetJobDefaults(preset);
    try {
        for (const QString& warning : presets.Load(preset, name)) {
            Q_EMIT Problem(Translated(warning));
        }
    } catch (const RequestError& error) {
        ShowActive();
        Q_EMIT Problem(Translated(error.text));
        return;
    }
    Settings settings = Settings::Of(preset, job.CurrentSettings().policies);
    if (settings.outputFolder.isEmpty()) {
        settings.outputFolder = job.CurrentSettings().outputFolder;
    }
    active = name;
    settingsOfActive = settings;
    job.Change(settings, Messages::tr("Preset %1").arg(name));
    ShowActive();
}

void PresetBox::Save(const QString& name, bool replaceExisting)
{
    ZTBatchDocument preset;
    Settings settings = job.CurrentSettings();
    settings.outputFolder.clear();
    settings.ApplyTo(preset);
    preset.SetDocumentName(name);
    presets.Save(preset, name, replaceExisting);
    active = name;
    settingsOfActive = job.CurrentSettings();
    ReadAgain();
}

void PresetBox::ShowActive()
{
    for (int i = 1; i < count(); ++i) {
        const QString name = itemData(i).toString();
        setItemText(i, name == active && IsChanged() ? Messages::tr("%1 (changed)").arg(name) : name);
    }
    setCurrentIndex(std::max(0, findData(active)));
}

} // namespace BatchDesktop
