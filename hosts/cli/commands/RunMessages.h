#pragma once

#include "hosts/common/JobRun.h"

/// What the run command tells the user on standard error, beside the run itself.
namespace BatchCli {

/// A new run replaces an interrupted one of the same job.
void TellOfInterruptedRun();

/// The journals in the output folder that are not taken up, and why.
void TellIgnoredJournals(const BatchHost::InterruptedRuns& runs);

/// Why the run has no journal, if it has none.
void TellMissingJournal(const BatchHost::JournaledJob& job);

/// Why the run cannot start.
void TellObstacle(const BatchHost::JobRun& run);

/// The command that resumes the run, if something is left to do.
void TellHowToResume(const BatchHost::JournaledJob& job, const BatchHost::RunEnd& end, bool isQuiet);

/// What was wrong with the server or the job, if anything was.
void TellTroubleOfServer(const BatchHost::RunEnd& end);

} // namespace BatchCli
