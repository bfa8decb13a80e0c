#pragma once

#include "server/protocol/ServerLimits.h"

namespace BatchWorker {

/// Gives up what a worker never needs: new privileges, core files, the network, starting other programs. It ends with
/// its supervisor. To be called once, before the first thread starts. What the system does not support is left out.
void GiveUpRights();

/// Bounds memory and the size of files by `limits`, for good: later limits can only be narrower. Sanitizers reserve
/// more address space than any limit, so under them memory is not bounded.
void BoundResources(const BatchProtocol::ServerLimits& limits);

} // namespace BatchWorker
