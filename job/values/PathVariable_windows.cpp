// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PathVariable.h"

#include <cstdlib>

namespace BatchJob {

// Eight bits hold the letters of one part of the world only.
void SetPathVariable(const char* name, const QString& path)
{
    _wputenv_s(QString::fromLatin1(name).toStdWString().c_str(), path.toStdWString().c_str());
}

// Windows itself knows the first two; libraries that come from Unix ask for the last.
const std::vector<const char*>& TemporaryFolderVariables()
{
    static const std::vector<const char*> names{"TMP", "TEMP", "TMPDIR"};
    return names;
}

} // namespace BatchJob
