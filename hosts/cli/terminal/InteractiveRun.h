// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InterruptWatcher.h"
#include "RunDisplay.h"

#include "hosts/common/RunController.h"

namespace BatchCli {

/// Runs `controller` to its end: puts its questions to the user, and cancels the run on the first of `interrupts`. A
/// second one ends it at once.
BatchHost::RunEnd RunInteractively(BatchHost::RunController& controller, RunDisplay& display,
                                   InterruptWatcher& interrupts);

} // namespace BatchCli
