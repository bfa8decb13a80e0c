// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TempVariables.h"

#include "job/values/PathVariable.h"

using BatchJob::TemporaryFolderVariables;

namespace BatchHost {

TempVariables::TempVariables(const QString& folder)
    : before(qgetenv(TemporaryFolderVariables().front()))
{
    BatchJob::SetPathVariable(TemporaryFolderVariables().front(), folder);
}

TempVariables::~TempVariables()
{
    if (before.isNull()) {
        qunsetenv(TemporaryFolderVariables().front());
    } else {
        qputenv(TemporaryFolderVariables().front(), before);
    }
}

} // namespace BatchHost
