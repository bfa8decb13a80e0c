// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The line of the server's log that says how many results an update leaves as they are. A host reads in the journal
/// which ones.
namespace BatchJob::UnchangedLine {

inline QString End()
{
    return QStringLiteral(" results need not be made again.");
}

inline QString Of(int count)
{
    return QString::number(count) + End();
}

inline bool Is(const QString& text)
{
    return text.endsWith(End());
}

} // namespace BatchJob::UnchangedLine
