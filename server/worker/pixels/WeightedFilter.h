// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

namespace BatchWorker {

/// `picture` after `filter`, a function from picture to picture that mixes neighbouring pixels, in the depth and kind
/// that it had. Alpha is weighed in: pixels that are seen through do not lend their colour to their neighbours.
///
/// The library's whole-number filters have weights of few bits, which is enough for 8 bits a channel only: at 16 bits
/// white would become grey. So those pictures, and pictures with alpha, are filtered in floating point.
template<typename Filter>
Picture FilteredByOpacity(const Picture& picture, const Filter& filter)
{
    const bool isDeep = picture.format() == VIPS_FORMAT_USHORT;
    if (!picture.has_alpha() && !isDeep) {
        return filter(picture);
    }
    const Picture exact = isDeep ? picture.cast(VIPS_FORMAT_FLOAT) : picture;
    const Picture filtered =
        picture.has_alpha() ? Picture(filter(exact.premultiply())).unpremultiply() : Picture(filter(exact));
    return filtered.rint()
        .cast(picture.format())
        .copy(Picture::option()->set("interpretation", picture.interpretation()));
}

} // namespace BatchWorker
