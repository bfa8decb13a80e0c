// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Catalogue.h"

#include <QDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace BatchHost {

namespace {

constexpr int longestText = 10'000;

/// Contexts in front of a text. A long text of a library, with many colons, is not worth the time.
constexpr int mostHeads = 8;

/// Placeholders of QString::arg(): '%' and a digit. Calls `onLiteral` and `onPlace` in their order; the last call is
/// one of a literal, which may be empty.
template<typename OnLiteral, typename OnPlace>
void Split(const QString& text, const OnLiteral& onLiteral, const OnPlace& onPlace)
{
    int start = 0;
    for (int i = 0; i + 1 < text.size(); ++i) {
        const int number = text.at(i + 1).unicode() - '0';
        if (text.at(i) == QLatin1Char('%') && number >= 1 && number <= 9) {
            onLiteral(text.mid(start, i - start));
            onPlace(number);
            start = i + 2;
            ++i;
        }
    }
    onLiteral(text.mid(start));
}

const QString& ListSeparator()
{
    static const QString separator = QStringLiteral("; ");
    return separator;
}

const QString& HeadEnd()
{
    static const QString end = QStringLiteral(": ");
    return end;
}

} // namespace

bool Catalogue::Add(QIODevice& source)
{
    QXmlStreamReader xml(&source);
    QString context;
    QString english;
    bool isCatalogue = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("TS")) {
            isCatalogue = true;
        } else if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            english = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation") &&
                   !xml.attributes().hasAttribute(QStringLiteral("type"))) {
            AddMessage(context, english, xml.readElementText());
        }
    }
    std::stable_sort(patterns.begin(), patterns.end(),
                     [](const Pattern& a, const Pattern& b) { return a.Length() > b.Length(); });
    return isCatalogue && !xml.hasError();
}

void Catalogue::AddMessage(const QString& context, const QString& source, const QString& translation)
{
    if (translation.isEmpty()) {
        return;
    }
    texts.insert(source, translation);
    if (context == QLatin1String("BatchJob::Phrase")) {
        const Pattern pattern = PatternOf(source, translation);
        if (!pattern.numbers.isEmpty()) {
            patterns.append(pattern);
        }
    }
}

Catalogue::Pattern Catalogue::PatternOf(const QString& source, const QString& translation)
{
    Pattern pattern;
    pattern.translation = translation;
    Split(
        source, [&pattern](const QString& literal) { pattern.literals.append(literal); },
        [&pattern](int number) { pattern.numbers.append(number); });
    return pattern;
}

int Catalogue::Pattern::Length() const
{
    int length = 0;
    for (const QString& literal : literals) {
        length += literal.size();
    }
    return length;
}

bool Catalogue::Pattern::IsBetween(int argument, char before, char after) const
{
    return literals.at(argument).endsWith(QLatin1Char(before)) &&
           literals.at(argument + 1).startsWith(QLatin1Char(after));
}

QString Catalogue::Exact(const QString& english) const
{
    return texts.value(english, english);
}

QString Catalogue::Filled(const QString& english) const
{
    // The parts of a text are translated by recursion.
    QString found;
    if (english.size() > longestText) {
        return english;
    }
    if (FindWhole(english, found) || FindList(english, found)) {
        return found;
    }
    // "HEAD: TEXT", where TEXT is known.
    int heads = 0;
    for (int end = english.indexOf(HeadEnd()); end >= 0 && heads < mostHeads;
         end = english.indexOf(HeadEnd(), end + 1), ++heads) {
        const QString text = english.mid(end + HeadEnd().size());
        if (text.contains(QLatin1Char(' ')) && (FindWhole(text, found) || FindList(text, found))) {
            return Argument(english.left(end)) + HeadEnd() + found;
        }
    }
    const QStringList parts = english.split(ListSeparator());
    return parts.size() > 1 ? Argument(parts.first()) + Rest(parts, 1) : english;
}

bool Catalogue::FindWhole(const QString& english, QString& found) const
{
    const auto text = texts.constFind(english);
    if (text != texts.constEnd()) {
        found = *text;
        return true;
    }
    // The library's descriptions of errors are sentences; as reasons they lose their full stops.
    const auto sentence = texts.constFind(english + QLatin1Char('.'));
    if (sentence != texts.constEnd()) {
        found = sentence->chopped(1);
        return true;
    }
    QStringList arguments;
    const auto pattern = std::find_if(patterns.begin(), patterns.end(),
                                      [&](const Pattern& candidate) { return Match(candidate, english, arguments); });
    if (pattern == patterns.end()) {
        return false;
    }
    found = FilledIn(*pattern, arguments);
    return true;
}

/// No argument is empty, and each is as short as the text after it allows; the last one takes the rest.
bool Catalogue::Match(const Pattern& pattern, const QString& text, QStringList& arguments)
{
    const QString& last = pattern.literals.last();
    if (!text.startsWith(pattern.literals.first()) || !text.endsWith(last)) {
        return false;
    }
    const int count = pattern.numbers.size();
    const int end = text.size() - last.size();
    int start = pattern.literals.first().size();
    arguments.clear();
    for (int i = 0; i < count; ++i) {
        const int next = i + 1 < count ? text.indexOf(pattern.literals.at(i + 1), start + 1) : end;
        if (next <= start || next > end) {
            return false;
        }
        arguments.append(text.mid(start, next - start));
        start = next + pattern.literals.at(i + 1).size();
    }
    return true;
}

QString Catalogue::FilledIn(const Pattern& pattern, const QStringList& arguments) const
{
    QHash<int, QString> values;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        // Units are words in parentheses.
        values.insert(pattern.numbers.at(i), pattern.IsBetween(i, '"', '"')   ? argument
                                             : pattern.IsBetween(i, '(', ')') ? Filled(argument)
                                                                              : Argument(argument));
    }
    QString text;
    Split(
        pattern.translation, [&text](const QString& literal) { text += literal; },
        [&](int number) { text += values.value(number); });
    return text;
}

/// A path is never a text, whatever its file is called, and a single word may be one of an option.
QString Catalogue::Argument(const QString& text) const
{
    return QDir::isAbsolutePath(text) || !text.contains(QLatin1Char(' ')) ? text : Filled(text);
}

/// A list whose beginning is known.
bool Catalogue::FindList(const QString& english, QString& found) const
{
    const QStringList parts = english.split(ListSeparator());
    const int count = parts.size() > 1 ? FindPart(parts, 0, QString(), found) : 0;
    if (count > 0) {
        found += Rest(parts, count);
    }
    return count > 0;
}

/// How many of `parts`, from `first` on, are one known text behind `start`; 0 for none.
int Catalogue::FindPart(const QStringList& parts, int first, const QString& start, QString& found) const
{
    // Texts have a separator of their own at most twice.
    constexpr int longest = 3;
    for (int count = std::min(longest, parts.size() - first); count > 0; --count) {
        if (FindWhole(start + QStringList(parts.mid(first, count)).join(ListSeparator()), found)) {
            return count;
        }
    }
    return 0;
}

/// The parts of a list from `first` on; those that are known, in this language. A text may be made for its place behind
/// another: "; TEXT".
QString Catalogue::Rest(const QStringList& parts, int first) const
{
    QString text;
    while (first < parts.size()) {
        QString found;
        if (const int count = FindPart(parts, first, ListSeparator(), found)) {
            text += found;
            first += count;
        } else if (const int plain = FindPart(parts, first, QString(), found)) {
            text += ListSeparator() + found;
            first += plain;
        } else {
            text += ListSeparator() + Argument(parts.at(first));
            ++first;
        }
    }
    return text;
}

} // namespace BatchHost
