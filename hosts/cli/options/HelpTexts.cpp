#include "HelpTexts.h"

#include "CommandLine.h"
#include "Examples.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

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

/// The text up to the end of its first sentence.
QString FirstSentence(const QString& text)
{
    return text.section(QStringLiteral(". "), 0, 0);
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
    return QStringLiteral("  ") + Wrapped(example.text, 2, columns) + QStringLiteral(":\n    ") + example.line +
           QLatin1Char('\n');
}

} // namespace

QString ProgramDescription()
{
    return QStringLiteral("processes pictures in batches: effects, size, crop, frame, format and names");
}

QString ShortHelp(int columns)
{
    const int width = Bounded(columns);
    QString text = QStringLiteral("Usage: velkora-batch COMMAND [ARGUMENTS]\n\nCommands:\n");
    for (const CommandInfo& command : Commands()) {
        constexpr int indent = 12;
        text += QStringLiteral("  ") + command.name.leftJustified(indent - 2) +
                Wrapped(command.help.section(QRegularExpression(QStringLiteral("[.:;] ")), 0, 0), indent, width) +
                QLatin1Char('\n');
    }
    return text + QStringLiteral("\nMore: velkora-batch --help, or velkora-batch help COMMAND\n");
}

QString ProgramHelp(int columns)
{
    const int width = Bounded(columns);
    QString text = Wrapped(QStringLiteral("velkora-batch %1.").arg(ProgramDescription()), 0, width) +
                   QStringLiteral("\n\nUsage: velkora-batch COMMAND [ARGUMENTS]\n\nCommands:\n");
    for (const CommandInfo& command : Commands()) {
        text += Entry(command.name, FirstSentence(command.help), width);
    }
    text += QStringLiteral("\nOptions:\n");
    text += Entry(QStringLiteral("-h, --help"),
                  QStringLiteral("prints this text; after a command, the help of that command"), width);
    text += Entry(QStringLiteral("-V, --version"),
                  QStringLiteral("prints the version; with --verbose, also how this system confines the processes "
                                 "that read pictures"),
                  width);
    text += QStringLiteral("\nExamples:\n");
    for (const Example& example : ExamplesOf().mid(0, 3)) {
        text += ExampleText(example, width);
    }
    return text;
}

QString CommandHelp(const CommandInfo& command, int columns)
{
    const int width = Bounded(columns);
    QString text = QStringLiteral("Usage: velkora-batch %1").arg(command.name);
    if (!command.inputs.isEmpty()) {
        text += QLatin1Char(' ') + command.inputs;
    }
    constexpr int usageIndent = 6;
    text = Wrapped(text + QStringLiteral(" [OPTIONS]"), usageIndent, width) + QStringLiteral("\n\n") +
           Wrapped(command.help, 0, width) + QStringLiteral(".\n");
    for (const QString& group : GroupsOf(command)) {
        text += QLatin1Char('\n') + group + QStringLiteral(":\n");
        for (const OptionInfo& option : command.options) {
            if (option.group == group) {
                text += Entry(NameOf(option), FullHelp(option), width);
            }
        }
    }
    const QVector<Example> examples = ExamplesOf(command.name);
    if (!examples.isEmpty()) {
        text += QStringLiteral("\nExamples:\n");
        for (const Example& example : examples) {
            text += ExampleText(example, width);
        }
    }
    return text;
}

QString FullHelp(const OptionInfo& option)
{
    QString help = option.help;
    if (!NamesAllWords(help, option.words)) {
        help += QStringLiteral(". Values: ") + option.words.join(QStringLiteral(", "));
    }
    return option.isRepeatable ? help + QStringLiteral(". May be given several times") : help;
}

QString Wrapped(const QString& text, int indent, int columns)
{
    QString wrapped;
    int column = indent;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (column > indent && column + 1 + word.size() > columns) {
            wrapped += QLatin1Char('\n') + QString(indent, QLatin1Char(' '));
            column = indent;
        } else if (column > indent) {
            wrapped += QLatin1Char(' ');
            ++column;
        }
        wrapped += word;
        column += word.size();
    }
    return wrapped;
}

} // namespace BatchCli
