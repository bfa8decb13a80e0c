// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// Removes the EXIF block, which the encoder always writes, from the WebP file `fileName`. Returns whether the file has
/// none now.
bool RemoveExifFromWebp(const QString& fileName);

} // namespace BatchWorker
