// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetBox.h"

#include "OutputFolder.h"

#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "job/settings/OutputNaming.h"

#include <QFile>
#include <QFileInfo>
#include <QStyle>

#include <algorithm>

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
    connect(&job, &EditedJob::Replaced, this, [this] { Activate(QString(), std::nullopt); });
}

bool PresetBox::IsChanged() const
{
    return settingsOfActive && WithoutPlace(job.CurrentSettings()) != WithoutPlace(*settingsOfActive);
}

bool PresetBox::IsOwn(const QString& name) const
{
    return std::any_of(known.begin(), known.end(),
                       [&name](const Preset& preset) { return !preset.comesAlong && AreSame(preset.name, name); });
}

bool PresetBox::AreSame(const QString& name, const QString& other)
{
    return BatchJob::NameKey(name) == BatchJob::NameKey(other);
}

void PresetBox::ReadAgain()
{
    known = presets.All();
    clear();
    addItem(Messages::tr("No preset"), QString());
    for (const Preset& preset : qAsConst(known)) {
        addItem(preset.name, preset.name);
        const QString tip =
            preset.problem.isEmpty()
                ? Translated(preset.title)
                : Messages::tr("This preset cannot be used as it is: %1").arg(Translated(preset.problem));
        setItemData(count() - 1, tip, Qt::ToolTipRole);
        setItemData(count() - 1, tip, Qt::AccessibleDescriptionRole);
        if (!preset.problem.isEmpty()) {
            setItemIcon(count() - 1, style()->standardIcon(QStyle::SP_MessageBoxWarning));
        }
    }
    ShowActive();
}

std::optional<Settings> PresetBox::Read(const QString& name)
{
    ZTBatchDocument preset;
    SetJobDefaults(preset);
    try {
        for (const QString& warning : presets.Load(preset, name)) {
            Q_EMIT Problem(Translated(warning));
        }
    } catch (const RequestError& error) {
        Q_EMIT Problem(Translated(error.text));
        return std::nullopt;
    }
    Settings settings = Settings::Of(preset, job.CurrentSettings().policies);
    const QString usual = UsualOutputFolder();
    settings.outputFolder = settings.outputFolder.isEmpty()
                                ? job.CurrentSettings().outputFolder
                                : CompleteOutputFolder(settings.outputFolder, QFileInfo(usual).path());
    return settings;
}

void PresetBox::Choose(const QString& name)
{
    const std::optional<Settings> settings = Read(name);
    if (!settings) {
        ShowActive();
        return;
    }
    Activate(name, settings);
    job.Change(*settings, Messages::tr("Preset %1").arg(name));
    ShowActive();
    try {
        ZTBatchDocument wanted;
        settings->ApplyTo(wanted);
        RequireUsableSettingsButFolder(wanted);
    } catch (const RequestError& error) {
        Q_EMIT Problem(Messages::tr("The preset %1 cannot be used as it is: %2").arg(name, Translated(error.text)));
    }
}

void PresetBox::Fill(ZTBatchDocument& preset, const QString& name) const
{
    Settings settings = job.CurrentSettings();
    settings.outputFolder.clear();
    settings.ApplyTo(preset);
    preset.SetDocumentName(name);
}

void PresetBox::Save(const QString& name, bool replaceExisting)
{
    ZTBatchDocument preset;
    Fill(preset, name);
    const QString file = presets.Save(preset, name, replaceExisting);
    ReadAgain();
    Activate(QFileInfo(file).completeBaseName(), job.CurrentSettings());
}

void PresetBox::Rename(const QString& name, bool replaceExisting)
{
    const QString file = presets.Rename(active, name, replaceExisting);
    ReadAgain();
    Activate(QFileInfo(file).completeBaseName(), settingsOfActive);
}

QByteArray PresetBox::Remove()
{
    const auto isActive = [this](const Preset& preset) { return preset.name == active; };
    const auto found = std::find_if(known.begin(), known.end(), isActive);
    QFile file(found == known.end() ? QString() : found->file);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.close();
    presets.Remove(active);
    ReadAgain();
    Activate(QString(), std::nullopt);
    return content;
}

void PresetBox::Restore(const QString& name, const QByteArray& content)
{
    try {
        presets.Restore(name, content);
    } catch (const RequestError& error) {
        Q_EMIT Problem(Translated(error.text));
        return;
    }
    ReadAgain();
    SetActive(name);
}

void PresetBox::SetActive(const QString& name)
{
    Activate(name, name.isEmpty() ? std::nullopt : Read(name));
}

void PresetBox::Activate(const QString& name, const std::optional<Settings>& settings)
{
    active = settings ? name : QString();
    settingsOfActive = settings;
    ShowActive();
    Q_EMIT ActiveChanged();
}

void PresetBox::ShowActive()
{
    for (int i = 1; i < count(); ++i) {
        const QString name = itemData(i).toString();
        setItemText(i, name == active && IsChanged() ? Messages::tr("%1 (changed)").arg(name) : name);
    }
    setCurrentIndex(std::max(0, findData(active)));
    setToolTip(currentData(Qt::ToolTipRole).toString());
}

} // namespace BatchDesktop
