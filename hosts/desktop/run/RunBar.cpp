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
    pause = AddButton("pause", Messages::tr("&Pause"));
    cancel = AddButton("cancel", Messages::tr("&Cancel the run"));
    showFailed = AddButton("showFailed", Messages::tr("Show &failed"));
    retry = AddButton("retryFailed", Messages::tr("&Retry failed"));
    openFolder = AddButton("openFolder", Messages::tr("Open f&older"));
    saveReport = AddButton("saveReport", Messages::tr("Save rep&ort"));

    connect(pause, &QToolButton::clicked, this, [this] {
        this->runner.CurrentState() == JobRunner::State::Running ? this->runner.Pause() : this->runner.GoOn();
    });
    connect(cancel, &QToolButton::clicked, &runner, &JobRunner::Cancel);
    connect(retry, &QToolButton::clicked, &runner, &JobRunner::RetryFailed);
    connect(showFailed, &QToolButton::clicked, this, &RunBar::FailedWanted);
    connect(saveReport, &QToolButton::clicked, this, &RunBar::ReportWanted);
    connect(openFolder, &QToolButton::clicked, this, [this] {
        if (this->runner.LastEnd()) {
            Q_EMIT FolderWanted(this->runner.LastEnd()->outputFolder);
        }
    });
    connect(&runner, &JobRunner::StateChanged, this, &RunBar::Refresh);
    connect(&runner, &JobRunner::ServerLost, this, [this](bool goesOn) {
        note = goesOn ? Messages::tr("The batch server has ended unexpectedly; a new one goes on.") : QString();
        RefreshProgress();
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

QToolButton* RunBar::AddButton(const char* name, const QString& label)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(label);
    button->setFocusPolicy(Qt::StrongFocus);
    layout()->addWidget(button);
    return button;
}

void RunBar::SetForecast(const QString& text)
{
    forecast = text;
    Refresh();
}

void RunBar::Refresh()
{
    const JobRunner::State state = runner.CurrentState();
    const bool isRunning = state != JobRunner::State::Idle;
    const auto& end = runner.LastEnd();
    const bool isOver = !isRunning && end;
    if (!isRunning) {
        note.clear();
    }
    bar->setVisible(isRunning);
    counts->setVisible(isRunning);
    pause->setVisible(isRunning);
    pause->setEnabled(state != JobRunner::State::Cancelling);
    pause->setText(state == JobRunner::State::Running ? Messages::tr("&Pause") : Messages::tr("Go &on"));
    cancel->setVisible(isRunning);
    cancel->setEnabled(state != JobRunner::State::Cancelling);
    showFailed->setVisible(isOver && end->failed > 0);
    retry->setVisible(isOver && end->failed > 0 && end->NotProcessed() == 0);
    openFolder->setVisible(isOver && end->written > 0);
    saveReport->setVisible(isOver);
    RefreshProgress();
    QAccessibleEvent event(status, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void RunBar::RefreshProgress()
{
    if (runner.CurrentState() != JobRunner::State::Idle) {
        const JobRunner::Progress& progress = runner.CurrentProgress();
        bar->setValue(int(mostUnits * progress.Fraction()));
        counts->setText(CountsText(progress));
        const QString text = StatusText(runner.CurrentState(), progress);
        status->setText(note.isEmpty() ? text : note + QLatin1Char(' ') + text);
    } else {
        status->setText(runner.LastEnd() ? EndText(*runner.LastEnd()) : forecast);
    }
}

} // namespace BatchDesktop
