// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SleepBlocker.h"

#include <qt_windows.h>

namespace BatchDesktop {

class SleepBlocker::Link
{
};

SleepBlocker::SleepBlocker()
    : link(std::make_unique<Link>())
{
}

SleepBlocker::~SleepBlocker()
{
    Release();
}

void SleepBlocker::Block(const QString&)
{
    SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED);
}

void SleepBlocker::Release()
{
    SetThreadExecutionState(ES_CONTINUOUS);
}

} // namespace BatchDesktop
