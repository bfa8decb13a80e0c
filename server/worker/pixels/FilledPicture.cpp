// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FilledPicture.h"

namespace BatchWorker {

namespace {

struct Maker
{
    Picture source;
    MakeFiller make;
};

struct Sequence
{
    std::unique_ptr<AreaFiller> filler;
    VipsRegion* source;
};

void* Start(VipsImage*, void*, void* client)
{
    const auto* maker = static_cast<const Maker*>(client);
    VipsRegion* const source = vips_region_new(maker->source.get_image());
    return source ? new Sequence{maker->make(), source} : nullptr;
}

int Generate(VipsRegion* target, void* sequence, void*, void*, gboolean*)
{
    const auto* made = static_cast<const Sequence*>(sequence);
    return made->filler->Fill(target, made->source) ? 0 : -1;
}

int Stop(void* sequence, void*, void*)
{
    auto* made = static_cast<Sequence*>(sequence);
    g_object_unref(made->source);
    delete made;
    return 0;
}

void DeleteMaker(gpointer maker)
{
    delete static_cast<Maker*>(maker);
}

} // namespace

Picture FilledPicture(const PictureShape& shape, const Picture& source, VipsDemandStyle style, MakeFiller make)
{
    VipsImage* const image = vips_image_new();
    Picture result(image);
    auto* const maker = new Maker{source, std::move(make)};
    g_object_set_data_full(G_OBJECT(image), "maker", maker, DeleteMaker);
    if (vips_image_pipelinev(image, style, source.get_image(), nullptr) != 0) {
        throw vips::VError();
    }
    vips_image_init_fields(image, shape.width, shape.height, shape.bands, shape.format, VIPS_CODING_NONE,
                           shape.interpretation, image->Xres, image->Yres);
    if (vips_image_generate(image, Start, Generate, Stop, nullptr, maker) != 0) {
        throw vips::VError();
    }
    return result;
}

} // namespace BatchWorker
