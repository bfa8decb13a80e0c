// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace BatchHost {

/// A pattern of names, in any letter case: "*" and "?" stand for characters of one name, "[a-f]" and "[!a-f]" for one
/// of several, or none of them, "**" for any number of folders, "{a,b}" for one of the alternatives. What is not
/// complete, such as an open bracket, stands for itself.
class Wildcard
{
public:
    /// Throws RequestError for a pattern that cannot be used.
    explicit Wildcard(const QString& pattern);

    /// Whether the pattern describes a path rather than a name.
    bool IsOfPath() const { return isOfPath; }

    /// Whether the whole of `text`, a name or a path with "/", matches.
    bool Matches(const QString& text) const { return expression.match(text).hasMatch(); }

    /// Whether `text` contains anything that does not stand for itself.
    static bool IsPattern(const QString& text);

    /// `pattern` once for each combination of its alternatives in braces, in their order. Throws RequestError when
    /// there are too many.
    static QStringList Alternatives(const QString& pattern);

private:
    bool isOfPath = false;
    QRegularExpression expression;
};

} // namespace BatchHost
