// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EndRequest.h"

#include <QProcess>

#include <csignal>

void AllowEndRequests(QProcess&) {}

bool RequestEnd(const QProcess& process)
{
    return ::kill(pid_t(process.processId()), SIGTERM) == 0;
}
