// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"

namespace BatchWorker {

/// Starts the imaging library for a worker: one thread, no caches, and of all its readers and writers of files only
/// those of the formats that this server knows. False, with the reason on standard error, when it does not start.
///
/// From then on a library that cannot allocate memory ends the process with the exit code workerOutOfMemory, where it
/// would abort otherwise.
bool StartImagingLibrary(const char* program);

/// Forgets the errors and warnings of earlier tasks. The library collects errors in one buffer, also those that it
/// recovers from, and never clears it.
void ForgetLibraryTexts();

/// What the library has warned of since the last call, each warning once. Safe on any thread.
BatchJob::Warnings TakeLibraryWarnings();

} // namespace BatchWorker
