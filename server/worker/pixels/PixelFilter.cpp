#include "PixelFilter.h"

#include <memory>

namespace BatchWorker {

namespace {

struct AreaFilter
{
    std::vector<VipsImage*> inputs; ///< null behind the last, as the library wants it
    int margin = 0;
    AreaFunction function;
};

int FillArea(VipsRegion* output, void* sequence, void*, void* client, gboolean*)
{
    auto* const inputs = static_cast<VipsRegion**>(sequence);
    const auto* const filter = static_cast<const AreaFilter*>(client);
    VipsRect area = output->valid;
    area.width += 2 * filter->margin;
    area.height += 2 * filter->margin;
    for (VipsRegion** input = inputs; *input; ++input) {
        if (vips_region_prepare(*input, &area)) {
            return -1;
        }
    }
    filter->function(inputs, output);
    return 0;
}

void DeleteFilter(void* filter)
{
    delete static_cast<AreaFilter*>(filter);
}

// One table for all channels would be read faster, but alpha has to stay.
template<typename Sample>
Picture TableOf(const std::vector<ValueFunction>& functions, int bands, int entries)
{
    std::vector<Sample> table;
    table.reserve(static_cast<size_t>(entries) * static_cast<size_t>(bands));
    const double largest = entries - 1;
    for (int entry = 0; entry < entries; ++entry) {
        for (const ValueFunction& function : functions) {
            table.push_back(SampleOf<Sample>(function(entry / largest), largest));
        }
        if (bands > static_cast<int>(functions.size())) {
            table.push_back(static_cast<Sample>(entry));
        }
    }
    const Picture wrapped = Picture::new_from_memory(table.data(), table.size() * sizeof(Sample), entries, 1, bands,
                                                     sizeof(Sample) == 1 ? VIPS_FORMAT_UCHAR : VIPS_FORMAT_USHORT);
    // The copy owns its values; `table` ends here.
    const Picture own = Picture::new_memory();
    wrapped.write(own);
    return own;
}

Picture MapByTable(const Picture& picture, const std::vector<ValueFunction>& functions)
{
    const Picture table = HasSixteenBits(picture) ? TableOf<std::uint16_t>(functions, picture.bands(), 65'536)
                                                  : TableOf<std::uint8_t>(functions, picture.bands(), 256);
    return picture.maplut(table).copy(Picture::option()->set("interpretation", picture.interpretation()));
}

} // namespace

Picture FilterAreas(const std::vector<Picture>& inputs, int margin, AreaFunction function)
{
    const Picture output = Picture(vips_image_new());
    auto filter = std::make_unique<AreaFilter>();
    for (const Picture& input : inputs) {
        filter->inputs.push_back(input.get_image());
        // The output reads from its inputs as long as it lives.
        g_object_ref(input.get_image());
        vips_object_local(output.get_image(), input.get_image());
    }
    filter->inputs.push_back(nullptr);
    filter->margin = margin;
    filter->function = std::move(function);

    AreaFilter* const owned = filter.release();
    g_object_set_data_full(G_OBJECT(output.get_image()), "area-filter", owned, DeleteFilter);
    if (vips_image_pipeline_array(output.get_image(),
                                  margin > 0 ? VIPS_DEMAND_STYLE_SMALLTILE : VIPS_DEMAND_STYLE_THINSTRIP,
                                  owned->inputs.data())) {
        throw vips::VError();
    }
    output.get_image()->Xsize -= 2 * margin;
    output.get_image()->Ysize -= 2 * margin;
    if (vips_image_generate(output.get_image(), vips_start_many, FillArea, vips_stop_many, owned->inputs.data(),
                            owned)) {
        throw vips::VError();
    }
    return output;
}

int ColourBands(const Picture& picture)
{
    return picture.bands() < 3 ? 1 : 3;
}

double LargestValue(const Picture& picture)
{
    return HasSixteenBits(picture) ? 65535.0 : 255.0;
}

Picture MapValues(const Picture& picture, const ValueFunction& function)
{
    return MapByTable(picture, std::vector<ValueFunction>(static_cast<size_t>(ColourBands(picture)), function));
}

Picture MapValues(const Picture& picture, const std::array<ValueFunction, 3>& functions)
{
    return MapByTable(picture, {functions.begin(), functions.end()});
}

} // namespace BatchWorker
