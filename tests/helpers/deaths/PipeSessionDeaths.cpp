// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "ZTPipeSession.h"

#include <QCoreApplication>
#include <QLocalSocket>

namespace {

class Application
{
public:
    Application()
        : application(argc, argv)
    {
    }

private:
    int argc = 1;
    char name[7] = "deaths";
    char* argv[2] = {name, nullptr};
    QCoreApplication application;
};

/// Makes a session on an adopted socket lose its worker: ends its thread and runs the event loop afterwards.
void EndThread(ZTPipeSession& session)
{
    session.quit();
    session.wait();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

const DeathCase isConnectedWithoutWorker("pipe-is-connected-without-worker", [] {
    const Application application;
    ZTPipeSession session(new QLocalSocket, nullptr);
    EndThread(session);
    session.IsConnected();
});

const DeathCase waitWithoutWorker("pipe-wait-without-worker", [] {
    const Application application;
    ZTPipeSession session(new QLocalSocket, nullptr);
    EndThread(session);
    session.WaitForConnected(0);
});

const DeathCase readOnForeignThread("pipe-read-on-foreign-thread", [] {
    const Application application;
    auto* socket = new QLocalSocket;
    const ZTPipeSession session(socket, nullptr);
    QMetaObject::invokeMethod(socket->parent(), "OnReadyRead", Qt::DirectConnection);
});

} // namespace
