// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RowSink.h"

#include "RowReader.h"

#include <exception>

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

struct Reading
{
    const Picture& picture;
    const std::function<void(const std::uint8_t* samples)>& take;
    std::exception_ptr problem;
};

void* Read(void* client)
{
    auto& reading = *static_cast<Reading*>(client);
    try {
        RowReader(reading.picture).Next(reading.picture.height(), [&](int, const std::uint8_t* samples) {
            reading.take(samples);
        });
    } catch (...) {
        reading.problem = std::current_exception();
    }
    return nullptr;
}

/// On one thread of the library, because it keeps the buffers of its own threads and clears new ones on others.
void ReadOnOneThread(const Picture& picture, const std::function<void(const std::uint8_t* samples)>& take)
{
    Reading reading{picture, take, nullptr};
    GThread* const thread = vips_g_thread_new("rows", Read, &reading);
    if (!thread) {
        throw vips::VError();
    }
    g_thread_join(thread);
    if (reading.problem) {
        std::rethrow_exception(reading.problem);
    }
}

} // namespace

void SinkRows(const Picture& picture, const std::function<void(const std::uint8_t* samples)>& take)
{
    // A whole row of what is turned by an angle needs a large part of the source. Such pictures are made in squares,
    // which the library puts together. For others its threads would only cost time.
    VipsImage* const image = picture.get_image();
    if (image->dhint == VIPS_DEMAND_STYLE_SMALLTILE) {
        Sink sink{take};
        if (vips_sink_disc(image, TakeRows, &sink) != 0) {
            throw vips::VError();
        }
    } else {
        ReadOnOneThread(picture, take);
    }
}

} // namespace BatchWorker
