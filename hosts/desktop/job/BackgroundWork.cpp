// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BackgroundWork.h"

#include <QThread>

#include <utility>

namespace BatchDesktop {

BackgroundWork::BackgroundWork(QObject* parent)
    : QObject(parent)
{
}

BackgroundWork::~BackgroundWork()
{
    Cancel();
    if (thread) {
        thread->disconnect(this);
        thread->wait();
    }
}

void BackgroundWork::Start(const Work& work)
{
    Cancel();
    if (thread) {
        next = work;
    } else {
        Begin(work);
    }
}

void BackgroundWork::Cancel()
{
    next = {};
    if (isCancelled) {
        *isCancelled = true;
    }
}

bool BackgroundWork::IsBusy() const
{
    return next || (thread && !*isCancelled);
}

void BackgroundWork::Begin(const Work& work)
{
    isCancelled = std::make_shared<std::atomic<bool>>(false);
    thread.reset(QThread::create([work, flag = isCancelled] { work([flag] { return flag->load(); }); }));
    connect(thread.get(), &QThread::finished, this, &BackgroundWork::OnFinished);
    thread->start(QThread::LowPriority);
}

void BackgroundWork::OnFinished()
{
    const bool isWanted = !*isCancelled;
    thread->wait();
    thread.release()->deleteLater(); // It is the sender of the signal that is being handled.
    if (next) {
        Begin(std::exchange(next, {}));
    } else if (isWanted) {
        Q_EMIT Done();
    }
}

} // namespace BatchDesktop
