// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchWorker {

/// Starts the imaging library, for the program of the name `program`, with no modules but those that known formats
/// need. Modules are decoders in libraries of their own. False, with the text of the library, when it does not start.
bool StartWithKnownModules(const char* program);

} // namespace BatchWorker
