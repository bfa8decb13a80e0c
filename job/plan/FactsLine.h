// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/PictureFacts.h"

#include <QString>

#include <optional>

namespace BatchJob {

/// "FILE: facts: from 6000 x 4000 pixels, to 1600 x 1067 pixels, 345678 bytes, quality 85, 1.234 seconds": what is
/// known of a picture that was written, in the server's log. What is not known is left out. The server writes it right
/// before the MsgFileProcessed of the picture. As in TroubleLine.h, Parse() takes the file that the message names.
struct FactsLine
{
    QString file;
    PictureFacts facts;

    /// Empty when nothing is known.
    QString Text() const;

    /// Nothing when `text` is not the line of `file`, or says what no picture can have.
    static std::optional<FactsLine> Parse(const QString& text, const QString& file);
};

} // namespace BatchJob
