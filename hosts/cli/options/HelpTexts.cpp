#include "HelpTexts.h"

#include "CommandLine.h"

#include <QStringList>

namespace BatchCli {

namespace {

constexpr int lineColumns = 100;
constexpr int textColumn = 34;

/// "  name" with `help` in a column beside it.
QString Entry(const QString& name, const QString& help)
{
    const QString head = QStringLiteral("  ") + name;
    const QString text = Wrapped(help, textColumn, lineColumns);
    const bool fits = head.size() < textColumn - 1;
    return (fits ? head.leftJustified(textColumn) : head + QLatin1Char('\n') + QString(textColumn, QLatin1Char(' '))) +
           text + QLatin1Char('\n');
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

} // namespace

QString ProgramDescription()
{
    return QStringLiteral("processes pictures in batches: effects, size, crop, frame, format and names");
}

QString ProgramHelp()
{
    QString text = QStringLiteral("velkora-batch %1.\n\nUsage: velkora-batch COMMAND [ARGUMENTS]\n\nCommands:\n")
                       .arg(ProgramDescription());
    for (const CommandInfo& command : Commands()) {
        text += Entry(command.name, command.help);
    }
    text += QStringLiteral("\nOptions:\n");
    text += Entry(QStringLiteral("-h, --help"),
                  QStringLiteral("prints this text; after a command, the help of that command"));
    text += Entry(QStringLiteral("    --version"),
                  QStringLiteral("prints the version; with --verbose, also how this system confines the processes "
                                 "that read pictures"));
    return text;
}

QString CommandHelp(const CommandInfo& command)
{
    QString text = QStringLiteral("Usage: velkora-batch %1").arg(command.name);
    if (!command.inputs.isEmpty()) {
        text += QLatin1Char(' ') + command.inputs;
    }
    text += QStringLiteral(" [OPTIONS]\n\n") + Wrapped(command.help, 0, lineColumns) + QStringLiteral(".\n");
    for (const QString& group : GroupsOf(command)) {
        text += QLatin1Char('\n') + group + QStringLiteral(":\n");
        for (const OptionInfo& option : command.options) {
            if (option.group == group) {
                text += Entry(NameOf(option),
                              option.help +
                                  (option.isRepeatable ? QStringLiteral(". May be given several times") : QString()));
            }
        }
    }
    return text;
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
