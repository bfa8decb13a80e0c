// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifColours.h"

#include "HeifFile.h"

#include <memory>

namespace BatchWorker {

namespace {

using Handle = std::unique_ptr<const heif_image_handle, decltype(&heif_image_handle_release)>;
using Numbers = std::unique_ptr<heif_color_profile_nclx, decltype(&heif_nclx_color_profile_free)>;

bool IsDone(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

} // namespace

FileColours ReadHeifColours(const QString& path)
{
    const HeifFile file(path);
    heif_image_handle* main = nullptr;
    if (!file.IsRead() || !IsDone(heif_context_get_primary_image_handle(file.Get(), &main))) {
        return {}; // the library that reads the pixels says what is wrong
    }
    const Handle handle(main, heif_image_handle_release);
    if (heif_image_handle_get_color_profile_type(main) != heif_color_profile_type_nclx) {
        return {};
    }
    heif_color_profile_nclx* nclx = nullptr;
    if (!IsDone(heif_image_handle_get_nclx_color_profile(main, &nclx))) {
        FileColours unknown;
        unknown.isUnusable = true;
        return unknown;
    }
    const Numbers numbers(nclx, heif_nclx_color_profile_free);
    return ColoursOf({int(nclx->color_primaries), int(nclx->transfer_characteristics)});
}

} // namespace BatchWorker
