// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HelpTexts.h"

#include "CommandLine.h"
#include "Examples.h"
#include "TextLayout.h"

#include "hosts/common/Language.h"
#include "job/values/Phrase.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

/// Longer lines are hard to read, and shorter ones hold no option.
constexpr int fewestColumns = 40;
constexpr int mostColumns = 100;

/// Where texts begin beside names, and below them on a terminal too narrow for two columns.
constexpr int textColumn = 34;
constexpr int narrowTextColumn = 8;
constexpr int fewestColumnsBeside = 76;

int Bounded(int columns)
{
    return std::clamp(columns, fewestColumns, mostColumns);
}

/// "  name" with `help` in a column beside it.
QString Entry(const QString& name, const QString& help, int columns)
{
    const int indent = columns < fewestColumnsBeside ? narrowTextColumn : textColumn;
    const QString head = QStringLiteral("  ") + name;
    const QString text = Wrapped(help, indent, columns);
    const bool fits = head.size() < indent - 1;
    return (fits ? head.leftJustified(indent) : head + QLatin1Char('\n') + QString(indent, QLatin1Char(' '))) + text +
           QLatin1Char('\n');
}

/// `text` up to the first of `ends`, a regular expression.
QString Before(const QString& ends, const QString& text)
{
    return text.section(QRegularExpression(ends), 0, 0).trimmed();
}

/// The text up to the end of its first sentence.
QString FirstSentence(const QString& text)
{
    return Before(QStringLiteral("\\. |\u3002"), text);
}

QString NameOf(const OptionInfo& option)
{
    QString name = option.shortName.isEmpty() ? QStringLiteral("    ") : option.shortName + QStringLiteral(", ");
    name += option.name;
    return option.valueName.isEmpty() ? name : name + QLatin1Char(' ') + option.valueName;
}

QStringList GroupsOf(const CommandInfo& command)
{
    QStringList groups;
    for (const OptionInfo& option : command.options) {
        if (!groups.contains(option.group)) {
            groups.append(option.group);
        }
    }
    return groups;
}

/// Whether `help` explains each of the words already.
bool NamesAllWords(const QString& help, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(), [&help](const QString& word) {
        return help.contains(
            QRegularExpression(QStringLiteral("(?<![\\w-])%1(?![\\w-])").arg(QRegularExpression::escape(word))));
    });
}

/// The line is not wrapped, so that it can be copied.
QString ExampleText(const Example& example, int columns)
{
    return QStringLiteral("  ") + Wrapped(Messages::tr("%1:").arg(Translated(example.text)), 2, columns) +
           QStringLiteral("\n    ") + example.line + QLatin1Char('\n');
}

QString HeadingOf(const QString& title)
{
    return QLatin1Char('\n') + Messages::tr("%1:").arg(title) + QLatin1Char('\n');
}

QString UsageOfProgram()
{
    return Messages::tr("Usage: %1").arg(QStringLiteral("velkora-batch COMMAND [ARGUMENTS]")) + QLatin1Char('\n') +
           HeadingOf(Messages::tr("Commands"));
}

} // namespace

QString ProgramDescription()
{
    return BatchJob::Phrase::English("processes pictures in batches: effects, size, crop, frame, format and names");
}

QString ShortHelp(int columns)
{
    const int width = Bounded(columns);
    QString text = UsageOfProgram();
    for (const CommandInfo& command : Commands()) {
        constexpr int indent = 12;
        text +=
            QStringLiteral("  ") + command.name.leftJustified(indent - 2) +
            Wrapped(Before(QStringLiteral("[.:;] |[\u3002\uFF1A\uFF1B]"), Translated(command.help)), indent, width) +
            QLatin1Char('\n');
    }
    return text + QLatin1Char('\n') + Messages::tr("More: velkora-batch --help, or velkora-batch help COMMAND") +
           QLatin1Char('\n');
}

QString ProgramHelp(int columns)
{
    const int width = Bounded(columns);
    QString text = Wrapped(Messages::tr("velkora-batch %1.").arg(Translated(ProgramDescription())), 0, width) +
                   QStringLiteral("\n\n") + UsageOfProgram();
    for (const CommandInfo& command : Commands()) {
        text += Entry(command.name, FirstSentence(Translated(command.help)), width);
    }
    text += HeadingOf(Messages::tr("Options"));
    text += Entry(QStringLiteral("-h, --help"),
                  Messages::tr("prints this text; after a command, the help of that command"), width);
    text += Entry(QStringLiteral("-V, --version"),
                  Messages::tr("prints the version; with --verbose, also how this system confines the processes "
                               "that read pictures"),
                  width);
    text += HeadingOf(Messages::tr("Examples"));
    for (const Example& example : ExamplesOf().mid(0, 3)) {
        text += ExampleText(example, width);
    }
    return text;
}

QString CommandHelp(const CommandInfo& command, int columns)
{
    const int width = Bounded(columns);
    QString text = QStringLiteral("velkora-batch ") + command.name;
    if (!command.inputs.isEmpty()) {
        text += QLatin1Char(' ') + command.inputs;
    }
    constexpr int usageIndent = 6;
    text = Wrapped(Messages::tr("Usage: %1").arg(text + QStringLiteral(" [OPTIONS]")), usageIndent, width) +
           QStringLiteral("\n\n") + Wrapped(Messages::tr("%1.").arg(Translated(command.help)), 0, width) +
           QLatin1Char('\n');
    for (const QString& group : GroupsOf(command)) {
        text += HeadingOf(Translated(group));
        for (const OptionInfo& option : command.options) {
            if (option.group == group) {
                text += Entry(NameOf(option), FullHelp(option), width);
            }
        }
    }
    const QVector<Example> examples = ExamplesOf(command.name);
    if (!examples.isEmpty()) {
        text += HeadingOf(Messages::tr("Examples"));
        for (const Example& example : examples) {
            text += ExampleText(example, width);
        }
    }
    return text;
}

QString FullHelp(const OptionInfo& option)
{
    QString help = Translated(option.help);
    if (!NamesAllWords(help, option.words)) {
        help = Messages::tr("%1. Values: %2").arg(help, option.words.join(QStringLiteral(", ")));
    }
    return option.isRepeatable ? Messages::tr("%1. May be given several times").arg(help) : help;
}

} // namespace BatchCli
