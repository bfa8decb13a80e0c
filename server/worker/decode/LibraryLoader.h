// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Loader.h"

namespace BatchWorker {

/// The picture of `source` by an operation of the imaging library, `factor` times smaller as `shrink` says.
Picture LoadWithLibrary(const char* operation, const vips::VSource& source, LoaderShrink shrink = LoaderShrink::None,
                        int factor = 1);

} // namespace BatchWorker
