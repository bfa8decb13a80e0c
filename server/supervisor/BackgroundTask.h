#pragma once

#include <QThread>

#include <atomic>
#include <functional>

namespace BatchSupervisor {

/// Work that asks the file system many things, on a thread of its own: the supervisor answers its host meanwhile.
/// QThread::finished tells of the end. The destructor asks the work to give up and waits for it.
class BackgroundTask : public QThread
{
    Q_OBJECT

public:
    /// True when the work is to be given up. Safe on any thread.
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
