// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/run/JobRunner.h"
#include "hosts/desktop/system/Notifier.h"
#include "hosts/desktop/system/SleepBlocker.h"
#include "hosts/desktop/system/TaskbarProgress.h"

#include <QWidget>

namespace BatchDesktop {

/// Tells the desktop of the runs: progress in the taskbar, no sleep while pictures are made, and, as long as the window
/// is not the active one, a notification of a question and of the end.
class SystemLink : public QObject
{
    Q_OBJECT

public:
    SystemLink(JobRunner& runner, QWidget& window);

Q_SIGNALS:
    /// The progress of the run in whole percent; negative when there is no run.
    void PercentChanged(int percent);

    /// A notification was chosen: the window is wanted.
    void WindowWanted();

    /// As WindowWanted(), with the pictures that have failed.
    void FailuresWanted();

    void FolderWanted(const QString& folder);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Shown { Nothing, Question, End };

    void OnState();
    void OnProgress();
    void OnQuestion();
    void OnEnd();
    void OnChosen(const QString& key);
    void SetPercent(int newPercent);
    void Show(Shown what, const Notifier::Notice& notice);
    void Withdraw();

    JobRunner& runner;
    QWidget& window;
    TaskbarProgress taskbar;
    Notifier notifier;
    SleepBlocker sleep;
    Shown shown = Shown::Nothing; ///< as a notification
    int percent = -1;
};

} // namespace BatchDesktop
