// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BackgroundTask.h"

#include <utility>

namespace BatchSupervisor {

BackgroundTask::BackgroundTask(std::function<void(const Cancelled&)> work)
    : work(std::move(work))
{
}

BackgroundTask::~BackgroundTask()
{
    Cancel();
    wait();
}

void BackgroundTask::run()
{
    work([this] { return isCancelled.load(); });
}

} // namespace BatchSupervisor
