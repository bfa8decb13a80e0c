// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ForecastLink.h"
#include "PaneArrangement.h"
#include "PaneFocus.h"
#include "RunLink.h"
#include "SystemLink.h"

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/jobs/JobDesk.h"
#include "hosts/desktop/pictures/InputModule.h"
#include "hosts/desktop/pictures/PicturesPane.h"
#include "hosts/desktop/preview/PreviewPane.h"
#include "hosts/desktop/run/JobRunner.h"
#include "hosts/desktop/run/QuestionBar.h"
#include "hosts/desktop/run/RunBar.h"
#include "hosts/desktop/settings/SettingsPane.h"

#include <QMainWindow>
#include <QPushButton>

#include <functional>

namespace BatchDesktop {

class ElidedLabel;

/// The window: pictures, preview and settings side by side, and the bar of the run below them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Policies and presets are in `settingsFolder`; what the window remembers is in `dataFolder`.
    MainWindow(const QString& settingsFolder, const QString& dataFolder);
    ~MainWindow() override;

    EditedJob& Job() { return job; }
    JobRunner& Runner() { return runner; }
    JobDesk& Desk() { return *desk; }
    PresetBox& PresetChoice() { return *presets; }
    PicturesPane& Pictures() { return *pictures; }
    PreviewPane& Preview() { return *preview; }
    ForecastLink& Forecasts() { return *forecasts; }
    RunLink& Runs() { return *runs; }

    /// Comes to the front, from an icon too.
    void BringToFront();

    /// Adds files and folders.
    void AddPaths(const QStringList& paths) { pictures->AddPaths(paths); }

    /// Opens a job file among `paths`, and adds the other files and the folders.
    void OpenPaths(const QStringList& paths);

    /// Brings back what was edited when the last window ended, see JobDesk.
    void Restore(bool withInputs) { desk->Restore(withInputs); }

    /// Starts a run of the job as it is. What keeps it from starting is said in the bar.
    void StartRun();

    /// Asks for presets, and starts a run that makes a result of each of them from every picture.
    void AskForSeveralPresets();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void RestoreLayout();
    void SaveLayout() const;
    QWidget* NewTopRow();
    void ShowDestination();
    void MakePanes();
    void MakeMenus();
    void ConnectJobs();
    void ShowTitle();
    void ConnectRun();
    void MakeRunMenu();
    void ConnectPictures();
    void ConnectSystem();
    void OnResult(const QString& input);
    void StartSeveral(const QStringList& presetNames);
    void BeginRun(const std::function<void(const std::optional<BatchJob::Update>&)>& begin);
    void UpdateStart();

    const QString settingsFolder;
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
    ElidedLabel* destination = nullptr;
    ResumeBar* resume = nullptr;
    QPushButton* start = nullptr;
    QAction* startAction = nullptr;
    QAction* severalAction = nullptr;
    QStringList severalPresets;      ///< chosen last
    QAction* updateAction = nullptr; ///< checked: a run makes only what has changed
    std::unique_ptr<InputModule> inputs;
    SystemLink system;
    std::unique_ptr<JobDesk> desk;
    int percent = -1; ///< of the run; negative without one
    std::unique_ptr<ForecastLink> forecasts;
    std::unique_ptr<RunLink> runs;
};

} // namespace BatchDesktop
