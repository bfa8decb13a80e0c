// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ManagerRun.h"

#include <QAbstractEventDispatcher>
#include <QByteArray>
#include <QList>
#include <QProcess>

/// The message that asks a server to end, as the bytes on the pipe: its payload is empty, not null.
QByteArray CloseServerFrame();

/// The timers that `object` has started.
QList<QAbstractEventDispatcher::TimerInfo> TimersOf(QObject* object);

/// Their intervals in milliseconds, sorted.
QList<int> TimerIntervals(QObject* object);

/// A server that the manager has not started, as one left over from an earlier run of the host. The destructor kills
/// it.
class OrphanServer
{
public:
    /// Starts the server and waits until it has opened its pipe; `isOpen` tells whether it has.
    explicit OrphanServer(const ServerStage& stage);
    ~OrphanServer();

    QProcess process;
    bool isOpen = false;

private:
    Q_DISABLE_COPY(OrphanServer)
};

/// A run whose server hangs once it has a session.
class HungServerRun : public ManagerRun
{
public:
    HungServerRun();

    /// Opens the session and waits until the server hangs.
    bool Hang();
};
