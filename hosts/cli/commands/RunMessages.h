#pragma once

#include "hosts/common/JobRun.h"

/// What the run command tells the user on standard error, beside the run itself.
namespace BatchCli {

/// A new run replaces an interrupted one of the same job.
void TellOfInterruptedRun();

/// Why the run cannot start.
void TellObstacle(const BatchHost::JobRun& run);

/// The command that resumes the run, if something is left to do.
void TellHowToResume(const BatchHost::JournaledJob& job, const BatchHost::RunEnd& end, bool isQuiet);

/// What was wrong with the server or the job, if anything was.
void TellTroubleOfServer(const BatchHost::RunEnd& end);

} // namespace BatchCli
