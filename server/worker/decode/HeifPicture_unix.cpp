// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifPicture.h"

#include "LibraryLoader.h"

#include "server/worker/pixels/FileCalls.h"

namespace BatchWorker {

namespace {

// The library moves values of 10 and 12 bits to the upper end of 16 bits, which leaves white short of the largest
// value.
Picture WithWholeRange(const Picture& picture)
{
    constexpr const char* bitsOfHeif = "heif-bitdepth";
    const bool isDeep = picture.format() == VIPS_FORMAT_USHORT && picture.get_typeof(bitsOfHeif) != 0;
    return isDeep ? picture | (picture >> picture.get_int(bitsOfHeif)) : picture;
}

} // namespace

Picture ReadHeif(int descriptor, int shrink, const BatchProtocol::ServerLimits&, BatchJob::Warnings&)
{
    return WithWholeRange(LoadWithLibrary("heifload_source", SourceOf(descriptor), LoaderShrink::None, shrink));
}

} // namespace BatchWorker
