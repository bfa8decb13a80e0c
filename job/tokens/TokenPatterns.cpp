// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TokenPatterns.h"

#include "job/values/Phrase.h"

#include <QVector>

#include <algorithm>

namespace BatchJob {

namespace {

bool IsLetter(QChar character)
{
    return (character >= QLatin1Char('A') && character <= QLatin1Char('Z')) ||
           (character >= QLatin1Char('a') && character <= QLatin1Char('z'));
}

/// The pattern in runs of one letter and what is between them.
QStringList Runs(const QString& pattern)
{
    QStringList runs;
    for (const QChar character : pattern) {
        const bool continues =
            !runs.isEmpty() && (IsLetter(character) ? runs.last().back() == character : !IsLetter(runs.last().back()));
        if (continues) {
            runs.last().append(character);
        } else {
            runs.append(QString(character));
        }
    }
    return runs;
}

QStringList FieldsOf(TokenArgument kind)
{
    return kind == TokenArgument::DatePattern
               ? QStringList{QStringLiteral("YYYY"), QStringLiteral("YY"), QStringLiteral("MM"), QStringLiteral("DD")}
               : QStringList{QStringLiteral("HH"), QStringLiteral("MM"), QStringLiteral("SS")};
}

bool IsPattern(TokenArgument kind, const QString& pattern)
{
    const QStringList fields = FieldsOf(kind);
    const QStringList runs = Runs(pattern);
    const bool isKnown = std::all_of(runs.begin(), runs.end(), [&fields](const QString& run) {
        return !IsLetter(run.front()) || fields.contains(run);
    });
    return isKnown && std::any_of(runs.begin(), runs.end(), [](const QString& run) { return IsLetter(run.front()); });
}

bool IsDigits(const QString& text)
{
    constexpr int longest = 2;
    const bool isNumber =
        !text.isEmpty() && text.size() <= longest &&
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    return isNumber && text.toInt() >= 1 && text.toInt() <= mostTokenDigits;
}

QString Padded(int number, int digits)
{
    return QString::number(number).rightJustified(digits, QLatin1Char('0'));
}

QString FieldText(TokenArgument kind, const QString& field, const QDateTime& time)
{
    constexpr int longYear = 4;
    constexpr int century = 100;
    const bool isDate = kind == TokenArgument::DatePattern;
    switch (field.front().toLatin1()) {
    case 'Y':
        return field.size() == longYear ? Padded(time.date().year(), longYear)
                                        : Padded(time.date().year() % century, 2);
    case 'M':
        return Padded(isDate ? time.date().month() : time.time().minute(), 2);
    case 'D':
        return Padded(time.date().day(), 2);
    case 'H':
        return Padded(time.time().hour(), 2);
    case 'S':
        return Padded(time.time().second(), 2);
    default:
        return field;
    }
}

} // namespace

QString ArgumentProblem(TokenArgument kind, const QString& argument)
{
    switch (kind) {
    case TokenArgument::None:
        return Phrase::English("it takes nothing after a colon");
    case TokenArgument::Digits:
        return IsDigits(argument)
                   ? QString()
                   : Phrase::English("the number of digits must be a whole number from 1 to %1").arg(mostTokenDigits);
    case TokenArgument::DatePattern:
        return IsPattern(kind, argument)
                   ? QString()
                   : Phrase::English("a date is made of YYYY, YY, MM and DD, with no other letters between them");
    case TokenArgument::TimePattern:
        return IsPattern(kind, argument)
                   ? QString()
                   : Phrase::English("a time is made of HH, MM and SS, with no other letters between them");
    }
    return {};
}

QString TimeInPattern(TokenArgument kind, const QString& pattern, const QDateTime& time)
{
    if (!time.isValid()) {
        return {};
    }
    const QString standard = kind == TokenArgument::DatePattern ? QStringLiteral("YYYYMMDD") : QStringLiteral("HHMMSS");
    const QStringList runs = Runs(pattern.isEmpty() ? standard : pattern);
    QString text;
    for (const QString& run : runs) {
        text += IsLetter(run.front()) ? FieldText(kind, run, time) : run;
    }
    return text;
}

QString NumberWithDigits(qint64 number, const QString& argument)
{
    return QString::number(number).rightJustified(argument.toInt(), QLatin1Char('0'));
}

} // namespace BatchJob
