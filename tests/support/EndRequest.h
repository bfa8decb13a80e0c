// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

class QProcess;

/// Prepares `process`, which has not been started, for RequestEnd().
void AllowEndRequests(QProcess& process);

/// Asks `process` to end as its system does that: on Unix with SIGTERM, on Windows with Ctrl-C at its console.
bool RequestEnd(const QProcess& process);
