// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifColours.h"

#include <QFile>

#include <libheif/heif.h>

#include <memory>

namespace BatchWorker {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<const heif_image_handle, decltype(&heif_image_handle_release)>;
using Numbers = std::unique_ptr<heif_color_profile_nclx, decltype(&heif_nclx_color_profile_free)>;

bool IsDone(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

} // namespace

FileColours ReadHeifColours(const QString& path)
{
    const Context context(heif_context_alloc(), heif_context_free);
    heif_image_handle* main = nullptr;
    if (!IsDone(heif_context_read_from_file(context.get(), QFile::encodeName(path).constData(), nullptr)) ||
        !IsDone(heif_context_get_primary_image_handle(context.get(), &main))) {
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
