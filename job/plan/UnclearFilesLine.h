// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Phrase.h"

#include <QString>

/// The line of the server's log that says that unfinished files stay because the file system has no locks. A host shows
/// it to its user.
namespace BatchJob::UnclearFilesLine {

inline QString Pattern()
{
    return Phrase::English("%1 unfinished files stay beside the results: the file system has no locks to tell whether "
                           "they are in work. Remove .velkora-*.tmp there when nothing runs.");
}

inline QString Of(int count)
{
    return Pattern().arg(count);
}

inline bool Is(const QString& text)
{
    constexpr int lengthOfPlace = 2; // %1
    return text.endsWith(Pattern().mid(lengthOfPlace));
}

} // namespace BatchJob::UnclearFilesLine
