// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Versions.h"

namespace BatchWorker {

/// Adds those of the libraries that this program does not link itself: libraries of libraries, as far as they can be
/// asked.
void AddIndirectVersions(BatchJob::Versions& versions);

} // namespace BatchWorker
