// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ZTBatchSession.h>

#include <QPointer>
#include <QWidget>

class QProgressBar;
class QPushButton;
class QTextBrowser;
class ZTBatchDocument;

/// Runs the job, and shows how far it is.
class RunPanel : public QWidget
{
    Q_OBJECT

public:
    explicit RunPanel(const ZTBatchDocument& job);
    ~RunPanel() override;

private:
    void Begin();
    void StartRun();
    void PauseOrResume();
    void OnConnectionFailed();
    void OnError(const QString& input, const QString& output, int action, int errorCode);
    void Say(const QString& line);
    void End();

    const ZTBatchDocument& job;
    ZTBatchManager* const manager;
    QPointer<ZTBatchManager::ZTBatchSession> session;
    QProgressBar* const progress;
    QPushButton* const start;
    QPushButton* const pause;
    QPushButton* const cancel;
    QTextBrowser* const log;
    bool isPaused = false;
};
