// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QThread>

#include <atomic>
#include <functional>

namespace BatchSupervisor {

/// Runs work that uses the file system a lot on a thread of its own, so that the supervisor keeps answering its host.
/// QThread::finished is emitted at the end. The destructor cancels the work and waits for it.
class BackgroundTask : public QThread
{
    Q_OBJECT

public:
    /// Returns true when the work is cancelled. Safe on any thread.
    using Cancelled = std::function<bool()>;

    explicit BackgroundTask(std::function<void(const Cancelled&)> work);
    ~BackgroundTask() override;

    void Cancel() { isCancelled = true; }
    bool IsCancelled() const { return isCancelled; }

protected:
    void run() override;

private:
    std::function<void(const Cancelled&)> work;
    std::atomic<bool> isCancelled{false};
};

} // namespace BatchSupervisor
