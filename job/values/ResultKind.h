// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchJob {

/// What became of one input of a run. Trouble.h has the rule that tells skipped from failed.
enum class ResultKind {
    Written,
    Unchanged, ///< an update has left the result of an earlier run as it was
    Skipped,
    Failed
};

/// Whether there is a result.
constexpr bool HasResult(ResultKind kind)
{
    return kind == ResultKind::Written || kind == ResultKind::Unchanged;
}

/// The word of `kind`: "written", "unchanged", "skipped", "failed". Journals, reports and events use it.
QString ResultWord(ResultKind kind);

} // namespace BatchJob
