// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunBar.h"

#include "RunTexts.h"

#include "hosts/common/Language.h"

#include <QAccessible>
#include <QHBoxLayout>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

constexpr int mostUnits = 1000; // of the progress bar, as bytes do not fit its numbers

} // namespace

RunBar::RunBar(JobRunner& runner, QWidget* parent)
    : QWidget(parent)
    , runner(runner)
    , bar(new QProgressBar)
    , status(new QLabel)
    , counts(new QLabel)
    , pause(QStringLiteral("pause"), Messages::tr("&Pause"), Qt::CTRL + Qt::Key_P, this)
    , cancel(QStringLiteral("cancel"), Messages::tr("&Cancel the run"), {}, this)
    , resume(QStringLiteral("resume"), Messages::tr("Resu&me the run"), {}, this)
    , showFailed(QStringLiteral("showFailed"), Messages::tr("S&how failed"), {}, this)
    , retry(QStringLiteral("retryFailed"), Messages::tr("Retr&y failed"), {}, this)
    , openFolder(QStringLiteral("openFolder"), Messages::tr("Open fo&lder"), {}, this)
    , saveReport(QStringLiteral("saveReport"), Messages::tr("Sa&ve report"), {}, this)
    , putAway(QStringLiteral("putAway"), Messages::tr("Put &away"), {}, this)
{
    setObjectName(QStringLiteral("runBar"));
    bar->setObjectName(QStringLiteral("progress"));
    bar->setAccessibleName(Messages::tr("Progress of the run"));
    bar->setMaximum(mostUnits);
    status->setObjectName(QStringLiteral("status"));
    status->setTextFormat(Qt::PlainText);
    status->setWordWrap(true);
    counts->setObjectName(QStringLiteral("counts"));
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(bar, 1);
    layout->addWidget(status, 3);
    layout->addWidget(counts);
    for (const RunControl& control : {pause, cancel, resume, showFailed, retry, openFolder, saveReport, putAway}) {
        layout->addWidget(control.Button());
    }
    ConnectControls();
    connect(&runner, &JobRunner::StateChanged, this, &RunBar::Refresh);
    connect(&runner, &JobRunner::Started, this, [this] {
        notice.clear();
        isEndTold = isEndOffered = true;
    });
    connect(&runner, &JobRunner::ServerLost, this, [this](bool goesOn) {
        if (goesOn) {
            Say(Messages::tr("The batch server has ended unexpectedly; a new one goes on."));
        }
    });
    constexpr int shortest = 100; // ms; a run may report hundreds of pictures a second
    pace.setSingleShot(true);
    pace.setInterval(shortest);
    connect(&pace, &QTimer::timeout, this, &RunBar::RefreshProgress);
    connect(&runner, &JobRunner::Progressed, this, [this] {
        if (!pace.isActive()) {
            pace.start();
        }
    });
    Refresh();
}

void RunBar::ConnectControls()
{
    const auto onTrigger = [this](const RunControl& control, auto function) {
        connect(control.Action(), &QAction::triggered, this, function);
    };
    onTrigger(pause, [this] { runner.CurrentState() == JobRunner::State::Running ? runner.Pause() : runner.GoOn(); });
    onTrigger(cancel, [this] { runner.Cancel(); });
    onTrigger(resume, [this] {
        if (!runner.Resume()) {
            Say(Messages::tr("The run cannot be resumed: its journal cannot be read."));
        }
    });
    onTrigger(retry, [this] {
        if (!runner.RetryFailed()) {
            Say(Messages::tr("The failed pictures cannot be tried again: the journal of their run cannot be used."));
        }
    });
    onTrigger(showFailed, [this] { Q_EMIT FailedWanted(); });
    onTrigger(saveReport, [this] { Q_EMIT ReportWanted(); });
    onTrigger(openFolder, [this] { Q_EMIT FolderWanted(runner.CurrentFolder()); });
    onTrigger(putAway, [this] { PutAway(); });
}

QList<QAction*> RunBar::Actions() const
{
    return {pause.Action(), cancel.Action(),     resume.Action(),     showFailed.Action(),
            retry.Action(), openFolder.Action(), saveReport.Action(), putAway.Action()};
}

void RunBar::SetForecast(const QString& text)
{
    forecast = text;
    RefreshProgress();
}

void RunBar::Say(const QString& text)
{
    if (notice == text) {
        return;
    }
    notice = text;
    Refresh();
    QAccessibleEvent alert(status, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RunBar::PreferForecast()
{
    if (isEndTold) {
        isEndTold = false;
        Refresh();
    }
}

void RunBar::PutAway()
{
    notice.clear();
    if (runner.CurrentState() == JobRunner::State::Idle) {
        isEndTold = isEndOffered = false;
        runner.Dismiss();
        Q_EMIT SummaryPutAway();
    }
    Refresh();
}

void RunBar::Refresh()
{
    const JobRunner::State state = runner.CurrentState();
    const bool isRunning = state != JobRunner::State::Idle;
    const auto& end = runner.LastEnd();
    const bool isOver = !isRunning && end && isEndOffered;
    bar->setVisible(isRunning);
    counts->setVisible(isRunning);
    pause.SetPossible(isRunning, state != JobRunner::State::Cancelling);
    pause.SetLabel(!isRunning || state == JobRunner::State::Running ? Messages::tr("&Pause") : Messages::tr("Go &on"));
    cancel.SetPossible(isRunning, state != JobRunner::State::Cancelling);
    resume.SetPossible(isOver && runner.CanResume());
    showFailed.SetPossible(isOver && end->failed > 0);
    retry.SetPossible(isOver && end->failed > 0 && end->NotProcessed() == 0);
    openFolder.SetPossible(isOver && end->written > 0);
    saveReport.SetPossible(isOver);
    putAway.SetPossible(isOver || !notice.isEmpty());
    RefreshProgress();
    QAccessibleEvent event(status, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void RunBar::RefreshProgress()
{
    QString text = IdleText();
    if (runner.CurrentState() != JobRunner::State::Idle) {
        const JobRunner::Progress& progress = runner.CurrentProgress();
        bar->setValue(int(mostUnits * progress.Fraction()));
        counts->setText(CountsText(progress));
        text = StatusText(runner.CurrentState(), progress);
    }
    status->setText(notice.isEmpty() ? text : notice + QLatin1Char(' ') + text);
}

QString RunBar::IdleText() const
{
    return runner.LastEnd() && isEndTold ? EndText(*runner.LastEnd()) : forecast;
}

} // namespace BatchDesktop
