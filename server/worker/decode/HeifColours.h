// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FileColours.h"

#include <QString>

namespace BatchWorker {

/// What the HEIF or AVIF file at `path` says of the colours of its main picture by numbers ("nclx"). An ICC profile
/// counts more; with one the result is empty.
FileColours ReadHeifColours(const QString& path);

} // namespace BatchWorker
