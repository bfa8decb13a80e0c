// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TokenTable.h"
#include "TokenValues.h"

#include <QString>
#include <QVector>

namespace BatchJob {

/// A text with tokens, the one grammar of them: "{word}" or "{word:argument}", "{{" and "}}" for braces. Letter case
/// counts. Safe on any thread.
class TokenText
{
public:
    /// An empty text.
    TokenText() = default;

    explicit TokenText(const QString& text);

    bool IsValid() const { return error.isEmpty(); }

    /// Names the first token that is refused, its place, and what is allowed; empty if the text is valid.
    const QString& Error() const { return error; }

    bool Uses(Token token) const;

    /// Whether what it stands for is known only after a worker has looked at the file.
    bool NeedsPicture() const;

    /// The text with `values` in the place of its tokens. What is not known is empty.
    QString Filled(const TokenValues& values) const;

private:
    struct Piece
    {
        QString text; ///< if there is no token, itself; else the argument
        const TokenRecord* token = nullptr;
    };

    class Reader;

    static QString ValueOf(const Piece& piece, const TokenValues& values);

    QVector<Piece> pieces;
    QString error;
};

} // namespace BatchJob
