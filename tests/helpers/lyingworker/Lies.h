// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerMessages.h"

#include <QByteArray>

#include <vector>

/// What a worker may do instead of making the picture that it was asked for.
struct Lie
{
    const char* name;
    const char* help;

    /// Tells it over the task `number`. Some never return.
    void (*tell)(qint32 number);
};

const std::vector<Lie>& Lies();

/// Writes to standard output.
void Say(const QByteArray& bytes);
