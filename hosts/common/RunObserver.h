// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunInputs.h"
#include "RunResults.h"

#include "job/values/PolicyValues.h"

#include <QString>
#include <QStringList>

namespace BatchHost {

/// Watches a run. By default an observer ignores every event.
class RunObserver
{
public:
    virtual ~RunObserver() = default;

    virtual void OnStart(const RunInputs&, const QString& /*outputFolder*/) {}

    /// The result of an input from before the run was interrupted. Called after OnStart() and before anything else.
    virtual void OnEarlierResult(const FileResult&) {}

    /// The server has begun with the input `begun`, and is working on the inputs `names` now.
    virtual void OnInWork(const QStringList& /*names*/, const QString& /*begun*/) {}

    /// An input has its result, as the `done`-th of `files`.
    virtual void OnResult(const FileResult&, int /*done*/, int /*files*/) {}

    /// A result was written in another way than planned; `what` is a word of BatchJob::ActionWords.
    virtual void OnNote(const QString& /*input*/, const QString& /*output*/, const QString& /*what*/,
                        const QString& /*text*/)
    {
    }

    virtual void OnLog(const QString& /*text*/) {}
    virtual void OnQuestion(BatchJob::PolicyKind, const QString& /*input*/, const QString& /*reason*/) {}
    virtual void OnAnswer(BatchJob::PolicyKind, const QString& /*word*/, bool /*isForTheRest*/) {}

    /// The server died while it worked on `inWork`. If `goesOn`, a new server continues the run.
    virtual void OnServerLost(const QStringList& /*inWork*/, bool /*goesOn*/) {}
    virtual void OnCancelling() {}
    virtual void OnEnd(const RunEnd&) {}
};

} // namespace BatchHost
