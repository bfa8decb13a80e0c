// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Wildcard.h"

#include "job/values/Phrase.h"

#include "RequestError.h"

namespace BatchHost {

namespace {

/// Longer patterns and deeper braces are mistakes, and would take long to read.
constexpr int longestPattern = 4096;
constexpr int deepestBraces = 20;
constexpr int mostAlternatives = 1000;

/// A part of a pattern: `size` characters from `begin`.
struct Span
{
    int begin = 0;
    int size = 0;
};

/// The alternatives in the braces that open at `begin`; empty when they are not closed or have no comma. `size` becomes
/// that of the group with its braces.
QVector<Span> AlternativesAt(const QString& pattern, int begin, int& size)
{
    QVector<Span> spans;
    int depth = 0;
    int start = begin + 1;
    for (int i = begin; i < pattern.size(); ++i) {
        const QChar character = pattern.at(i);
        if (character == QLatin1Char('{')) {
            ++depth;
        } else if (character == QLatin1Char(',') && depth == 1) {
            spans.append({start, i - start});
            start = i + 1;
        } else if (character == QLatin1Char('}') && --depth == 0) {
            spans.append({start, i - start});
            size = i + 1 - begin;
            return spans.size() > 1 ? spans : QVector<Span>();
        }
    }
    return {};
}

/// The number of characters of the set of characters at `begin`; 0 when it is not closed.
int SizeOfSet(const QString& pattern, int begin)
{
    int first = begin + 1;
    if (first < pattern.size() && (pattern.at(first) == QLatin1Char('!') || pattern.at(first) == QLatin1Char('^'))) {
        ++first;
    }
    const int end = pattern.indexOf(QLatin1Char(']'), first + 1); // A bracket that comes first is one of the set.
    return end < 0 ? 0 : end + 1 - begin;
}

QString SetExpression(QString set)
{
    set = set.mid(1, set.size() - 2);
    const bool isNegated = set.startsWith(QLatin1Char('!')) || set.startsWith(QLatin1Char('^'));
    if (isNegated) {
        set.remove(0, 1);
    }
    for (const char character : {'\\', '[', ']', '^'}) {
        set.replace(QLatin1Char(character), QLatin1Char('\\') + QString(QLatin1Char(character)));
    }
    return QStringLiteral("(?!/)[%1%2]").arg(isNegated ? QStringLiteral("^") : QString(), set);
}

/// Reads a pattern from front to back and writes the regular expression that means the same.
class ExpressionWriter
{
public:
    bool hasWildcards = false;

    QString Of(const QString& pattern, int depth = 0)
    {
        if (depth > deepestBraces) {
            throw RequestError{BatchJob::Phrase::English("the braces of a wildcard are nested too deeply")};
        }
        QString written;
        for (int i = 0; i < pattern.size();) {
            i += Next(pattern, i, depth, written);
        }
        return written;
    }

private:
    /// Writes what begins at `i` and returns its size in the pattern.
    int Next(const QString& pattern, int i, int depth, QString& written)
    {
        const QChar character = pattern.at(i);
        int size = 0;
        if (character == QLatin1Char('*')) {
            size = Stars(pattern, i, written);
        } else if (character == QLatin1Char('?')) {
            written += QStringLiteral("[^/]");
            size = 1;
        } else if (character == QLatin1Char('[') && (size = SizeOfSet(pattern, i)) > 0) {
            written += SetExpression(pattern.mid(i, size));
        } else if (character == QLatin1Char('{') && Braces(pattern, i, depth, written, size)) {
            // Braces() has written it.
        } else {
            written += QRegularExpression::escape(QString(character));
            return 1;
        }
        hasWildcards = true;
        return size;
    }

    static int Stars(const QString& pattern, int i, QString& written)
    {
        int end = i;
        while (end < pattern.size() && pattern.at(end) == QLatin1Char('*')) {
            ++end;
        }
        const bool isWhole = end - i > 1 && (i == 0 || pattern.at(i - 1) == QLatin1Char('/'));
        if (!isWhole || (end < pattern.size() && pattern.at(end) != QLatin1Char('/'))) {
            written += QStringLiteral("[^/]*");
            return end - i;
        }
        if (end == pattern.size()) {
            written += QStringLiteral(".*");
            return end - i;
        }
        const QString folders = QStringLiteral("(?:[^/]+/)*");
        if (!written.endsWith(folders)) {
            written += folders;
        }
        return end + 1 - i;
    }

    bool Braces(const QString& pattern, int i, int depth, QString& written, int& size)
    {
        const QVector<Span> spans = AlternativesAt(pattern, i, size);
        QStringList alternatives;
        for (const Span& span : spans) {
            alternatives.append(Of(pattern.mid(span.begin, span.size), depth + 1));
        }
        if (!spans.isEmpty()) {
            written += QStringLiteral("(?:%1)").arg(alternatives.join(QLatin1Char('|')));
        }
        return !spans.isEmpty();
    }
};

void CheckLength(const QString& pattern)
{
    if (pattern.size() > longestPattern) {
        throw RequestError{BatchJob::Phrase::English("a wildcard is longer than %1 characters: %2...")
                               .arg(longestPattern)
                               .arg(pattern.left(60))};
    }
}

} // namespace

Wildcard::Wildcard(const QString& pattern)
    : isOfPath(pattern.contains(QLatin1Char('/')))
{
    CheckLength(pattern);
    expression =
        QRegularExpression(QRegularExpression::anchoredPattern(ExpressionWriter().Of(pattern)),
                           QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    if (!expression.isValid()) {
        throw RequestError{
            BatchJob::Phrase::English("the wildcard \"%1\" is invalid: %2").arg(pattern, expression.errorString())};
    }
}

bool Wildcard::IsPattern(const QString& text)
{
    if (text.size() > longestPattern) {
        return false; // A path of that length does not exist either.
    }
    ExpressionWriter writer;
    writer.Of(text);
    return writer.hasWildcards;
}

QStringList Wildcard::Alternatives(const QString& pattern)
{
    CheckLength(pattern);
    QStringList done;
    QStringList open{pattern};
    while (!open.isEmpty()) {
        const QString next = open.takeFirst();
        int size = 0;
        QVector<Span> spans;
        int begin = next.indexOf(QLatin1Char('{'));
        while (begin >= 0 && (spans = AlternativesAt(next, begin, size)).isEmpty()) {
            begin = next.indexOf(QLatin1Char('{'), begin + 1);
        }
        if (begin < 0) {
            done.append(next);
        }
        for (int i = 0; i < spans.size(); ++i) {
            open.insert(i, next.left(begin) + next.mid(spans.at(i).begin, spans.at(i).size) + next.mid(begin + size));
        }
        if (done.size() + open.size() > mostAlternatives) {
            throw RequestError{BatchJob::Phrase::English("the braces in \"%1\" stand for more than %2 names")
                                   .arg(pattern, QString::number(mostAlternatives))};
        }
    }
    return done;
}

} // namespace BatchHost
