// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"

#include <QString>

#include <optional>

/// The lines of the server's log that say more about a file than a message does. As in TroubleLine.h, Parse() takes the
/// file that the message names, because a file name may hold anything.
namespace BatchJob {

/// "FILE: warning (KIND): TEXT": a picture is written, but not as its user may expect. The server writes the warnings
/// of a picture right before its MsgFileProcessed.
struct WarningLine
{
    QString file;
    Warning warning;

    QString Text() const;

    /// Nothing when `text` is not the line of a warning about `file`.
    static std::optional<WarningLine> Parse(const QString& text, const QString& file);
};

/// "FILE: detail: TEXT": what a library says of a failure, for those who look for its cause.
struct DetailLine
{
    QString file;
    QString text;

    QString Text() const;
};

} // namespace BatchJob
