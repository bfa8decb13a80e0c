// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerMessages.h"

namespace BatchWorker {

/// Reads what a plan needs to know about the file of `task`: its format, a format that can hold it, and when it was
/// taken. Throws PictureFailure when it is no picture that can be read.
BatchProtocol::Report ProbeFile(const BatchProtocol::ProbeTask& task, const BatchProtocol::ServerLimits& limits);

} // namespace BatchWorker
