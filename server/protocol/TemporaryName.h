// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchProtocol {

/// A name for a new temporary file.
QString NewTemporaryName();

/// Whether `name`, without a folder, is that of a temporary file.
bool IsTemporaryName(const QString& name);

} // namespace BatchProtocol
