// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/pictures/Thumbnails.h"
#include "hosts/desktop/run/InterruptedRunSearch.h"
#include "hosts/desktop/run/JobRunner.h"
#include "hosts/desktop/run/QuestionBar.h"
#include "hosts/desktop/run/ResumeBar.h"
#include "hosts/desktop/run/RunBar.h"

#include <QObject>

#include <functional>

namespace BatchDesktop {

/// What the bars of the run need from the rest of the window: pictures for questions, the folder and the report of a
/// run that has ended, and the runs that another process has left.
class RunLink : public QObject
{
    Q_OBJECT

public:
    struct Bars
    {
        RunBar& run;
        QuestionBar& questions;
        ResumeBar& resume;
    };

    /// All of them must outlive this object. Folders of runs are remembered in `settingsFolder`.
    RunLink(EditedJob& job, JobRunner& runner, const Bars& bars, const QString& settingsFolder);

    /// Gives the path of the report to save; an empty one if the user does not want to.
    std::function<QString(QWidget* parent)> chooseReport;

    /// Shows a folder of results.
    std::function<void(const QString& folder)> openFolder;

private:
    void ConnectQuestions();
    void ConnectReport();
    void ConnectInterruptedRuns();
    void ShowPictures();
    void SaveReport();
    void TakeUp(const InterruptedRun& run);

    EditedJob& job;
    JobRunner& runner;
    const Bars bars;
    Thumbnails thumbnails;
    QString existing; ///< the pictures of the open question
    QString wanted;
    InterruptedRunSearch search;
};

} // namespace BatchDesktop
