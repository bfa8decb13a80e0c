// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifPicture.h"

#include "LibraryLoader.h"

#include "server/worker/pixels/EmbeddedBlock.h"
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

// The library frees the blocks with the picture that it has loaded, although pictures in memory that were copied from
// it still name them.
Picture WithOwnBlocks(const Picture& loaded)
{
    const Picture picture = loaded.copy();
    for (const char* const name : {VIPS_META_ICC_NAME, VIPS_META_EXIF_NAME, VIPS_META_XMP_NAME}) {
        const QByteArray block = BlockOf(loaded, name);
        if (!block.isEmpty()) {
            vips_image_set_blob_copy(picture.get_image(), name, block.constData(), std::size_t(block.size()));
        }
    }
    return picture;
}

} // namespace

Picture ReadHeif(int descriptor, int shrink, const BatchProtocol::ServerLimits&, BatchJob::Warnings&)
{
    const Picture loaded = LoadWithLibrary("heifload_source", SourceOf(descriptor), LoaderShrink::None, shrink);
    return WithWholeRange(WithOwnBlocks(loaded));
}

} // namespace BatchWorker
