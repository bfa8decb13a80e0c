// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TempVariables.h"

#include "job/values/PathVariable.h"

#include <QDir>

using BatchJob::TemporaryFolderVariables;

namespace BatchHost {

TempVariables::TempVariables(const QString& folder)
{
    for (const char* const name : TemporaryFolderVariables()) {
        const bool isSet = qEnvironmentVariableIsSet(name);
        before.append(isSet ? std::optional(qEnvironmentVariable(name)) : std::nullopt);
        BatchJob::SetPathVariable(name, QDir::toNativeSeparators(folder));
    }
}

TempVariables::~TempVariables()
{
    for (int i = 0; i < before.size(); ++i) {
        const char* const name = TemporaryFolderVariables().at(std::size_t(i));
        if (before.at(i)) {
            BatchJob::SetPathVariable(name, *before.at(i));
        } else {
            qunsetenv(name);
        }
    }
}

} // namespace BatchHost
