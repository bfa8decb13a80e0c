// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Autosave.h"
#include "CommandCopy.h"
#include "JobDrops.h"
#include "JobKeeper.h"
#include "NoticeLine.h"
#include "PresetBox.h"
#include "PresetNameLine.h"
#include "RecentJobs.h"

#include <QMenu>

#include <functional>

namespace BatchDesktop {

/// Everything about jobs and presets as files that the window offers: its menus, its lines, and what is remembered.
class JobDesk : public QObject
{
    Q_OBJECT

public:
    /// What is remembered is in `dataFolder`. The references must outlive this object.
    JobDesk(EditedJob& job, PresetBox& presets, QWidget& window, const QString& dataFolder);

    JobKeeper& Keeper() { return keeper; }
    Autosave& Saving() { return autosave; }

    /// The lines that say what happened, and ask for names; for the layout of the window.
    QWidget& Notice() { return *notice; }
    QWidget& Naming() { return *naming; }

    /// Says `text` where it is seen until it is put away.
    void Tell(const QString& text) { notice->Show(text); }

    /// Adds what can be done with jobs, and with presets.
    void FillJobMenu(QMenu& menu);
    void FillPresetMenu(QMenu& menu);

    /// Brings back what was edited when the window was closed or killed. With `withInputs` false, only the settings of
    /// a job that was closed come back, unless it had unsaved changes.
    void Restore(bool withInputs);

    /// The window is closed by its user.
    void Close() { autosave.Close(); }

    /// Opens the job files among `paths`; of several, the first. Returns the other paths.
    QStringList OpenJobs(const QStringList& paths);

    /// Job files that are dropped onto `widget` are opened.
    void WatchDrops(QWidget& widget) { drops.Watch(widget); }

private:
    QAction* AddAction(QMenu& menu, const char* name, const QString& text, const std::function<void()>& trigger,
                       const QKeySequence& key = QKeySequence());
    EditState Describe() const;
    void FillRecent();
    void ImportPreset();
    void ExportPreset();
    void RemovePreset();
    void UpdatePresetActions();

    EditedJob& job;
    PresetBox& presets;
    QWidget& window;
    JobKeeper keeper;
    RecentJobs recent;
    CommandCopy command;
    Autosave autosave;
    JobDrops drops;
    NoticeLine* const notice;
    PresetNameLine* const naming;
    bool isSaveFailureTold = false;
    QMenu* recentMenu = nullptr;
    QAction* renamePreset = nullptr;
    QAction* removePreset = nullptr;
};

} // namespace BatchDesktop
