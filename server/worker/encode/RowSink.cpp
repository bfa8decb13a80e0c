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

int TakeArea(VipsRegion* region, void*, void*, void* client, gboolean*)
{
    auto& sink = *static_cast<Sink*>(client);
    const VipsRect& area = region->valid;
    if (area.top != sink.next) {
        vips_error("worker", "rows came out of order");
        return -1;
    }
    try {
        for (; sink.next < VIPS_RECT_BOTTOM(&area); ++sink.next) {
            sink.take(VIPS_REGION_ADDR(region, 0, sink.next));
        }
    } catch (const vips::VError&) {
        return -1; // Its text is where the library keeps them.
    }
    return 0;
}

} // namespace

void SinkRows(const Picture& picture, const std::function<void(const std::uint8_t* samples)>& take)
{
    constexpr int rowsAtOnce = 32;
    Sink sink{take};
    if (vips_sink_tile(picture.get_image(), picture.width(), rowsAtOnce, nullptr, TakeArea, nullptr, nullptr, &sink) !=
        0) {
        throw vips::VError();
    }
}

} // namespace BatchWorker
