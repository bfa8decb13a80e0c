// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerWatch.h"

namespace BatchHost {

ServerWatch::Times& ServerWatch::Times::InUse()
{
    static Times times;
    return times;
}

ServerWatch::ServerWatch(QObject* parent)
    : QObject(parent)
{
    connect(&clock, &QTimer::timeout, this, &ServerWatch::Tick);
}

void ServerWatch::Start()
{
    isEndExpected = false;
    ticks = 0;
    clock.start(Times::InUse().tick);
}

void ServerWatch::Heard()
{
    if (!isEndExpected) {
        ticks = 0;
    }
}

void ServerWatch::ExpectEnd()
{
    Start();
    isEndExpected = true;
}

void ServerWatch::Tick()
{
    const Times& times = Times::InUse();
    ++ticks;
    if (ticks > (isEndExpected ? times.end : times.lost)) {
        Stop();
        Q_EMIT Lost();
    } else if (!isEndExpected && ticks > times.quiet) {
        Q_EMIT Quiet();
    }
}

} // namespace BatchHost
