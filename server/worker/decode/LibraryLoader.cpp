// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LibraryLoader.h"

namespace BatchWorker {

Picture LoadWithLibrary(const char* operation, const vips::VSource& source, LoaderShrink shrink, int factor)
{
    vips::VOption* options = Picture::option()
                                 ->set("source", source)
                                 ->set("access", VIPS_ACCESS_SEQUENTIAL)
                                 ->set("fail_on", VIPS_FAIL_ON_ERROR);
    if (factor > 1 && shrink == LoaderShrink::ByFactor) {
        options->set("shrink", factor);
    } else if (factor > 1 && shrink == LoaderShrink::ByScale) {
        options->set("scale", 1.0 / factor);
    }
    Picture picture;
    Picture::call(operation, options->set("out", &picture));
    return picture;
}

} // namespace BatchWorker
