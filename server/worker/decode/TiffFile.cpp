// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffFile.h"

#include "TiffRows.h"

#include "server/worker/pixels/CarriedFailure.h"
#include "server/worker/pixels/GeneratedPicture.h"

#include <algorithm>
#include <memory>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

int GenerateRows(VipsRegion* target, void*, void* client, void*, gboolean*)
{
    auto* const rows = static_cast<TiffRows*>(client);
    const VipsRect& area = target->valid;
    return ResultOfFilling([rows, target, &area] {
        for (int y = area.top; y < area.top + area.height; ++y) {
            rows->Copy(area.left, y, area.width, PixelAt<std::uint8_t>(target, area.left, y));
        }
    });
}

void DeleteRows(gpointer rows)
{
    delete static_cast<TiffRows*>(rows);
}

void CopyBlock(VipsImage* image, TIFF* file, quint32 tag, const char* name)
{
    quint32 size = 0;
    const void* bytes = nullptr;
    if (TIFFGetField(file, tag, &size, &bytes) == 1 && size > 0 && bytes) {
        vips_image_set_blob_copy(image, name, bytes, size);
    }
}

void CopyMetadata(VipsImage* image, TIFF* file)
{
    CopyBlock(image, file, TIFFTAG_ICCPROFILE, VIPS_META_ICC_NAME);
    CopyBlock(image, file, TIFFTAG_XMLPACKET, VIPS_META_XMP_NAME);
    CopyBlock(image, file, TIFFTAG_PHOTOSHOP, VIPS_META_IPTC_NAME);
    quint16 orientation = ORIENTATION_TOPLEFT;
    TIFFGetFieldDefaulted(file, TIFFTAG_ORIENTATION, &orientation);
    vips_image_set_int(image, VIPS_META_ORIENTATION, orientation);
    vips_image_set_int(image, VIPS_META_SEQUENTIAL, 1);
}

Picture Generated(std::unique_ptr<TiffRows> rows)
{
    const TiffLayout& layout = rows->Layout();
    const TiffSamples& samples = rows->Samples();
    VipsImage* const image = vips_image_new();
    Picture picture(image);
    vips_image_init_fields(image, layout.width, layout.height, samples.Bands(), samples.Format(), VIPS_CODING_NONE,
                           samples.Interpretation(), 1, 1);
    CopyMetadata(image, rows->File());
    if (samples.HasOwnColours()) {
        vips_image_remove(image, VIPS_META_ICC_NAME);
    }
    const int tileHeight = layout.isTiled ? layout.unitHeight : 1;
    TiffRows* const client = rows.release();
    g_object_set_data_full(G_OBJECT(image), "tiff-rows", client, DeleteRows);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_THINSTRIP, nullptr) != 0 ||
        vips_image_generate(image, nullptr, GenerateRows, nullptr, client, nullptr) != 0) {
        throw vips::VError();
    }
    return picture.sequential(Picture::option()->set("tile_height", std::min(tileHeight, layout.height)));
}

} // namespace

Picture ReadTiff(int descriptor, int, const ServerLimits& limits, Warnings& warnings)
{
    // The rest is for the stages behind.
    const qint64 memory = limits.workerMemory / 2;
    auto rows = std::make_unique<TiffRows>(descriptor, memory, warnings);
    const int directories = TiffHandle(descriptor, memory).CountDirectories();
    Picture counted = Generated(std::move(rows)).copy();
    counted.set(VIPS_META_N_PAGES, directories);
    return counted;
}

} // namespace BatchWorker
