// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunPolicies.h"

#include "hosts/common/JobRun.h"

/// What the run command tells the user on standard error, beside the run itself.
namespace BatchCli {

/// A new run replaces an interrupted one of the same job.
void TellOfInterruptedRun();

/// Other runs were interrupted in the output folder, too.
void TellOfOtherRuns(const QString& outputFolder, int count);

/// The journals in the output folder that are not taken up, and why.
void TellIgnoredJournals(const BatchHost::InterruptedRuns& runs);

/// Why the run has no journal, if it has none.
void TellMissingJournal(const BatchHost::JournaledJob& job);

/// What was wrong with the record of an update's results.
void TellTroubleOfRecord(const BatchHost::JournaledJob& job);

/// Results of earlier updates that stay although their inputs are gone, because nobody wants them removed.
void TellOrphans(const QStringList& results);

/// The same, because it is not sure that the inputs are gone.
void TellKeptOrphans(const QStringList& results);

/// Of `count` such results, all but `left` were removed.
void TellRemovedOrphans(int count, const QStringList& left);

/// Why the run cannot start.
void TellObstacle(const BatchHost::JobRun& run);

/// The command that resumes the run, if something is left to do.
void TellHowToResume(const BatchHost::JournaledJob& job, const BatchHost::RunEnd& end, bool isQuiet);

/// Files that were left out because nobody could be asked about them.
void TellUnasked(const RunPolicies& policies, const BatchHost::RunEnd& end);

/// Results that were to replace files, but were renamed because these are sources of the job.
void TellKeptSources(const RunPolicies& policies, const BatchHost::RunEnd& end);

/// What was wrong with the server or the job, if anything was.
void TellTroubleOfServer(const BatchHost::RunEnd& end);

} // namespace BatchCli
