// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"

namespace BatchWorker {

/// Adds a warning that is not among `warnings` yet: a file may be read more than once for one picture.
inline void WarnOnce(BatchJob::Warnings& warnings, BatchJob::WarningKind kind, const QString& text)
{
    const BatchJob::Warning warning{kind, text};
    if (!warnings.contains(warning)) {
        warnings.append(warning);
    }
}

} // namespace BatchWorker
