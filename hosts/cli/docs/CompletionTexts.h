// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandInfo.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// What completions offer, for every shell.
namespace BatchCli {

struct Candidate
{
    QString word;
    QString text; ///< one line
};

/// The beginning of a help text that says what it is about, for one line beside a name.
QString Summary(const QString& help);

/// The commands.
QVector<Candidate> CandidateCommands();

/// The values of an option that takes words, as they are easily typed.
QVector<Candidate> CandidateValues(const OptionInfo& option);

/// The arguments of a command that takes words.
QVector<Candidate> CandidateArguments(const CommandInfo& command);

/// What --format-option takes with a format.
struct FormatCandidates
{
    QStringList names; ///< what chooses the format, lower case; empty: any other format, or none
    QVector<Candidate> options;
};

/// The formats, the one without names last.
QVector<FormatCandidates> CandidateFormatOptions();

/// The words of `candidates`.
QStringList WordsOf(const QVector<Candidate>& candidates);

/// `text` in single quotes, for any of the shells.
QString Quoted(QString text);

const QString formatOption = QStringLiteral("--format-option");

} // namespace BatchCli
