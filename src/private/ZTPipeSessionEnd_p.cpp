// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTPipeSessionEnd_p.h"

#include "ZTPipeSession.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <utility>

void ZTPipeSessionEnd::Begin(std::unique_ptr<ZTPipeSession> session, const QDeadlineTimer& deadline)
{
    QCoreApplication* const application = QCoreApplication::instance();
    const bool canBeParent = application != nullptr && application->thread() == QThread::currentThread();
    auto* const end = new ZTPipeSessionEnd(std::move(session), canBeParent ? application : nullptr);
    connect(end, &QThread::finished, end, &QObject::deleteLater);
    end->start();
    if (end->wait(deadline)) {
        delete end;
    }
}

ZTPipeSessionEnd::ZTPipeSessionEnd(std::unique_ptr<ZTPipeSession> session, QObject* parent)
    : QThread(parent)
    , session(std::move(session))
{
    this->session->moveToThread(this);
}

ZTPipeSessionEnd::~ZTPipeSessionEnd()
{
    wait();
}

void ZTPipeSessionEnd::run()
{
    session.reset();
}
