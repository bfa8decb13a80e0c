// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PointPass.h"

#include "GeneratedPicture.h"
#include "PixelForms.h"
#include "PlanarRows.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace BatchWorker {

namespace {

constexpr const char* passName = "point-pass";

/// What a picture was made by; it comes along with the picture.
struct PointPass
{
    Picture source;
    std::vector<PointOperation> operations; // no tables directly after tables
};

void Append(std::vector<PointOperation>& operations, const PointOperation& operation)
{
    auto* const last = operations.empty() ? nullptr : std::get_if<ValueTables>(&operations.back());
    const auto* const tables = std::get_if<ValueTables>(&operation);
    if (last && tables) {
        *last = last->Then(*tables);
    } else {
        operations.push_back(operation);
    }
}

PointPass PassOf(const Picture& picture)
{
    const auto* const pass = static_cast<const PointPass*>(g_object_get_data(G_OBJECT(picture.get_image()), passName));
    return pass ? *pass : PointPass{picture, {}};
}

void Apply(const PlanarOperation& operation, const PlanarPixels<std::uint8_t>& pixels)
{
    operation.ofBytes(pixels);
}

void Apply(const PlanarOperation& operation, const PlanarPixels<std::uint16_t>& pixels)
{
    operation.ofWords(pixels);
}

template<typename Sample>
void Apply(const ValueTables& tables, const PlanarPixels<Sample>& pixels)
{
    tables.Apply(pixels);
}

/// Pixels from `in` to `out`, at most pixelsAtOnce from (x, y) on.
template<typename Sample>
void FillPixels(const Sample* in, Sample* out, int bands, PlanarPixels<Sample> pixels,
                const std::vector<PointOperation>& operations)
{
    alignas(64) std::array<std::array<Sample, pixelsAtOnce>, 3> buffer;
    pixels.channels = bands < 3 ? 1 : 3;
    if (bands == 1) {
        std::copy_n(in, pixels.count, out);
        pixels.planes = {out};
    } else {
        pixels.planes = {buffer[0].data(), buffer[1].data(), buffer[2].data()};
        SplitColours(in, bands, pixels);
    }
    for (const PointOperation& operation : operations) {
        std::visit([&pixels](const auto& one) { Apply(one, pixels); }, operation);
    }
    if (bands > 1) {
        JoinColours(pixels, in, bands, out);
    }
}

template<typename Sample>
void FillLines(VipsRegion* target, VipsRegion* source, const std::vector<PointOperation>& operations)
{
    const VipsRect area = target->valid;
    const int bands = target->im->Bands;
    const auto* const onlyTables = operations.size() == 1 ? std::get_if<ValueTables>(&operations.front()) : nullptr;
    for (int y = area.top; y < area.top + area.height; ++y) {
        const auto* in = PixelAt<const Sample>(source, area.left, y);
        auto* out = PixelAt<Sample>(target, area.left, y);
        if (onlyTables) {
            onlyTables->Map(in, out, bands, area.width);
            continue;
        }
        for (int done = 0; done < area.width; done += pixelsAtOnce) {
            PlanarPixels<Sample> pixels;
            pixels.count = std::min(pixelsAtOnce, area.width - done);
            pixels.x = area.left + done;
            pixels.y = y;
            FillPixels(in, out, bands, pixels, operations);
            in += std::ptrdiff_t(pixelsAtOnce) * bands;
            out += std::ptrdiff_t(pixelsAtOnce) * bands;
        }
    }
}

void DeletePass(gpointer pass)
{
    delete static_cast<PointPass*>(pass);
}

} // namespace

Picture WithOperation(const Picture& picture, const PointOperation& operation)
{
    auto pass = std::make_unique<PointPass>(PassOf(picture));
    Append(pass->operations, operation);
    const bool isDeep = HasSixteenBits(picture);
    const auto fill = [operations = pass->operations, isDeep](VipsRegion* target,
                                                              const std::vector<VipsRegion*>& sources) {
        if (isDeep) {
            FillLines<std::uint16_t>(target, sources[0], operations);
        } else {
            FillLines<std::uint8_t>(target, sources[0], operations);
        }
    };
    const Picture result = GeneratePicture(ShapeOf(picture), {pass->source}, fill);
    g_object_set_data_full(G_OBJECT(result.get_image()), passName, pass.release(), DeletePass);
    return result;
}

} // namespace BatchWorker
