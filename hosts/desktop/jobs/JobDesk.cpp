// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobDesk.h"

#include "OutputFolder.h"

#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/ShellLine.h"
#include "hosts/desktop/job/EditedJob.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStandardPaths>

#include <utility>

using namespace BatchHost;

namespace BatchDesktop {

JobDesk::JobDesk(EditedJob& job, PresetBox& presets, QWidget& window, const QString& dataFolder)
    : job(job)
    , presets(presets)
    , window(window)
    , keeper(job, window)
    , recent(QDir(dataFolder).filePath(QStringLiteral("recent.ini")))
    , command(job, dataFolder)
    , autosave(job, dataFolder, [this] { return Describe(); })
    , drops([this](const QString& path) { keeper.Open(path); })
    , notice(new NoticeLine)
    , naming(new PresetNameLine(presets))
{
    connect(&keeper, &JobKeeper::Changed, &autosave, &Autosave::NoteChange);
    connect(&keeper, &JobKeeper::Notice, this, &JobDesk::Tell);
    connect(&keeper, &JobKeeper::Used, this, [this](const QString& path) { recent.Add(path); });
    connect(&keeper, &JobKeeper::Failed, this, [this](const QString& path) { recent.Remove(path); });
    connect(&presets, &PresetBox::Problem, this, &JobDesk::Tell);
    connect(&presets, &PresetBox::ActiveChanged, &autosave, &Autosave::NoteChange);
    connect(&presets, &PresetBox::ActiveChanged, this, &JobDesk::UpdatePresetActions);
    connect(&autosave, &Autosave::Failed, this, [this] {
        if (!std::exchange(isSaveFailureTold, true)) {
            Tell(Messages::tr("What you edit cannot be kept in %1; save the job before the window ends.")
                     .arg(QDir::toNativeSeparators(autosave.Folder())));
        }
    });
    connect(&autosave, &Autosave::Saved, this, [this] { isSaveFailureTold = false; });
    connect(&command, &CommandCopy::Failed, this, &JobDesk::Tell);
    connect(&command, &CommandCopy::Made, this, [this](const QStringList& arguments) {
        QGuiApplication::clipboard()->setText(ShellLine(arguments));
        Tell(Messages::tr("The command line that does the same is on the clipboard."));
    });
    job.Replace([](ZTBatchDocument& document) {
        ZTBatchOutputSettings& output = *document.GetOutputSettings();
        output.SetPath(CompleteOutputFolder(output.GetPath(), QDir::homePath()));
    });
}

QAction* JobDesk::AddAction(QMenu& menu, const char* name, const QString& text, const std::function<void()>& trigger,
                            const QKeySequence& key)
{
    QAction* const action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, trigger);
    return action;
}

void JobDesk::FillJobMenu(QMenu& menu)
{
    AddAction(
        menu, "newJob", Messages::tr("&New job"), [this] { keeper.New(); }, QKeySequence::New);
    AddAction(
        menu, "openJob", Messages::tr("Open &job\u2026"), [this] { keeper.Open(); },
        QKeySequence(Qt::CTRL + Qt::Key_J));
    recentMenu = menu.addMenu(Messages::tr("R&ecent jobs"));
    recentMenu->setObjectName(QStringLiteral("recentJobs"));
    connect(recentMenu, &QMenu::aboutToShow, this, &JobDesk::FillRecent);
    AddAction(
        menu, "saveJob", Messages::tr("&Save job"), [this] { keeper.Save(); }, QKeySequence::Save);
    AddAction(
        menu, "saveJobAs", Messages::tr("Save job &as\u2026"), [this] { keeper.SaveAs(); },
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S));
    AddAction(
        menu, "copyCommand", Messages::tr("&Copy as command"), [this] { command.Make(); },
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C));
}

void JobDesk::FillRecent()
{
    recentMenu->clear();
    const QStringList paths = recent.All();
    int number = 0;
    for (const QString& path : paths) {
        const QString shown = QDir::toNativeSeparators(path).replace(QLatin1Char('&'), QLatin1String("&&"));
        const bool isThere = QFileInfo(path).isFile();
        ++number;
        const QString text = isThere ? QStringLiteral("&%1 %2").arg(QString::number(number % 10), shown)
                                     : Messages::tr("%1 (missing)").arg(shown);
        QAction* const action = recentMenu->addAction(text);
        action->setEnabled(isThere);
        connect(action, &QAction::triggered, this, [this, path] { keeper.Open(path); });
    }
    recentMenu->addSeparator();
    QAction* const clear = recentMenu->addAction(Messages::tr("&Clear the list"));
    clear->setEnabled(!paths.isEmpty());
    connect(clear, &QAction::triggered, this, [this] { recent.Clear(); });
}

void JobDesk::FillPresetMenu(QMenu& menu)
{
    AddAction(
        menu, "savePreset", Messages::tr("&Save as preset\u2026"),
        [this] { naming->Ask(PresetNameLine::Purpose::Save, presets.Active()); },
        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_P));
    renamePreset = AddAction(menu, "renamePreset", Messages::tr("&Rename preset\u2026"),
                             [this] { naming->Ask(PresetNameLine::Purpose::Rename, presets.Active()); });
    removePreset = AddAction(menu, "removePreset", Messages::tr("&Delete preset"), [this] { RemovePreset(); });
    menu.addSeparator();
    AddAction(menu, "importPreset", Messages::tr("&Import preset\u2026"), [this] { ImportPreset(); });
    AddAction(menu, "exportPreset", Messages::tr("&Export preset\u2026"), [this] { ExportPreset(); });
    UpdatePresetActions();
}

void JobDesk::Restore(bool withInputs)
{
    const EditedFiles files(autosave.Folder());
    const std::optional<EditState> state = files.ReadState();
    if (!state) {
        return;
    }
    const bool isWhole = withInputs || !state->isClosed || (!state->jobFile.isEmpty() && state->isChanged);
    job.Replace([&](ZTBatchDocument& document) {
        document.GetInputModel()->removeRows(0, document.GetInputModel()->rowCount());
        const std::optional<InputSnapshot> inputs = isWhole ? files.ReadInputs() : std::nullopt;
        if (inputs) {
            inputs->AddTo(document);
        }
        state->settings.ApplyTo(document);
        document.SetDocumentName(isWhole ? state->name : QString());
    });
    Settings settings = job.CurrentSettings();
    settings.policies = state->settings.policies;
    job.Change(settings, QString());
    job.History().clear();
    presets.SetActive(state->preset);
    keeper.SetFile(isWhole ? state->jobFile : QString(), isWhole && state->isChanged);
    const bool wasBusy = state->isChanged || job.Document().GetInputModel()->rowCount() > 0;
    if (!state->isClosed && wasBusy) {
        Tell(Messages::tr("The window did not end as it should; this is what was edited last."));
    }
}

QStringList JobDesk::OpenJobs(const QStringList& paths)
{
    QStringList others;
    bool isOpen = false;
    for (const QString& path : paths) {
        const QString absolute = QDir::cleanPath(QDir::current().absoluteFilePath(path));
        if (!IsSavedJob(absolute)) {
            others.append(absolute);
        } else if (!isOpen) {
            isOpen = keeper.Open(absolute);
        }
    }
    return others;
}

EditState JobDesk::Describe() const
{
    EditState state;
    state.preset = presets.Active();
    state.jobFile = keeper.File();
    state.isChanged = keeper.IsChanged();
    return state;
}

/// The settings of a file become the present ones, and are given a name.
void JobDesk::ImportPreset()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = keeper.dialogs.openFile(&window, Messages::tr("Import preset"), folder);
    if (path.isEmpty()) {
        return;
    }
    ZTBatchDocument preset;
    SetJobDefaults(preset);
    try {
        LoadJob(preset, path);
    } catch (const RequestError& error) {
        Tell(Translated(error.text));
        return;
    }
    Settings settings = Settings::Of(preset, job.CurrentSettings().policies);
    settings.outputFolder = job.CurrentSettings().outputFolder;
    job.Change(settings, Messages::tr("Import preset"));
    naming->Ask(PresetNameLine::Purpose::Save, QFileInfo(path).baseName());
}

void JobDesk::ExportPreset()
{
    const QString name = presets.Active().isEmpty() ? Messages::tr("Preset") : presets.Active();
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString path = keeper.dialogs.saveFile(&window, Messages::tr("Export preset"),
                                                 folder.filePath(name + QStringLiteral(".vbatch.xml")));
    if (path.isEmpty()) {
        return;
    }
    ZTBatchDocument preset;
    presets.Fill(preset, name);
    try {
        SaveJob(preset, path, true); // The dialog has asked.
        Tell(Messages::tr("The settings are saved in %1.").arg(QDir::toNativeSeparators(path)));
    } catch (const RequestError& error) {
        Tell(Translated(error.text));
    }
}

void JobDesk::RemovePreset()
{
    const QString name = presets.Active();
    try {
        const QByteArray content = presets.Remove();
        notice->Show(Messages::tr("The preset %1 is deleted; the settings stay as they are.").arg(name),
                     Messages::tr("Undo"), [this, name, content] { presets.Restore(name, content); });
    } catch (const RequestError& error) {
        Tell(Translated(error.text));
    }
}

void JobDesk::UpdatePresetActions()
{
    if (renamePreset != nullptr) {
        const bool isOwn = presets.IsOwn(presets.Active());
        renamePreset->setEnabled(isOwn);
        removePreset->setEnabled(isOwn);
    }
}

} // namespace BatchDesktop
