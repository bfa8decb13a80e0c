// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PartPlan.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// The lines of a plan that hold its files.
namespace BatchJob {

/// Appends the line of `file` to `lines`. `folder` is that of the file in the line before, nothing at the beginning of
/// a part; it becomes that of this file.
void AppendLine(QByteArray& lines, const PlannedFile& file, std::optional<QString>& folder);

/// Reads the lines of one part, one after the other.
class PlanLineReader
{
public:
    /// The file in `line`. Fields that are missing have their defaults.
    PlannedFile Read(const QByteArray& line);

private:
    PlannedResult ResultOf(const QJsonObject& object);

    QString folder; ///< of the file before
    QString format; ///< of the result before; most results share it
};

} // namespace BatchJob
