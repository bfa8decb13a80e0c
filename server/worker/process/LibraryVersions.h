// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Versions.h"

namespace BatchWorker {

/// The libraries of this process that have a say in the pixels of results: what decodes, encodes, scales, converts
/// colours and draws texts, each with its version as it is now, not as it was when this program was built.
BatchJob::Versions LibraryVersions();

} // namespace BatchWorker
