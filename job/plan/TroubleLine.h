// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Policies.h"

#include "job/values/JobValues.h"

#include <QString>

#include <optional>

/// The lines of the server's log that belong to an error message (MsgError). The server writes each right before its
/// error message; a host reads them back, because the message itself has no text.
///
/// A file name may hold anything, even what looks like the end of a line. So each Parse() takes what the error message
/// says, cuts the known beginning and the known end off, and never searches for a separator.
namespace BatchJob {

/// "FILE: REASON; CONSEQUENCE (POLICY policy)": a file was not written, or a question about it follows.
struct TroubleLine
{
    QString file;
    QString reason;
    Action action = Action::FileSkipped; ///< the consequence: ReportedOnly, FileSkipped or RunStopped
    PolicyKind policy = PolicyKind::Input;

    QString Text() const;

    /// Nothing when `text` is not the line of a trouble with `file` and this consequence.
    static std::optional<TroubleLine> Parse(const QString& text, const QString& file, Action action);
};

/// "FILE: REMARK (POLICY policy)": a result was written, but not as it was planned.
struct ResultLine
{
    QString file;
    QString result;                                  ///< the path of the result; for WrittenInAnotherFormat its format
    Action action = Action::WrittenUnderAnotherName; ///< or ExistingFileOverwritten, or WrittenInAnotherFormat

    QString Text() const;

    /// The line without the file.
    QString Remark() const;

    /// Nothing when `text` is not the line of a result of `file` with this action.
    static std::optional<ResultLine> Parse(const QString& text, const QString& file, Action action);
};

/// "The job is refused: MESSAGE."
struct RefusalLine
{
    QString message;

    QString Text() const;
    static std::optional<RefusalLine> Parse(const QString& text);
};

} // namespace BatchJob
