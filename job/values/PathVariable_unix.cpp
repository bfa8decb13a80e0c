// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PathVariable.h"

#include <QFile>

namespace BatchJob {

void SetPathVariable(const char* name, const QString& path)
{
    qputenv(name, QFile::encodeName(path));
}

const std::vector<const char*>& TemporaryFolderVariables()
{
    static const std::vector<const char*> names{"TMPDIR"};
    return names;
}

} // namespace BatchJob
