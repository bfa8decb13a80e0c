// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ShellLine.h"

namespace BatchHost {

QString ShellLine(const QStringList& arguments)
{
    return WindowsShellLine(arguments);
}

} // namespace BatchHost
