// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

namespace BatchJob {

/// `time` in ISO 8601 with milliseconds and zone, "2024-05-06T07:08:09.123Z", for files and programs that read them.
/// Empty for an invalid time.
inline QString TimeText(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

/// The time that `text` says in that form; invalid if it says none.
inline QDateTime TimeOfText(const QString& text)
{
    return QDateTime::fromString(text, Qt::ISODateWithMs).toUTC();
}

} // namespace BatchJob
