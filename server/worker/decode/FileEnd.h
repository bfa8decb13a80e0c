// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// Whether the file `path` says that it is longer than it is: its last block of data lies behind its end. Of PNG, of
/// RIFF (WebP) and of files made of boxes (HEIF, AVIF, JPEG 2000, JPEG XL); false for others, which do not say their
/// length. Decoders of these often cannot tell a file that was cut off from a damaged one.
bool IsCutOff(const QString& path);

} // namespace BatchWorker
