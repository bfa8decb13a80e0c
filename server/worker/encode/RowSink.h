// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <cstdint>
#include <functional>

namespace BatchWorker {

/// Hands the rows of `picture` to `take`, from top to bottom, on the thread that makes them: pixels stay where they
/// are, and nobody waits for another thread. `take` may throw vips::VError. Throws vips::VError.
void SinkRows(const Picture& picture, const std::function<void(const std::uint8_t* samples)>& take);

} // namespace BatchWorker
