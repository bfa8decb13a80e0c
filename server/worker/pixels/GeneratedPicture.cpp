// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GeneratedPicture.h"

#include <memory>

namespace BatchWorker {

namespace {

struct Generator
{
    std::vector<Picture> inputs;
    std::vector<VipsImage*> images; // the inputs as the library wants them: with a null at the end
    FillArea fill;
};

int Generate(VipsRegion* target, void* sequence, void*, void* client, gboolean*)
{
    const auto* generator = static_cast<const Generator*>(client);
    auto** regions = static_cast<VipsRegion**>(sequence);
    if (regions != nullptr && vips_reorder_prepare_many(target->im, regions, &target->valid) != 0) {
        return -1;
    }
    const std::vector<VipsRegion*> inputs(regions, regions + generator->inputs.size());
    generator->fill(target, inputs);
    return 0;
}

void DeleteGenerator(gpointer generator)
{
    delete static_cast<Generator*>(generator);
}

} // namespace

PictureShape ShapeOf(const Picture& picture)
{
    return {picture.width(), picture.height(), picture.bands(), picture.format(), picture.interpretation()};
}

Picture GeneratePicture(const PictureShape& shape, const std::vector<Picture>& inputs, FillArea fill)
{
    auto owned = std::make_unique<Generator>(Generator{inputs, {}, std::move(fill)});
    for (const Picture& input : inputs) {
        owned->images.push_back(input.get_image());
    }
    owned->images.push_back(nullptr);

    VipsImage* image = vips_image_new();
    Picture result(image);
    Generator* generator = owned.release();
    g_object_set_data_full(G_OBJECT(image), "generator", generator, DeleteGenerator);
    const bool hasInputs = !inputs.empty();
    if (vips_image_pipeline_array(image, hasInputs ? VIPS_DEMAND_STYLE_THINSTRIP : VIPS_DEMAND_STYLE_ANY,
                                  generator->images.data()) != 0) {
        throw vips::VError();
    }
    vips_image_init_fields(image, shape.width, shape.height, shape.bands, shape.format, VIPS_CODING_NONE,
                           shape.interpretation, image->Xres, image->Yres);
    if (vips_image_generate(image, hasInputs ? vips_start_many : nullptr, Generate,
                            hasInputs ? vips_stop_many : nullptr, generator->images.data(), generator) != 0) {
        throw vips::VError();
    }
    return result;
}

} // namespace BatchWorker
