#include "Surroundings.h"

// File names are Unicode here, a process without a window gets no Ctrl-C of its host's console when the host starts it
// without one, and the system asks nothing: it ends.
void Surroundings::Prepare() {}

void Surroundings::OnEndRequest(const std::function<void()>&) {}
