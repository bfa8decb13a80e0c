// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureValues.h"

#include <cmath>
#include <random>

using BatchWorker::Picture;

double LargestOf(VipsBandFormat format)
{
    return format == VIPS_FORMAT_UCHAR ? 255.0 : (format == VIPS_FORMAT_USHORT ? 65535.0 : 1.0);
}

Values RandomValues(int width, int height, int bands, double largest)
{
    std::mt19937 random(std::mt19937::result_type(width * 31 + bands));
    std::uniform_real_distribution<double> distribution(0.0, largest);
    Values values(std::size_t(width * height * bands));
    for (double& value : values) {
        value = largest > 1.0 ? std::round(distribution(random)) : distribution(random);
    }
    return values;
}

Picture PictureOf(const Values& values, int width, int height, int bands, VipsBandFormat format)
{
    return Picture::new_from_memory(const_cast<double*>(values.data()), values.size() * sizeof(double), width, height,
                                    bands, VIPS_FORMAT_DOUBLE)
        .cast(format)
        .copy_memory();
}

Values ExactValuesOf(const Picture& picture)
{
    std::size_t size = 0;
    auto* const memory = static_cast<double*>(picture.cast(VIPS_FORMAT_DOUBLE).write_to_memory(&size));
    Values values(memory, memory + size / sizeof(double));
    g_free(memory);
    return values;
}
