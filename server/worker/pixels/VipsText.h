// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vips/vips8>

namespace BatchWorker {

/// What the library says went wrong, on one line and not longer than 500 characters. Empties its buffer of messages.
QString TextOf(const vips::VError& problem);

/// Whether the library, or one behind it, had no memory.
bool IsOutOfMemory(const QString& text);

} // namespace BatchWorker
