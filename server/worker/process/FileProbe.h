#pragma once

#include "server/protocol/WorkerMessages.h"

namespace BatchWorker {

/// Reads what a plan needs to know of the file of `task`: its format, the format that surely holds it, and when it was
/// taken. Throws PictureFailure when it is no picture that can be read.
BatchProtocol::Report ProbeFile(const BatchProtocol::ProbeTask& task, const BatchProtocol::ServerLimits& limits);

} // namespace BatchWorker
