// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ProgressText.h"
#include "StatusLine.h"

#include "hosts/common/RunObserver.h"

#include <QElapsedTimer>
#include <QHash>
#include <QTimer>

namespace BatchCli {

/// Shows a run on standard error: a status line on a terminal, else a line for each picture, and every problem.
class RunDisplay : public BatchHost::RunObserver
{
public:
    enum class Detail { Quiet, Normal, Verbose };

    explicit RunDisplay(Detail detail);
    ~RunDisplay() override;

    /// Hide the status line while a question is open.
    void Suspend();
    void Resume();

    void OnStart(const BatchHost::RunInputs& inputs, const QString& outputFolder) override;
    void OnEarlierResult(const BatchHost::FileResult& result) override;
    void OnInWork(const QStringList& names, const QString& begun) override;
    void OnResult(const BatchHost::FileResult& result, int done, int files) override;
    void OnNote(const QString& input, const QString& output, const QString& what, const QString& text) override;
    void OnLog(const QString& text) override;
    void OnServerLost(const QStringList& inWork, bool goesOn) override;
    void OnCancelling() override;
    void OnEnd(const BatchHost::RunEnd& end) override;

private:
    void Refresh();
    void Write(const QString& text);

    const Detail detail;
    StatusLine line;
    QTimer clock; ///< updates the line between events
    QElapsedTimer time;
    Progress progress;
    QHash<QString, qint64> bytes;
    bool isSuspended = false;
    bool isCancelling = false;
};

} // namespace BatchCli
