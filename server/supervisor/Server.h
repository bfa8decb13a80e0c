// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Listener.h"
#include "Run.h"

#include "server/protocol/ServerLimits.h"
#include "server/protocol/WorkerPool.h"

#include "ZTPipeSession.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>

namespace BatchSupervisor {

/// The batch server: accepts hosts, handles their messages, starts runs and shares the workers among them.
///
/// It ends when a host asks for it, when the connection to the host of a session is lost, when no host connects for a
/// while, and when the system asks for it. It always cancels its runs first, as a host would.
class Server : public QObject
{
    Q_OBJECT

public:
    Server(const QString& workerProgram, const BatchProtocol::ServerLimits& limits);
    ~Server() override;

    /// Opens the pipe and starts the workers. False when the pipe cannot be opened, see Error().
    bool Start(const QString& pipeName);

    QString Error() const { return listener.Error(); }

    /// Cancels the runs, then ends the application's event loop.
    void End();

    /// Ends as soon as no host is connected. From now on none is waited for.
    void EndWithoutHost();

private:
    struct Session
    {
        ZTPipeSession* pipe = nullptr;
        Run* run = nullptr; ///< null before the order and after the run
        bool hadRun = false;
    };

    void Accept(QLocalSocket* socket);
    bool MakeRoom();
    bool HasSession(ZTPipeSession* pipe) const;
    void Handle(ZTPipeSession* pipe, const QString& name, const QByteArray& payload);
    void CreateSession(ZTPipeSession* pipe, const QString& id);
    void CloseSession(const QString& id);
    void Process(ZTPipeSession* pipe, const QByteArray& payload);
    void Command(ZTPipeSession* pipe, ZTBatchMessage::Message message, const QString& id);
    void Answer(ZTPipeSession* pipe, ZTBatchMessage::Message message, const QByteArray& payload);
    Session* SessionOf(ZTPipeSession* pipe, const QString& id, ZTBatchMessage::Message message);
    void LosePipe(ZTPipeSession* pipe);
    void Refuse(ZTPipeSession* pipe, ZTBatchMessage::Message message);
    void ScheduleHandOut();
    void HandOut();
    void OnRunOver(Run* run);
    void Quit();

    const BatchProtocol::ServerLimits limits;
    Listener listener;
    BatchProtocol::WorkerPool pool;
    QVector<ZTPipeSession*> pipes;           ///< the oldest first
    QHash<ZTPipeSession*, qint64> processes; ///< those at the other ends of the pipes
    QHash<QString, Session> sessions;
    QVector<Run*> runs; ///< the first one hands out the next task
    quint64 lastRun = 0;
    bool isHandOutScheduled = false;
    bool isEnding = false;
    bool waitsForHosts = true;
    QTimer hostTimeout; ///< runs while no host is connected
    QTimer endDeadline;
};

} // namespace BatchSupervisor
