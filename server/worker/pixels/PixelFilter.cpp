// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PixelFilter.h"

namespace BatchWorker {

namespace {

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
    // The copy owns its values; `table` is destroyed here.
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

Picture MapValues(const Picture& picture, const ValueFunction& function)
{
    return MapByTable(picture, std::vector<ValueFunction>(static_cast<size_t>(ColourBands(picture)), function));
}

Picture MapValues(const Picture& picture, const std::array<ValueFunction, 3>& functions)
{
    return MapByTable(picture, {functions.begin(), functions.end()});
}

} // namespace BatchWorker
