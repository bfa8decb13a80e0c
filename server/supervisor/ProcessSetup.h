// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace BatchSupervisor {

/// The settings of the supervisor's process that the system keeps.
namespace ProcessSetup {

/// Detaches the process from the terminal of its host: Ctrl-C there is for the host, which decides what to cancel.
/// Closes its memory to other processes of its user, where the system can. Makes file names UTF-8 in any locale, on
/// systems that leave this to programs. In the background, the process and its workers come after the other sessions of
/// the machine, where the system divides the processor among these (Linux). To be called before anything else.
void Prepare(bool isInBackground);

/// Calls `end` on this thread, from its event loop, when the system asks the process to end.
void OnEndRequest(const std::function<void()>& end);

/// Calls `gone` on this thread, from its event loop, when the process that has started this one has ended, where that
/// matters: on Windows, where this server keeps the machine's pipe from the next one.
void OnStarterGone(const std::function<void()>& gone);

} // namespace ProcessSetup

} // namespace BatchSupervisor
