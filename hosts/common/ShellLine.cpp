// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ShellLine.h"

#include <QRegularExpression>

namespace BatchHost {

namespace {

QString PosixWord(const QString& argument)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./:=,@+-]+\\z"));
    if (plain.match(argument).hasMatch()) {
        return argument;
    }
    QString quoted = argument;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

/// In quotes for the program, which takes backslashes in front of a quotation mark for escapes.
QString QuotedForProgram(const QString& argument)
{
    QString quoted(QLatin1Char('"'));
    int backslashes = 0;
    for (const QChar character : argument) {
        if (character == QLatin1Char('\\')) {
            ++backslashes;
            continue;
        }
        const bool isMark = character == QLatin1Char('"');
        quoted += QString(isMark ? 2 * backslashes + 1 : backslashes, QLatin1Char('\\')) + character;
        backslashes = 0;
    }
    return quoted + QString(2 * backslashes, QLatin1Char('\\')) + QLatin1Char('"');
}

QString WindowsWord(const QString& argument)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./:=,@+\\\\-]+\\z"));
    static const QRegularExpression special(QStringLiteral("([()%!^\"<>&|])"));
    if (plain.match(argument).hasMatch()) {
        return argument;
    }
    QString word = argument;
    word.replace(QLatin1Char('\n'), QLatin1Char(' ')).remove(QLatin1Char('\r'));
    // The prompt replaces variables even in quotes; with a caret in front of each mark it sees no quotes at all.
    return QuotedForProgram(word).replace(special, QStringLiteral("^\\1"));
}

template<typename Word>
QString Joined(const QStringList& arguments, Word wordOf)
{
    QStringList words;
    for (const QString& argument : arguments) {
        words.append(wordOf(argument));
    }
    return words.join(QLatin1Char(' '));
}

} // namespace

QString PosixShellLine(const QStringList& arguments)
{
    return Joined(arguments, PosixWord);
}

QString WindowsShellLine(const QStringList& arguments)
{
    return Joined(arguments, WindowsWord);
}

} // namespace BatchHost
