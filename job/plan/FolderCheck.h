// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchJob {

/// Why no result can be written into `folder`, which may not exist yet. Empty when nothing speaks against it. Writes
/// nothing.
QString WhyNotWritable(const QString& folder);

} // namespace BatchJob
