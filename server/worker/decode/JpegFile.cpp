// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JpegFile.h"

#include "job/values/Phrase.h"

#include "ByteScanner.h"
#include "JpegTrial.h"
#include "LibraryLoader.h"

#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <unistd.h>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

constexpr int fill = 0xFF;
constexpr int endOfImage = 0xD9;
constexpr int startOfScan = 0xDA;
constexpr std::array<std::uint8_t, 2> endMarker{fill, endOfImage};

qint64 SizeOf(int descriptor)
{
    return std::max<qint64>(SizeOfFile(descriptor), 0);
}

bool IsAlone(int marker)
{
    constexpr int temporary = 0x01;
    constexpr int firstRestart = 0xD0;
    constexpr int startOfImage = 0xD8;
    return marker == 0 || marker == temporary || (marker >= firstRestart && marker <= startOfImage);
}

bool IsFrame(int marker)
{
    constexpr int first = 0xC0;
    constexpr int last = 0xCF;
    constexpr int others[] = {0xC4, 0xC8, 0xCC}; // tables
    return marker >= first && marker <= last &&
           std::find(std::begin(others), std::end(others), marker) == std::end(others);
}

// `bits` is negative at the end of the file. Source of the numbers: ITU-T T.81, table B.1.
void RequireKnownFrame(int marker, int bits)
{
    constexpr int known[] = {0xC0, 0xC1, 0xC2, 0xC9, 0xCA};
    if (std::find(std::begin(known), std::end(known), marker) == std::end(known)) {
        throw UnknownFormat(Phrase::English("it is a lossless or hierarchical JPEG file, which is not supported"));
    }
    if (bits >= 0 && bits != 8) {
        throw UnknownFormat(Phrase::English("it is a JPEG file of %1 bits a channel; only 8 are supported").arg(bits));
    }
}

// Reads marker by marker, and in scans for markers. False when there is no end marker.
bool HasEnd(int descriptor, bool isSurelyThere)
{
    ByteScanner file(descriptor);
    for (int byte = file.Next(); byte >= 0; byte = file.Next()) {
        if (byte != fill) {
            continue;
        }
        int marker = file.Next();
        while (marker == fill) {
            marker = file.Next();
        }
        if (marker == endOfImage || (marker == startOfScan && isSurelyThere)) {
            return true;
        }
        if (marker < 0 || IsAlone(marker)) {
            continue;
        }
        qint64 rest = qint64(file.NextWord()) - 2;
        if (IsFrame(marker)) {
            RequireKnownFrame(marker, file.Next());
            --rest;
        }
        file.Skip(std::max<qint64>(rest, 0));
    }
    return false;
}

bool EndsWithMarker(int descriptor)
{
    std::array<std::uint8_t, 2> last{};
    const qint64 size = SizeOf(descriptor);
    return size >= 2 && ReadAt(descriptor, last.data(), qint64(last.size()), size - 2) == 2 && last == endMarker;
}

/// A file with an end marker behind it.
class CompletedFile
{
public:
    explicit CompletedFile(int source)
        : descriptor(DuplicateOf(source))
        , size(SizeOf(source))
    {
    }
    ~CompletedFile() { close(descriptor); }

    gint64 Read(void* target, gint64 length)
    {
        if (position >= size) {
            const gint64 left = std::clamp<gint64>(size + gint64(endMarker.size()) - position, 0, length);
            std::memcpy(target, &endMarker[endMarker.size() - std::size_t(left)], std::size_t(left));
            position += left;
            return left;
        }
        const qint64 count = ReadAt(descriptor, target, std::min<gint64>(length, size - position), position);
        position += std::max<qint64>(count, 0);
        return count;
    }

    gint64 Seek(gint64 offset, int whence)
    {
        const gint64 start = whence == SEEK_CUR ? position : whence == SEEK_END ? size + gint64(endMarker.size()) : 0;
        position = std::clamp<gint64>(start + offset, 0, size + gint64(endMarker.size()));
        return position;
    }

private:
    Q_DISABLE_COPY(CompletedFile)

    int descriptor;
    gint64 size;
    gint64 position = 0;
};

gint64 ReadCompleted(VipsSourceCustom*, void* target, gint64 length, void* file)
{
    return static_cast<CompletedFile*>(file)->Read(target, length);
}

gint64 SeekCompleted(VipsSourceCustom*, gint64 offset, int whence, void* file)
{
    return static_cast<CompletedFile*>(file)->Seek(offset, whence);
}

vips::VSource Completed(int descriptor)
{
    auto file = std::make_unique<CompletedFile>(descriptor);
    VipsSourceCustom* const source = vips_source_custom_new();
    g_signal_connect(source, "read", G_CALLBACK(ReadCompleted), file.get());
    g_signal_connect(source, "seek", G_CALLBACK(SeekCompleted), file.get());
    const auto deleteFile = [](gpointer held) { delete static_cast<CompletedFile*>(held); };
    g_object_set_data_full(G_OBJECT(source), "completed-file", file.release(), deleteFile);
    return vips::VSource(VIPS_SOURCE(source));
}

void RequireWhole(int descriptor, qint64 pixels)
{
    const JpegExtent extent = ExtentOfJpeg(descriptor, pixels);
    switch (extent.kind) {
    case JpegExtent::Whole:
        return;
    case JpegExtent::LacksRows:
        throw DamagedFile(Phrase::English("the file ends after %1 % of the picture").arg(extent.percent));
    case JpegExtent::LacksDetail:
        throw DamagedFile(Phrase::English("the file ends before all details of the picture"));
    case JpegExtent::Unreadable:
        throw DamagedFile(Phrase::English("the file ends before its picture begins"));
    }
}

} // namespace

Picture ReadJpeg(int descriptor, int shrink, const ServerLimits& limits, Warnings& warnings)
{
    constexpr const char* operation = "jpegload_source";
    if (HasEnd(descriptor, EndsWithMarker(descriptor))) {
        return LoadWithLibrary(operation, SourceOf(descriptor), LoaderShrink::ByFactor, shrink);
    }
    RequireWhole(descriptor, limits.pixels);
    const Warning warning{WarningKind::Incomplete,
                          Phrase::English("the file lacks its last bytes; the picture is whole")};
    if (!warnings.contains(warning)) {
        warnings.append(warning);
    }
    return LoadWithLibrary(operation, Completed(descriptor), LoaderShrink::ByFactor, shrink);
}

} // namespace BatchWorker
