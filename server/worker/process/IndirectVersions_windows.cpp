// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "IndirectVersions.h"

namespace BatchWorker {

// They are parts of the one DLL of libvips, whose version stands for them.
void AddIndirectVersions(BatchJob::Versions&) {}

} // namespace BatchWorker
