// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultTarget.h"

#include "server/worker/pixels/FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace BatchWorker {

ResultTarget::ResultTarget(int descriptor, const AddedBytes& added)
    : target(VIPS_TARGET(vips_target_custom_new()), vips::STEAL)
    , descriptor(descriptor)
    , added(added)
{
    VipsTarget* object = target.get_target();
    const auto write = [](VipsTargetCustom*, const void* data, gint64 length, gpointer self) {
        return static_cast<ResultTarget*>(self)->Write(static_cast<const char*>(data), length);
    };
    const auto read = [](VipsTargetCustom*, void* data, gint64 length, gpointer self) {
        return gint64(::read(static_cast<ResultTarget*>(self)->descriptor, data, size_t(length)));
    };
    const auto seek = [](VipsTargetCustom*, gint64 offset, int whence, gpointer self) {
        return static_cast<ResultTarget*>(self)->Seek(offset, whence);
    };
    using WriteHandler = gint64 (*)(VipsTargetCustom*, const void*, gint64, gpointer);
    using ReadHandler = gint64 (*)(VipsTargetCustom*, void*, gint64, gpointer);
    using SeekHandler = gint64 (*)(VipsTargetCustom*, gint64, int, gpointer);
    g_signal_connect(object, "write", G_CALLBACK(static_cast<WriteHandler>(write)), this);
    g_signal_connect(object, "read", G_CALLBACK(static_cast<ReadHandler>(read)), this);
    g_signal_connect(object, "seek", G_CALLBACK(static_cast<SeekHandler>(seek)), this);
    Write(nullptr, 0);
}

gint64 ResultTarget::Write(const char* data, gint64 length)
{
    if (isAdded) {
        WriteToFile(data, length);
        return length;
    }
    const gint64 before = std::min(length, added.place - done);
    WriteToFile(data, before);
    done += before;
    if (done == added.place) {
        isAdded = true;
        WriteToFile(added.bytes.constData(), added.bytes.size());
        WriteToFile(data + before, length - before);
    }
    return length;
}

// Goes on after a failure: not every encoder survives a target that fails.
void ResultTarget::WriteToFile(const char* data, gint64 length)
{
    for (gint64 written = 0; written < length && problem == 0;) {
        const qint64 now = WriteSome(descriptor, data + written, length - written);
        if (now >= 0) {
            written += now;
        } else if (errno != EINTR) {
            problem = errno;
        }
    }
}

// The library counts from its own first byte.
gint64 ResultTarget::Seek(gint64 offset, int whence)
{
    const gint64 before = added.bytes.size();
    const qint64 place = MoveTo(descriptor, whence == SEEK_SET ? offset + before : offset, whence);
    return place < 0 ? place : place - before;
}

} // namespace BatchWorker
