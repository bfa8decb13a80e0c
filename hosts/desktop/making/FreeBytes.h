// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchDesktop {

/// What the user may still write below `folder`, which exists, in bytes; -1 where the system does not tell.
qint64 FreeBytes(const QString& folder);

} // namespace BatchDesktop
