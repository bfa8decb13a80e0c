// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerLife.h"

#include <algorithm>

QByteArray CloseServerFrame()
{
    return QByteArray::fromHex("00000004"
                               "00320031"
                               "00000000");
}

QList<QAbstractEventDispatcher::TimerInfo> TimersOf(QObject* object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

QList<int> TimerIntervals(QObject* object)
{
    QList<int> intervals;
    for (const QAbstractEventDispatcher::TimerInfo& timer : TimersOf(object)) {
        intervals.append(timer.interval);
    }
    std::sort(intervals.begin(), intervals.end());
    return intervals;
}

OrphanServer::OrphanServer(const ServerStage& stage)
{
    process.start(ServerStage::ServerPath(), {ServerStage::PipeName()});
    isOpen = Eventually([&stage] { return stage.Count(QStringLiteral("open")) == 1; });
}

OrphanServer::~OrphanServer()
{
    process.kill();
    process.waitForFinished();
}

HungServerRun::HungServerRun()
    : ManagerRun({opensAtOnce, QStringLiteral("2: hang")})
{
}

bool HungServerRun::Hang()
{
    if (!OpenSession()) {
        return false;
    }
    session->Pause();
    return Eventually([this] { return stage.Count(QStringLiteral("message 2")) == 1; });
}
