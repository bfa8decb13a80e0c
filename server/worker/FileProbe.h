#pragma once

#include "WorkerMessages.h"

namespace BatchServer {

/// Reads what a plan needs to know of the file of `task`: its format, the format that surely holds it, and when it was
/// taken. Throws PictureFailure when it is no picture that can be read.
Report ProbeFile(const ProbeTask& task, const ServerLimits& limits);

} // namespace BatchServer
