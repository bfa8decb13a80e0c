// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchHost {

/// Reads a number of bytes such as "500kB", "1.5 MB", "300KiB" or "250000": decimal units, or binary ones with "i".
/// Throws RequestError.
qint64 BytesFromText(const QString& text);

} // namespace BatchHost
