#pragma once

#include "RunDisplay.h"

#include "hosts/common/RunController.h"

namespace BatchCli {

/// Runs `controller` to its end: puts its questions to the user, and cancels the run on Ctrl-C. A second Ctrl-C ends it
/// at once.
BatchHost::RunEnd RunInteractively(BatchHost::RunController& controller, RunDisplay& display);

} // namespace BatchCli
