// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SystemLink.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/run/RunTexts.h"

#include <QApplication>
#include <QEvent>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

const QString folderKey = QStringLiteral("folder");
const QString failuresKey = QStringLiteral("failures");

QString SummaryOf(const RunEnd& end)
{
    switch (end.Outcome()) {
    case RunOutcome::Complete:
        return Messages::tr("All pictures are written");
    case RunOutcome::Incomplete:
        return Messages::tr("The run is finished, some pictures are left out");
    case RunOutcome::Cancelled:
        return Messages::tr("The run is cancelled");
    case RunOutcome::Refused:
    case RunOutcome::NoWorkers:
    case RunOutcome::ServerLost:
        break;
    }
    return Messages::tr("The run has stopped");
}

} // namespace

SystemLink::SystemLink(JobRunner& runner, QWidget& window)
    : runner(runner)
    , window(window)
    , taskbar(window)
{
    connect(&runner, &JobRunner::StateChanged, this, &SystemLink::OnState);
    connect(&runner, &JobRunner::Progressed, this, &SystemLink::OnProgress);
    connect(&runner, &JobRunner::QuestionChanged, this, &SystemLink::OnQuestion);
    connect(&runner, &JobRunner::Ended, this, &SystemLink::OnEnd);
    connect(&notifier, &Notifier::Chosen, this, &SystemLink::OnChosen);
    window.installEventFilter(this);
}

bool SystemLink::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        Withdraw();
    }
    return QObject::eventFilter(watched, event);
}

void SystemLink::OnState()
{
    switch (runner.CurrentState()) {
    case JobRunner::State::Idle:
        SetPercent(-1);
        sleep.Release();
        break;
    case JobRunner::State::Paused:
        sleep.Release();
        break;
    case JobRunner::State::Running:
    case JobRunner::State::Pausing:
    case JobRunner::State::Cancelling:
        OnProgress();
        sleep.Block(Messages::tr("Pictures are being written"));
        break;
    }
}

void SystemLink::OnProgress()
{
    if (runner.CurrentState() != JobRunner::State::Idle) {
        constexpr int whole = 100;
        SetPercent(int(whole * runner.CurrentProgress().Fraction()));
    }
}

void SystemLink::SetPercent(int newPercent)
{
    if (percent == newPercent) {
        return;
    }
    percent = newPercent;
    if (percent < 0) {
        taskbar.Hide();
    } else {
        taskbar.Show(percent);
    }
    Q_EMIT PercentChanged(percent);
}

void SystemLink::OnQuestion()
{
    const auto& question = runner.OpenQuestion();
    taskbar.SetUrgent(question.has_value());
    if (question) {
        Show(Shown::Question, {Messages::tr("A picture needs your decision"), QuestionText(*question), {}});
    } else if (shown == Shown::Question) {
        Withdraw();
    }
}

void SystemLink::OnEnd()
{
    const RunEnd& end = *runner.LastEnd();
    QVector<Notifier::Action> actions;
    if (end.written > 0) {
        actions.append({folderKey, Messages::tr("Open folder")});
    }
    if (end.failed > 0) {
        actions.append({failuresKey, Messages::tr("Show failures")});
    }
    Show(Shown::End, {SummaryOf(end), EndText(end), actions});
}

void SystemLink::Show(Shown what, const Notifier::Notice& notice)
{
    if (!window.isActiveWindow()) {
        shown = what;
        notifier.Show(notice);
        QApplication::alert(&window);
    }
}

void SystemLink::Withdraw()
{
    if (shown != Shown::Nothing) {
        shown = Shown::Nothing;
        notifier.Withdraw();
    }
}

void SystemLink::OnChosen(const QString& key)
{
    if (key == folderKey && runner.LastEnd()) {
        Q_EMIT FolderWanted(runner.LastEnd()->outputFolder);
    } else if (key == failuresKey) {
        Q_EMIT FailuresWanted();
    } else {
        Q_EMIT WindowWanted();
    }
}

} // namespace BatchDesktop
