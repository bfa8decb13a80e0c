// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

namespace BatchWorker {

/// The same pixels, which can be read in any order: in memory, or in a temporary file without a name. The first copy
/// since BeginMemoryAccount() goes to disk above 256 MiB, later ones above 96 MiB together with those before. Reads all
/// of `picture`; throws vips::VError when that fails.
Picture WithRandomAccess(const Picture& picture);

/// A new picture is begun: see WithRandomAccess(). A worker makes one at a time.
void BeginMemoryAccount();

} // namespace BatchWorker
