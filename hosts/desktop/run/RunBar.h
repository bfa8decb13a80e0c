// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobRunner.h"
#include "RunControl.h"

#include <QLabel>
#include <QList>
#include <QProgressBar>
#include <QTimer>
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

    /// A sentence that stands before everything else, until the next run begins or it is put away.
    void Say(const QString& text);

    /// The job is no longer that of the last run: what the next run would do is worth more than how the last one ended.
    void PreferForecast();

    /// Everything that can be done here, for menus.
    QList<QAction*> Actions() const;

Q_SIGNALS:
    /// The user wants to see the pictures that failed.
    void FailedWanted();

    /// The user wants to see the folder of the results, or to save the report.
    void FolderWanted(const QString& folder);
    void ReportWanted();

    /// The last run is of no interest any more.
    void SummaryPutAway();

private:
    void ConnectControls();
    void PutAway();
    void Refresh();
    void RefreshProgress();
    QString IdleText() const;

    JobRunner& runner;
    QString forecast;
    QString notice; ///< see Say()
    QProgressBar* const bar;
    QLabel* const status;
    QLabel* const counts;
    RunControl pause;
    RunControl cancel;
    RunControl resume;
    RunControl showFailed;
    RunControl retry;
    RunControl openFolder;
    RunControl saveReport;
    RunControl putAway;
    bool isEndTold = false;    ///< how the last run ended is worth its place
    bool isEndOffered = false; ///< so is what can be done about it
    QTimer pace;               ///< limits how often progress is shown
};

} // namespace BatchDesktop
