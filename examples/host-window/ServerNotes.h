// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Collects what the library says about the pipe in debug lines, for the moment when the server is lost.
namespace ServerNotes {

/// Reads the lines on their way to the message handler of before. To be called before the manager exists.
void Install();

/// Forgets the lines so far: a server is being started, or the connection to it is established.
void Forget();

/// Why ConnectionFailed() was emitted, as far as this process can know.
QString Explanation();

} // namespace ServerNotes
