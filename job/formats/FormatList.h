// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// The formats of the catalogue. Tables with one entry for each format are made from these lists, so that a missing
/// entry does not compile. A new format is a line here and, all named after it:
///   - its record in job/formats/<Format>Format.cpp,
///   - its loader in server/worker/decode/Loader.cpp,
///   - if it is written, its encoder in server/worker/encode/<Format>Encoder.cpp (HEIF and AVIF share a file).

// clang-format off

/// In the order in which the catalogue lists them.
#define BATCHJOB_WRITTEN_FORMATS(FORMAT) \
    FORMAT(Jpeg)                         \
    FORMAT(Png)                          \
    FORMAT(Tiff)                         \
    FORMAT(Webp)                         \
    FORMAT(Heif)                         \
    FORMAT(Avif)                         \
    FORMAT(JpegXl)                       \
    FORMAT(Jpeg2000)                     \
    FORMAT(Gif)

#define BATCHJOB_READ_ONLY_FORMATS(FORMAT) \
    FORMAT(Raw)

/// Read-only formats come first: files of cameras may begin like files of a written format, never the other way round.
#define BATCHJOB_FORMATS(FORMAT)       \
    BATCHJOB_READ_ONLY_FORMATS(FORMAT) \
    BATCHJOB_WRITTEN_FORMATS(FORMAT)

// clang-format on
