// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InterruptedRunSearch.h"
#include "JobRunner.h"

#include <QString>

/// What the window says of a run.
namespace BatchDesktop {

/// "Writing 412 of 1204; 4:10 left"
QString StatusText(JobRunner::State state, const JobRunner::Progress& progress);

/// "400 written, 9 skipped, 3 failed"
QString CountsText(const JobRunner::Progress& progress);

/// How a run ended, with what the user can do about it.
QString EndText(const BatchHost::RunEnd& end);

/// What was left of a run, and where.
QString InterruptedText(const InterruptedRun& run);

/// What is asked, as a question about the file.
QString QuestionText(const JobRunner::Question& question);

/// The button for the answer `value` of a policy, with a mnemonic.
QString AnswerText(BatchJob::PolicyKind kind, int value);

} // namespace BatchDesktop
