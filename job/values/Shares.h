// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace BatchJob {

/// Calls `work` with ranges that together are the numbers from 0 to `count`, the latter not included. Many numbers are
/// shared between threads: what is asked about files is mostly waiting. Returns when all is done. `work` must not
/// throw.
void InShares(int count, const std::function<void(int begin, int end)>& work);

} // namespace BatchJob
