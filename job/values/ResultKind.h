// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchJob {

/// What became of one input of a run. Trouble.h has the rule that tells skipped from failed.
enum class ResultKind { Written, Skipped, Failed };

/// The word of `kind`: "written", "skipped", "failed". Journals, reports and events use it.
QString ResultWord(ResultKind kind);

} // namespace BatchJob
