// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EarlyLoading.h"

#include "server/worker/pixels/FreeMemory.h"

#include <QByteArray>

namespace BatchWorker {

void ForbidGeneratedCode()
{
    qputenv("QT_ENABLE_REGEXP_JIT", QByteArrayLiteral("0"));
}

// Character sets and time zones are parts of the system's own libraries here.
void LoadWhatWorkNeeds()
{
    OpenMemoryAccount();
}

} // namespace BatchWorker
