// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// Whether `path` is a DNG file whose directories promise picture data that it does not have: bytes behind its end, or
/// fewer than uncompressed pixels take, or none of the compression that it names. False for other files, and for what
/// cannot be told.
bool LacksDngData(const QString& path);

} // namespace BatchWorker
