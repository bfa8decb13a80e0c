// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RandomAccess.h"

#include "EmbeddedProfile.h"
#include "NamelessFile.h"

#include <atomic>
#include <cerrno>
#include <memory>
#include <unistd.h>

namespace BatchWorker {

namespace {

// How much memory the copies of the current picture have taken, those included that have been freed.
std::atomic<guint64> takenInMemory{0};

// The first copy may be large. Later ones may not: effects that read them need memory too.
bool HasRoomInMemory(guint64 size)
{
    constexpr guint64 largest = guint64(256) << 20;
    constexpr guint64 largestTogether = guint64(96) << 20;
    const guint64 taken = takenInMemory;
    return taken == 0 ? size <= largest : taken + size <= largestTogether;
}

// Called with the lines in their order.
int WriteLines(VipsRegion* region, VipsRect* area, void* descriptor)
{
    const std::size_t lineSize = VIPS_REGION_SIZEOF_LINE(region);
    for (int y = area->top; y < area->top + area->height; ++y) {
        const VipsPel* line = VIPS_REGION_ADDR(region, 0, y);
        std::size_t done = 0;
        while (done < lineSize) {
            const ssize_t count = write(*static_cast<int*>(descriptor), line + done, lineSize - done);
            if (count < 0 && errno != EINTR) {
                vips_error_system(errno, "worker", "the temporary folder has no room");
                return -1;
            }
            done += count > 0 ? std::size_t(count) : 0;
        }
    }
    return 0;
}

Picture OnDisk(const Picture& picture)
{
    auto file = std::make_unique<NamelessFile>();
    int descriptor = file->Descriptor();
    const int pixelSize = int(VIPS_IMAGE_SIZEOF_PEL(picture.get_image()));
    VipsImage* bytes = nullptr;
    if (vips_sink_disc(picture.get_image(), WriteLines, &descriptor) == 0) {
        bytes = file->NewImage(picture.width(), picture.height(), pixelSize);
    }
    if (!bytes) {
        throw vips::VError();
    }
    const auto deleteFile = [](gpointer held) { delete static_cast<NamelessFile*>(held); };
    g_object_set_data_full(G_OBJECT(bytes), "nameless-file", file.release(), deleteFile);
    // Later stages need no other metadata.
    return WithProfile(Picture(bytes).copy(Picture::option()
                                               ->set("bands", picture.bands())
                                               ->set("format", picture.format())
                                               ->set("interpretation", picture.interpretation())
                                               ->set("xres", picture.xres())
                                               ->set("yres", picture.yres())),
                       ProfileOf(picture));
}

} // namespace

Picture WithRandomAccess(const Picture& picture)
{
    const guint64 size = VIPS_IMAGE_SIZEOF_IMAGE(picture.get_image());
    if (!HasRoomInMemory(size)) {
        return OnDisk(picture);
    }
    takenInMemory += size;
    return picture.copy_memory();
}

void BeginMemoryAccount()
{
    takenInMemory = 0;
}

} // namespace BatchWorker
