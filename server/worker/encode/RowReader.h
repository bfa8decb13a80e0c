// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace BatchWorker {

/// Reads a picture once from top to bottom.
class RowReader
{
public:
    /// Takes the samples of a row, the channels of a pixel together.
    using Taker = std::function<void(int row, const std::uint8_t* samples)>;

    /// Throws vips::VError.
    explicit RowReader(const Picture& picture);

    /// Reads the next `rows`. Throws vips::VError when the source proves damaged.
    void Next(int rows, const Taker& take);

private:
    Picture picture;
    std::unique_ptr<VipsRegion, void (*)(gpointer)> region;
    int next = 0;
};

} // namespace BatchWorker
