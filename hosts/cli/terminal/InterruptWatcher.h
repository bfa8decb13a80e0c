// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ExitCode.h"

#include <QObject>

namespace BatchCli {

/// For as long as it lives, Ctrl-C and the system's requests to end emit a signal instead of ending the process. What
/// comes before the event loop runs is emitted when it does. Only one at a time.
///
/// A request is always followed: if the process still runs a minute later, it ends itself at once.
class InterruptWatcher : public QObject
{
    Q_OBJECT

public:
    explicit InterruptWatcher(QObject* parent = nullptr);

    /// Unless Finish() was called, requests do again what they did before.
    ~InterruptWatcher() override;

    /// Nothing is left to clean up: from now on, and for the rest of the process, a request ends it with `code`.
    void Finish(ExitCode code);

Q_SIGNALS:
    void Interrupted();

private:
    bool isFinished = false;
};

} // namespace BatchCli
