// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace BatchWorker {

/// How much of its picture a JPEG file without an end marker holds.
struct JpegExtent
{
    enum Kind {
        Whole,
        LacksRows,   ///< there are `percent` of its rows
        LacksDetail, ///< it comes in several scans, not all of which are there
        Unreadable   ///< it has no picture, or none that can be decoded
    };
    Kind kind = Unreadable;
    int percent = 0;
};

/// Decodes the file of `descriptor` to its end, without making pixels. A picture of more than `pixels` is not looked at
/// and counts as whole.
JpegExtent ExtentOfJpeg(int descriptor, qint64 pixels);

} // namespace BatchWorker
