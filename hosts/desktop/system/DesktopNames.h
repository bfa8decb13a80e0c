// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchDesktop {

/// The program's names for the desktop: its desktop file, its symbol, and its name for people, which is not translated.
inline const QString desktopId = QStringLiteral("velkora-batch-desktop");
inline const QString applicationTitle = QStringLiteral("Velkora Batch");

} // namespace BatchDesktop
