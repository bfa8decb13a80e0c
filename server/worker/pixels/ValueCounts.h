// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

#include <cstdint>
#include <vector>

namespace BatchWorker {

/// How many pixels have each value, from 0 to the largest.
using ValueCounts = std::vector<std::uint64_t>;

/// The counts of each channel of colour. Pixels without any opacity are invisible, so they do not count. Reads all of
/// `picture` at once; throws vips::VError when that fails.
std::vector<ValueCounts> CountedValues(const Picture& picture);

} // namespace BatchWorker
