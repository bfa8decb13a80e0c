// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "GeneratedPicture.h"

#include <functional>
#include <memory>

namespace BatchWorker {

/// Makes areas of a picture, one after the other, and may keep what the next one needs too.
class AreaFiller
{
public:
    AreaFiller() = default;
    AreaFiller(const AreaFiller&) = delete;
    AreaFiller& operator=(const AreaFiller&) = delete;
    virtual ~AreaFiller() = default;

    /// Fills the valid area of `target`, which may be any. Prepares what it needs of `source` itself; false when that
    /// fails. Must not throw.
    virtual bool Fill(VipsRegion* target, VipsRegion* source) = 0;
};

using MakeFiller = std::function<std::unique_ptr<AreaFiller>()>;

/// A picture that is made area by area, when it is asked for, from any part of `source`, whose metadata it has. Each
/// thread and each reader that asks has a filler of its own, which `make` makes.
Picture FilledPicture(const PictureShape& shape, const Picture& source, VipsDemandStyle style, MakeFiller make);

} // namespace BatchWorker
