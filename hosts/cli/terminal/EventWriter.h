// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/RunObserver.h"

class QJsonObject;

namespace BatchCli {

/// Writes the events of a run to standard output as JSON, one object a line. docs/reference/events.md describes them.
class EventWriter : public BatchHost::RunObserver
{
public:
    /// Before the first run of a folder that is watched.
    static void TellWatching(const QString& folder, const QString& outputFolder);

    void OnStart(const BatchHost::RunInputs& inputs, const QString& outputFolder) override;
    void OnEarlierResult(const BatchHost::FileResult& result) override;
    void OnInWork(const QStringList& names, const QString& begun) override;
    void OnResult(const BatchHost::FileResult& result, int done, int files) override;
    void OnNote(const QString& input, const QString& output, const QString& what, const QString& text) override;
    void OnLog(const QString& text) override;
    void OnQuestion(BatchJob::PolicyKind kind, const QString& input, const QString& reason) override;
    void OnAnswer(BatchJob::PolicyKind kind, const QString& word, bool isForTheRest) override;
    void OnServerLost(const QStringList& inWork, bool goesOn) override;
    void OnCancelling() override;
    void OnEnd(const BatchHost::RunEnd& end) override;
};

} // namespace BatchCli
