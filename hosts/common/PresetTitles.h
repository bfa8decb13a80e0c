// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Phrase.h"

#include <array>

namespace BatchHost {

/// The names of the jobs that come along as presets, for the catalogues. The files of the presets have them, too.
inline constexpr std::array presetTitles{
    BatchJob::Phrase::Marked("Archive: TIFF without loss, with all metadata and the time of the file"),
    BatchJob::Phrase::Marked("Mail: small JPEG of at most 1024 pixels, sRGB, with creator and rights"),
    BatchJob::Phrase::Marked("Print: 15 cm long at 300 dpi, with a white border of 5 mm"),
    BatchJob::Phrase::Marked("Thumbnails: squares of 256 pixels, JPEG without metadata"),
    BatchJob::Phrase::Marked("Web: JPEG of at most 1600 pixels, sRGB, with creator and rights"),
};

} // namespace BatchHost
