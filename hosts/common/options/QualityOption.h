// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobOptions.h"

namespace BatchHost {

/// --quality: the quality of the job's format, in place of --format-option quality=N.
JobOption QualityOption();

} // namespace BatchHost
