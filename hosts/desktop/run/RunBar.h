// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobRunner.h"

#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

namespace BatchDesktop {

/// The line at the bottom of the window: before a run what would happen, during the run how far it is, afterwards what
/// became of it.
class RunBar : public QWidget
{
    Q_OBJECT

public:
    explicit RunBar(JobRunner& runner, QWidget* parent = nullptr);

    /// What a run would do, shown as long as nothing else is to be told.
    void SetForecast(const QString& text);

Q_SIGNALS:
    /// The user wants to see the pictures that failed.
    void FailedWanted();

    /// The user wants to see the folder of the results, or to save the report.
    void FolderWanted(const QString& folder);
    void ReportWanted();

private:
    QToolButton* AddButton(const char* name, const QString& label);
    void Refresh();
    void RefreshProgress();

    JobRunner& runner;
    QString forecast;
    QString note; ///< what happened to the server
    QProgressBar* const bar;
    QLabel* const status;
    QLabel* const counts;
    QToolButton* pause = nullptr;
    QToolButton* cancel = nullptr;
    QToolButton* showFailed = nullptr;
    QToolButton* retry = nullptr;
    QToolButton* openFolder = nullptr;
    QToolButton* saveReport = nullptr;
    QTimer pace; ///< limits how often progress is shown
};

} // namespace BatchDesktop
