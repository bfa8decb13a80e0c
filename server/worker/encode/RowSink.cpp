// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RowSink.h"

namespace BatchWorker {

namespace {

struct Sink
{
    const std::function<void(const std::uint8_t* samples)>& take;
    int next = 0;
};

// `area` is a part of `region`, as wide as the picture.
int TakeRows(VipsRegion* region, VipsRect* area, void* client)
{
    auto& sink = *static_cast<Sink*>(client);
    if (area->top != sink.next) {
        vips_error("worker", "rows came out of order");
        return -1;
    }
    try {
        for (; sink.next < VIPS_RECT_BOTTOM(area); ++sink.next) {
            sink.take(VIPS_REGION_ADDR(region, 0, sink.next));
        }
    } catch (const vips::VError&) {
        return -1; // Its text is where the library keeps them.
    }
    return 0;
}

int TakeRegion(VipsRegion* region, void*, void*, void* client, gboolean*)
{
    return TakeRows(region, &region->valid, client);
}

} // namespace

void SinkRows(const Picture& picture, const std::function<void(const std::uint8_t* samples)>& take)
{
    constexpr int rowsAtOnce = 32;
    VipsImage* const image = picture.get_image();
    Sink sink{take};
    // A whole row of what is turned by an angle needs a large part of the source. Such pictures are made in squares,
    // which the library puts together.
    const bool isMadeInSquares = image->dhint == VIPS_DEMAND_STYLE_SMALLTILE;
    const int result =
        isMadeInSquares ? vips_sink_disc(image, TakeRows, &sink)
                        : vips_sink_tile(image, image->Xsize, rowsAtOnce, nullptr, TakeRegion, nullptr, nullptr, &sink);
    if (result != 0) {
        throw vips::VError();
    }
}

} // namespace BatchWorker
