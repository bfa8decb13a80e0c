#pragma once

#include <functional>

namespace BatchSupervisor {

/// What the system has to be told before the supervisor starts its work.
namespace Surroundings {

/// Makes this process independent of the terminal that its host may run in: Ctrl-C there is for the host, which then
/// cancels as it sees fit. File names are UTF-8 whatever the locale says, where the system leaves that to programs.
void Prepare();

/// Has `end` called on this thread, from its event loop, when the system asks the process to end.
void OnEndRequest(const std::function<void()>& end);

} // namespace Surroundings

} // namespace BatchSupervisor
