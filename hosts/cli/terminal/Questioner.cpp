// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Questioner.h"

#include "Console.h"

#include "hosts/common/Language.h"

using namespace BatchHost;
using namespace BatchJob;

namespace BatchCli {

namespace {

const QString stopWord = QStringLiteral("stop");

/// The possible answers. A beginning that several words share means the first of them.
QStringList AnswerWords(PolicyKind kind)
{
    QStringList words = PolicyWords(kind);
    words.removeAll(QStringLiteral("ask"));
    words.removeAll(stopWord);
    return words << stopWord;
}

} // namespace

std::optional<UserAnswer> ReadAnswer(PolicyKind kind, const QString& line)
{
    const QStringList given = line.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const bool hasAll = given.size() == 2 && QStringLiteral("all").startsWith(given.at(1));
    if (given.isEmpty() || (given.size() > 1 && !hasAll)) {
        return std::nullopt;
    }
    for (const QString& word : AnswerWords(kind)) {
        if (!word.startsWith(given.first())) {
            continue;
        }
        // Some policies have a value for "stop"; with the others the run is cancelled.
        const bool isValue = PolicyWords(kind).contains(word);
        return UserAnswer{isValue ? std::optional(PolicyValue(kind, word)) : std::nullopt, hasAll};
    }
    return std::nullopt;
}

Questioner::Questioner(QObject* parent)
    : QObject(parent)
{
    connect(&reader, &LineReader::Line, this, &Questioner::ReadLine);
    connect(&reader, &LineReader::Ended, this, [this] {
        WriteError(QLatin1Char('\n') +
                   Messages::tr("No more input: this file and all that follow with questions are skipped.") +
                   QLatin1Char('\n'));
        Q_EMIT Answered({safePolicy, true});
    });
}

void Questioner::Ask(PolicyKind newKind, const QString& input, const QString& reason)
{
    kind = newKind;
    WriteErrorLine(QStringLiteral("%1: %2").arg(input, Translated(reason)));
    Prompt();
}

void Questioner::Prompt()
{
    WriteError(QStringLiteral("  ") +
               Messages::tr("%1? (add \"all\" for all that follow)").arg(AnswerWords(kind).join(QStringLiteral(", "))) +
               QLatin1Char(' '));
    reader.Ask();
}

void Questioner::ReadLine(const QString& line)
{
    const std::optional<UserAnswer> answer = ReadAnswer(kind, line);
    if (answer) {
        Q_EMIT Answered(*answer);
    } else {
        Prompt();
    }
}

} // namespace BatchCli
