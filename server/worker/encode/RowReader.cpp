// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RowReader.h"

#include <algorithm>

namespace BatchWorker {

RowReader::RowReader(const Picture& picture)
    : picture(picture)
    , region(vips_region_new(picture.get_image()), g_object_unref)
{
    if (!region) {
        throw vips::VError();
    }
}

void RowReader::Next(int rows, const Taker& take)
{
    constexpr int rowsAtOnce = 16;
    const int end = next + rows;
    while (next < end) {
        const VipsRect area{0, next, picture.width(), std::min(rowsAtOnce, end - next)};
        if (vips_region_prepare(region.get(), &area) != 0) {
            throw vips::VError();
        }
        for (const int bottom = next + area.height; next < bottom; ++next) {
            take(next, VIPS_REGION_ADDR(region.get(), 0, next));
        }
    }
}

} // namespace BatchWorker
