// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PaneArrangement.h"
#include "PaneFocus.h"
#include "PresetBox.h"
#include "SystemLink.h"

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/pictures/InputModule.h"
#include "hosts/desktop/pictures/PicturesPane.h"
#include "hosts/desktop/preview/PreviewPane.h"
#include "hosts/desktop/run/JobRunner.h"
#include "hosts/desktop/run/QuestionBar.h"
#include "hosts/desktop/run/RunBar.h"
#include "hosts/desktop/settings/SettingsPane.h"

#include <QMainWindow>
#include <QPushButton>

namespace BatchDesktop {

/// The window: pictures, preview and settings side by side, and the bar of the run below them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Policies and presets are in `settingsFolder`.
    explicit MainWindow(const QString& settingsFolder);
    ~MainWindow() override;

    EditedJob& Job() { return job; }
    JobRunner& Runner() { return runner; }
    PicturesPane& Pictures() { return *pictures; }
    PreviewPane& Preview() { return *preview; }

    /// Comes to the front, from an icon too.
    void BringToFront();

    /// Adds files and folders.
    void AddPaths(const QStringList& paths) { pictures->AddPaths(paths); }

    /// Starts a run of the job as it is. What keeps it from starting is said in the bar.
    void StartRun();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void RestoreLayout();
    void SaveLayout() const;
    QWidget* NewTopRow();
    void MakePanes();
    void MakeMenus();
    void ConnectRun();
    void ConnectPictures();
    void ConnectSystem();
    void OnResult(const QString& input);
    void UpdateStart();
    void UpdateForecast();

    const QString layoutFile; ///< where window and panes were
    EditedJob job;
    JobRunner runner;
    PresetBox* const presets;
    PicturesPane* pictures = nullptr;
    PreviewPane* preview = nullptr;
    SettingsPane* settings = nullptr;
    PaneArrangement* panes = nullptr;
    PaneFocus* focus = nullptr;
    QuestionBar* questions = nullptr;
    RunBar* bar = nullptr;
    QPushButton* start = nullptr;
    std::unique_ptr<InputModule> inputs;
    SystemLink system;
};

} // namespace BatchDesktop
