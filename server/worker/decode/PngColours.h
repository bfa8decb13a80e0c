// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FileColours.h"

#include <QString>

namespace BatchWorker {

/// What the PNG file at `path` says of its colours, in the order of the standard (W3C, PNG 3rd edition, 4.3): cICP,
/// iCCP, sRGB, gAMA with cHRM. Chunks that are damaged or say nonsense do not count. The library that reads the pixels
/// knows iCCP only, and drops profiles that are slightly out of form.
FileColours ReadPngColours(const QString& path);

} // namespace BatchWorker
