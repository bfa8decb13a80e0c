// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Phrase.h"

#include <qt_windows.h>

namespace BatchJob {

/// Whether `code`, of GetLastError(), says that another program has opened a file and does not share it.
inline bool IsOpenElsewhere(DWORD code)
{
    return code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION;
}

/// Why Windows refused a file with `code`, for users.
inline QString FileProblem(DWORD code)
{
    return IsOpenElsewhere(code) ? Phrase::English("it is open in another program") : qt_error_string(int(code));
}

} // namespace BatchJob
