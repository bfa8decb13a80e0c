// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTPipeSession.h"

#include "ZTDiagnostics_p.h"
#include "ZTPipeSession_p.h"

#include <QCoreApplication>

namespace {
constexpr ZTDiagnostics diagnostics("src\\ZTPipeSession");
}

ZTPipeSession::ZTPipeSession(const QString& serverName, QObject* parent)
    : QThread(parent)
    , worker(new Private(this, serverName))
{
    Launch();
}

ZTPipeSession::ZTPipeSession(QLocalSocket* socket, QObject* parent)
    : QThread(parent)
    , worker(new Private(this, socket))
{
    connect(this, SIGNAL(finished()), worker, SLOT(deleteLater()));
    Launch();
}

ZTPipeSession::~ZTPipeSession()
{
    quit();
    wait();
    // If the thread of a session on an adopted socket ended earlier, the event loop may have deleted the worker
    // already.
    if (!worker) {
        return;
    }
    QCoreApplication::removePostedEvents(worker);
    if (worker->thread() == QThread::currentThread()) {
        delete worker;
    } else {
        diagnostics.LogFailedAssert();
    }
}

void ZTPipeSession::Launch()
{
    worker->moveToThread(this);
    start(QThread::InheritPriority);
    while (!isRunning()) {
        yieldCurrentThread();
    }
}

void ZTPipeSession::run()
{
    worker->Begin();
    exec();
    worker->Finish();
    worker->moveToThread(thread());
}

bool ZTPipeSession::IsConnected() const
{
    diagnostics.Assert(worker);
    return worker->IsConnected();
}

bool ZTPipeSession::WaitForConnected(int msecs)
{
    diagnostics.Assert(worker);
    return worker->WaitForConnected(msecs);
}

void ZTPipeSession::Send(const QString& name, const QByteArray& data)
{
    Q_EMIT WriteMessage(name, data);
}

void ZTPipeSession::Reconnect(const QString& serverName)
{
    Q_EMIT ReconnectToServer(serverName);
}

void ZTPipeSession::RunReadCycle()
{
    Q_EMIT RunUpdateReadTimer();
}
