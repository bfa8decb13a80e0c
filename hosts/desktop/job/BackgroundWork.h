// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

namespace BatchDesktop {

/// Work that waits for the file system, on a thread of its own. One piece of work at a time: the newest wins.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// Returns true when the work is no longer wanted. Safe on any thread.
    using Cancelled = std::function<bool()>;
    using Work = std::function<void(const Cancelled&)>;

    explicit BackgroundWork(QObject* parent = nullptr);

    /// Cancels the work and waits for it.
    ~BackgroundWork() override;

    /// Cancels the work that is going on, and does `work` when that has ended. Work that did not begin yet is dropped.
    void Start(const Work& work);

    void Cancel();

    /// Whether there is work that was not cancelled.
    bool IsBusy() const;

Q_SIGNALS:
    /// The work is done and was not cancelled.
    void Done();

private:
    void Begin(const Work& work);
    void OnFinished();

    std::unique_ptr<QThread> thread;
    std::shared_ptr<std::atomic<bool>> isCancelled;
    Work next;
};

} // namespace BatchDesktop
