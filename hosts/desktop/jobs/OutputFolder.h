// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchDesktop {

/// Where results go if nobody has chosen a folder: one of their own among the user's pictures. So they never lie beside
/// originals or in place of them unless somebody wants that.
QString UsualOutputFolder();

/// The folder that `path` of a job or a preset stands for: a relative one begins in `base`, and an empty one is the
/// usual one.
QString CompleteOutputFolder(const QString& path, const QString& base);

} // namespace BatchDesktop
