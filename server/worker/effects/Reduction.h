// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BlurValues.h"

namespace BatchWorker {

/// The means of blocks of `factor` times `factor` pixels of `picture`, as floating-point values, with a border of one
/// block around: the picture goes on beyond its edges as there. It is read once, from top to bottom, when the result
/// is.
Picture ReducedByBlocks(const Picture& picture, const BlurValues& values, int factor);

} // namespace BatchWorker
