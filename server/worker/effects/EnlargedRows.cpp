// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EnlargedRows.h"

#include "server/worker/pixels/VectorCode.h"

#include <cstddef>
#include <type_traits>

namespace BatchWorker {

namespace {

BATCH_VECTOR_CODE void Interpolate(const float* before, const float* behind, float share, int count, float* values)
{
    for (int i = 0; i < count; ++i) {
        values[i] = before[i] + share * (behind[i] - before[i]);
    }
}

/// Along a row of the copy, from its pixel `place` on.
template<typename Stored>
void EnlargeRow(const Stored* small, PlaceInCopy place, int channels, int count, float* values)
{
    constexpr float unit = std::is_same_v<Stored, float> ? 1.0F : 1.0F / SmallCopy::partsOfByte;
    for (int x = 0; x < count; ++x, place.MoveOn(), values += channels) {
        const Stored* const before = small + place.Before() * channels;
        const float share = place.Share();
        for (int channel = 0; channel < channels; ++channel) {
            const float from = before[channel];
            const float to = before[channel + channels];
            values[channel] = (from + share * (to - from)) * unit;
        }
    }
}

} // namespace

// Rows of an area lie between this many of the copy at most, with two for each block that is one row high.
EnlargedRows::EnlargedRows(std::shared_ptr<const SmallCopy> copy, BlurValues values, bool readsSource)
    : copy(std::move(copy))
    , source(values)
    , readsSource(readsSource)
    , window(rowsAtOnce / this->copy->factor + 3)
{
}

bool EnlargedRows::Take(VipsRegion* from, const VipsRect& area)
{
    region = from;
    left = area.left;
    if (readsSource && vips_region_prepare(from, &area) != 0) {
        return false;
    }
    const auto bytes =
        static_cast<std::size_t>(area.width) * static_cast<std::size_t>(source.Channels()) * sizeof(float);
    const RowWindow::Range missing = window.Hold({PlaceInCopy(area.top, copy->factor).Before(),
                                                  PlaceInCopy(area.top + area.height - 1, copy->factor).Before() + 2},
                                                 {area.left, area.left + area.width, bytes});
    for (int row = missing.first; row < missing.end; ++row) {
        TakeRow(row, area);
    }
    return true;
}

void EnlargedRows::TakeRow(int row, const VipsRect& area)
{
    const int channels = source.Channels();
    const std::size_t first = std::size_t(row) * std::size_t(copy->width * channels);
    const auto enlarge = [&](const auto& values) {
        EnlargeRow(values.data() + first, PlaceInCopy(area.left, copy->factor), channels, area.width,
                   window.Row<float>(row));
    };
    std::visit(enlarge, copy->values);
}

void EnlargedRows::Give(int x, int y, int count, float* values)
{
    const PlaceInCopy place(y, copy->factor);
    const int channels = source.Channels();
    const int offset = (x - left) * channels;
    Interpolate(window.Row<float>(place.Before()) + offset, window.Row<float>(place.Before() + 1) + offset,
                place.Share(), count * channels, values);
}

const VipsPel* EnlargedRows::Samples(int x, int y)
{
    return VIPS_REGION_ADDR(region, x, y);
}

} // namespace BatchWorker
