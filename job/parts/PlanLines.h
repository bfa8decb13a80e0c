// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PartPlan.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The lines of a plan that hold its files. `folder` is that of the file in the line before, nothing or empty at the
/// beginning of a part; it becomes that of this file.
namespace BatchJob {

/// Appends the line of `file` to `lines`.
void AppendLine(QByteArray& lines, const PlannedFile& file, std::optional<QString>& folder);

/// The file in `line`. Fields that are missing have their defaults.
PlannedFile FileOfLine(const QByteArray& line, QString& folder);

} // namespace BatchJob
