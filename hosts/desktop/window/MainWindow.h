// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ForecastLink.h"
#include "PresetBox.h"
#include "RunLink.h"

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
#include <QSplitter>

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
    ForecastLink& Forecasts() { return *forecasts; }
    RunLink& Runs() { return *runs; }

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
    void MakeRunMenu();
    void ConnectPictures();
    void OnResult(const QString& input);
    void UpdateStart();

    const QString layoutFile; ///< where window and panes were
    EditedJob job;
    JobRunner runner;
    PresetBox* const presets;
    PicturesPane* pictures = nullptr;
    PreviewPane* preview = nullptr;
    SettingsPane* settings = nullptr;
    QSplitter* panes = nullptr;
    QuestionBar* questions = nullptr;
    RunBar* bar = nullptr;
    ResumeBar* resume = nullptr;
    QPushButton* start = nullptr;
    QAction* startAction = nullptr;
    std::unique_ptr<InputModule> inputs;
    std::unique_ptr<ForecastLink> forecasts;
    std::unique_ptr<RunLink> runs;
};

} // namespace BatchDesktop
