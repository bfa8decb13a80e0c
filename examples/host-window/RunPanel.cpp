// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunPanel.h"

// step 6 begins
#include "Questions.h"
// step 6 ends
// step 7 begins
#include "ServerNotes.h"
// step 7 ends

#include <ZTBatchDocument.h>
#include <ZTBatchMessage.h>
#include <ZTBatchValues.h>

#include <QDir>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

using Session = ZTBatchManager::ZTBatchSession;

RunPanel::RunPanel(const ZTBatchDocument& job)
    : job(job)
    , manager(ZTBatchManager::Instance())
    , progress(new QProgressBar)
    , start(new QPushButton(tr("Start")))
    , pause(new QPushButton(tr("Pause")))
    , cancel(new QPushButton(tr("Cancel")))
    , log(new QTextBrowser)
{
    start->setObjectName(QStringLiteral("start"));
    pause->setObjectName(QStringLiteral("pause"));
    cancel->setObjectName(QStringLiteral("cancel"));
    auto* const buttons = new QHBoxLayout;
    for (QWidget* const widget : {static_cast<QWidget*>(progress), static_cast<QWidget*>(start),
                                  static_cast<QWidget*>(pause), static_cast<QWidget*>(cancel)}) {
        buttons->addWidget(widget);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(log);

    connect(start, &QPushButton::clicked, this, &RunPanel::Begin);
    connect(pause, &QPushButton::clicked, this, &RunPanel::PauseOrResume);
    connect(cancel, &QPushButton::clicked, this, [this] {
        if (session) {
            session->Cancel();
        }
    });
    connect(manager, &ZTBatchManager::ConnectionEstablished, this, &RunPanel::StartRun);
    connect(manager, &ZTBatchManager::ConnectionFailed, this, &RunPanel::OnConnectionFailed);
    // step 7 begins
    connect(manager, &ZTBatchManager::ConnectionEstablished, this, &ServerNotes::Forget);
    // step 7 ends
    End();
}

RunPanel::~RunPanel()
{
    delete session;
}

void RunPanel::Begin()
{
    log->clear();
    start->setEnabled(false);
    if (manager->IsStarted()) {
        StartRun();
    } else {
        // step 7 begins
        ServerNotes::Forget();
        // step 7 ends
        manager->Start(); // StartRun() or OnConnectionFailed() follows.
    }
}

void RunPanel::StartRun()
{
    if (session || start->isEnabled()) {
        return; // The connection was lost and is back.
    }
    session = manager->CreateBatchSession();
    if (!session) {
        return; // It was lost again; ConnectionEstablished() or ConnectionFailed() follows.
    }
    connect(session, &Session::ProgressRange, progress, &QProgressBar::setRange);
    connect(session, &Session::Progress, progress, &QProgressBar::setValue);
    connect(session, &Session::FileProcessed, this, [this](const QString&, const QString& output) {
        Say(tr("Written: %1").arg(QDir::toNativeSeparators(output)));
    });
    connect(session, &Session::LogMessage, this, &RunPanel::Say);
    connect(session, &Session::ProcessError, this, &RunPanel::OnError);
    connect(session, &Session::Paused, this, [this] {
        isPaused = true;
        pause->setText(tr("Resume"));
    });
    connect(session, &Session::Resumed, this, [this] {
        isPaused = false;
        pause->setText(tr("Pause"));
    });
    connect(session, &Session::Finished, this, &RunPanel::End);
    connect(session, &Session::Cancelled, this, &RunPanel::End);
    connect(session, &Session::Aborted, this, &RunPanel::End);
    // step 6 begins
    new Questions(*session, *this); // Lives as long as the session.
    // step 6 ends
    pause->setEnabled(true);
    cancel->setEnabled(true);
    session->Process(job.Serialize(log));
}

void RunPanel::PauseOrResume()
{
    if (!session) {
        return;
    }
    if (isPaused) {
        session->Resume();
    } else {
        session->Pause();
    }
}

void RunPanel::OnConnectionFailed()
{
    Say(tr("The server could not be started, or has ended."));
    // step 7 begins
    Say(ServerNotes::Explanation());
    // step 7 ends
    End();
}

void RunPanel::OnError(const QString& input, const QString&, int action, int errorCode)
{
    if (action != int(ZTBatchValues::Action::ReportedOnly)) {
        const QString text = ZTBatchMessage::ErrorDescription(ZTBatchMessage::Error(errorCode));
        Say(input.isEmpty() ? text : QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(input), text));
    }
}

void RunPanel::Say(const QString& line)
{
    log->moveCursor(QTextCursor::End);
    log->insertPlainText(line + u'\n');
}

void RunPanel::End()
{
    delete session;
    isPaused = false;
    pause->setText(tr("Pause"));
    pause->setEnabled(false);
    cancel->setEnabled(false);
    start->setEnabled(true);
}
