// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// The streams that join a worker to its supervisor.
namespace BatchWorker {

/// The open file to which frames are written. What libraries print to standard output goes to standard error from now
/// on: they may print at any time, and the supervisor must read nothing but frames.
int TakeStandardOutput();

/// The open file from which frames are read.
int StandardInput();

/// Whether somebody types what is read: no supervisor has started this program.
bool IsInputTyped();

} // namespace BatchWorker
