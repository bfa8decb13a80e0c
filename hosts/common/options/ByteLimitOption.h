// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobOptions.h"

namespace BatchHost {

/// --max-size: the largest file of a result, in place of --format-option maxBytes=N.
JobOption ByteLimitOption();

} // namespace BatchHost
