// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BlurValues.h"
#include "BlurredRows.h"
#include "GaussianKernel.h"

#include "server/worker/pixels/RowWindow.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace BatchWorker {

/// Blurs by a Gaussian, first along the rows as they come, then across them. Beyond its edges the picture goes on as
/// there.
class GaussianRows : public BlurredRows
{
public:
    GaussianRows(const Picture& picture, BlurValues values, std::shared_ptr<const GaussianKernel> kernel);

    bool Take(VipsRegion* source, const VipsRect& area) override;
    void Give(int x, int y, int count, float* values) override;
    const VipsPel* Samples(int x, int y) override;

private:
    void TakeRow(const VipsPel* pixels, const VipsRect& area, int y);

    int width;
    int height;
    BlurValues source;
    std::shared_ptr<const GaussianKernel> kernel;
    RowWindow window; ///< of each row the values blurred along it, then its samples
    int left = 0;
    std::size_t bytesOfValues = 0;
    std::vector<float> line;
    std::vector<const float*> rows;
};

} // namespace BatchWorker
