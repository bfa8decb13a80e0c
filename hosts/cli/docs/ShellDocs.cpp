#include "ShellDocs.h"

#include "hosts/cli/options/CommandLine.h"

#include <QCoreApplication>

namespace BatchCli {

namespace {

QString Roff(const QString& text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\e"));
    escaped.replace(QLatin1Char('-'), QStringLiteral("\\-"));
    return escaped.startsWith(QLatin1Char('.')) || escaped.startsWith(QLatin1Char('\''))
               ? QStringLiteral("\\&") + escaped
               : escaped;
}

QString OptionEntry(const OptionInfo& option)
{
    QString names = QStringLiteral("\\fB%1\\fR").arg(Roff(option.name));
    if (!option.shortName.isEmpty()) {
        names.prepend(QStringLiteral("\\fB%1\\fR, ").arg(Roff(option.shortName)));
    }
    if (!option.valueName.isEmpty()) {
        names += QStringLiteral(" \\fI%1\\fR").arg(Roff(option.valueName));
    }
    const QString more = option.isRepeatable ? QStringLiteral(". May be given several times.") : QStringLiteral(".");
    return QStringLiteral(".TP\n%1\n%2%3\n").arg(names, Roff(option.help), more);
}

/// An option that several commands share is described under the first of them only.
QString CommandSections()
{
    QString text;
    QStringList described;
    for (const CommandInfo& command : Commands()) {
        text += QStringLiteral(".SS velkora\\-batch %1 %2\n%3.\n")
                    .arg(command.name, Roff(command.inputs), Roff(command.help));
        QString group;
        int known = 0;
        for (const OptionInfo& option : command.options) {
            const QString entry = OptionEntry(option);
            if (described.contains(entry)) {
                ++known;
                continue;
            }
            described.append(entry);
            if (option.group != group) {
                group = option.group;
                text += QStringLiteral(".PP\n%1:\n").arg(Roff(group));
            }
            text += entry;
        }
        if (known > 0) {
            text += QStringLiteral(".PP\nIt also takes %1 of the options above; \\fB\\-\\-help\\fR lists them.\n")
                        .arg(known);
        }
    }
    return text;
}

QStringList CommandNames()
{
    QStringList names;
    for (const CommandInfo& command : Commands()) {
        names.append(command.name);
    }
    return names;
}

/// In single quotes, for any of the shells.
QString Quoted(QString text)
{
    text.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

QString BashWords(const OptionInfo& option)
{
    switch (option.completion) {
    case Completion::Words:
        return QStringLiteral("words=(%1)").arg([&] {
            QStringList quoted;
            for (const QString& word : option.words) {
                quoted.append(Quoted(word));
            }
            return quoted.join(QLatin1Char(' '));
        }());
    case Completion::Files:
        return QStringLiteral("kind=file");
    case Completion::Folders:
        return QStringLiteral("kind=folder");
    case Completion::Nothing:
        break;
    }
    return QStringLiteral("kind=none");
}

QString ZshAction(Completion completion, const QStringList& words)
{
    switch (completion) {
    case Completion::Words: {
        QStringList escaped;
        for (QString word : words) {
            escaped.append(word.replace(QLatin1Char(' '), QStringLiteral("\\ ")));
        }
        return QStringLiteral("(%1)").arg(escaped.join(QLatin1Char(' ')));
    }
    case Completion::Files:
        return QStringLiteral("_files");
    case Completion::Folders:
        return QStringLiteral("_files -/");
    case Completion::Nothing:
        break;
    }
    return QStringLiteral(" ");
}

QString ZshText(QString text)
{
    for (const char character : {'\\', '[', ']', ':'}) {
        text.replace(QLatin1Char(character), QLatin1Char('\\') + QString(QLatin1Char(character)));
    }
    return text;
}

/// The names of an option, each with the sign that tells zsh where to expect its value.
QString ZshNames(const OptionInfo& option)
{
    const bool isSwitch = option.valueName.isEmpty();
    const QString name = isSwitch ? option.name : option.name + QLatin1Char('=');
    if (option.shortName.isEmpty()) {
        return option.isRepeatable ? Quoted(QLatin1Char('*') + name) : name;
    }
    const QString shortName = isSwitch ? option.shortName : option.shortName + QLatin1Char('+');
    return QStringLiteral("'(%1 %2)'{%3,%4}").arg(option.shortName, option.name, shortName, name);
}

} // namespace

QString ManualPage(const QString& frame)
{
    QString page = frame;
    page.replace(QStringLiteral("@VERSION@"), QCoreApplication::applicationVersion());
    page.replace(QStringLiteral("@COMMANDS@\n"), CommandSections());
    return page;
}

QString BashCompletion()
{
    QString text = QStringLiteral("# Completion of velkora-batch for bash. Made from the program's own tables.\n"
                                  "_velkora_batch()\n{\n"
                                  "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
                                  "    COMPREPLY=()\n"
                                  "    local kind='' options='' words=()\n"
                                  "    # \"--format=J\" and \"off:b\" come as three words.\n"
                                  "    if [ \"$word\" = = ]; then\n"
                                  "        word=''\n"
                                  "    elif [ \"$before\" = = ]; then\n"
                                  "        before=${COMP_WORDS[COMP_CWORD-2]}\n"
                                  "    elif [ \"$word\" = : ]; then\n"
                                  "        before=${COMP_WORDS[COMP_CWORD-2]} word=''\n"
                                  "        [ \"${COMP_WORDS[COMP_CWORD-1]}\" = off ] || return\n"
                                  "    elif [ \"$before\" = : ]; then\n"
                                  "        before=${COMP_WORDS[COMP_CWORD-3]}\n"
                                  "        [ \"${COMP_WORDS[COMP_CWORD-2]}\" = off ] || return\n"
                                  "    fi\n"
                                  "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                                  "        mapfile -t COMPREPLY < <(compgen -W '%1 --help --version' -- \"$word\")\n"
                                  "        return\n    fi\n"
                                  "    case ${COMP_WORDS[1]} in\n")
                       .arg(CommandNames().join(QLatin1Char(' ')));
    for (const CommandInfo& command : Commands()) {
        QStringList names;
        QString values;
        for (const OptionInfo& option : command.options) {
            names.append(option.name);
            if (!option.valueName.isEmpty()) {
                const QString pattern =
                    option.shortName.isEmpty() ? option.name : option.name + QLatin1Char('|') + option.shortName;
                values += QStringLiteral("            %1) %2 ;;\n").arg(pattern, BashWords(option));
            }
        }
        OptionInfo inputs;
        inputs.completion = command.completion;
        inputs.words = command.words;
        text += QStringLiteral("    %1)\n        options='%2'\n        case $before in\n%3            *) %4 ;;\n"
                               "        esac ;;\n")
                    .arg(command.name, names.join(QLatin1Char(' ')), values, BashWords(inputs));
    }
    return text + QStringLiteral("    esac\n"
                                 "    if [[ $word == -* ]]; then\n"
                                 "        mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$word\")\n"
                                 "    elif [ \"$kind\" = file ]; then\n"
                                 "        mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
                                 "    elif [ \"$kind\" = folder ]; then\n"
                                 "        mapfile -t COMPREPLY < <(compgen -d -- \"$word\")\n"
                                 "    else\n"
                                 "        local candidate\n"
                                 "        for candidate in \"${words[@]}\"; do\n"
                                 "            [[ $candidate == \"$word\"* ]] && COMPREPLY+=(\"$candidate\")\n"
                                 "        done\n"
                                 "    fi\n"
                                 "}\n"
                                 "complete -o filenames -F _velkora_batch velkora-batch\n");
}

QString ZshCompletion()
{
    QString text = QStringLiteral("#compdef velkora-batch\n"
                                  "# Completion of velkora-batch for zsh. Made from the program's own tables.\n"
                                  "_velkora_batch() {\n"
                                  "    if (( CURRENT == 2 )); then\n"
                                  "        compadd %1 --help --version\n        return\n    fi\n"
                                  "    local command=$words[2]\n    shift words\n    (( CURRENT-- ))\n"
                                  "    case $command in\n")
                       .arg(CommandNames().join(QLatin1Char(' ')));
    for (const CommandInfo& command : Commands()) {
        text += QStringLiteral("    %1)\n        _arguments -s -S").arg(command.name);
        for (const OptionInfo& option : command.options) {
            const QString help = QStringLiteral("[%1]").arg(ZshText(option.help));
            const QString value = option.valueName.isEmpty()
                                      ? QString()
                                      : QStringLiteral(":%1:%2").arg(ZshText(option.valueName),
                                                                     ZshAction(option.completion, option.words));
            text += QStringLiteral(" \\\n            ") + ZshNames(option) + Quoted(help + value);
        }
        text += QStringLiteral(" \\\n            %1 ;;\n")
                    .arg(Quoted(QStringLiteral("*:input:") + ZshAction(command.completion, command.words)));
    }
    return text + QStringLiteral("    esac\n}\n_velkora_batch \"$@\"\n");
}

QString FishCompletion()
{
    QString text = QStringLiteral("# Completion of velkora-batch for fish. Made from the program's own tables.\n");
    for (const CommandInfo& command : Commands()) {
        text += QStringLiteral("complete -c velkora-batch -n __fish_use_subcommand -f -a %1 -d %2\n")
                    .arg(command.name, Quoted(command.help));
        const QString condition = QStringLiteral("-n '__fish_seen_subcommand_from %1'").arg(command.name);
        for (const OptionInfo& option : command.options) {
            QString line = QStringLiteral("complete -c velkora-batch %1 -l %2").arg(condition, option.name.mid(2));
            if (!option.shortName.isEmpty()) {
                line += QStringLiteral(" -s %1").arg(option.shortName.mid(1));
            }
            if (!option.valueName.isEmpty()) {
                line += option.completion == Completion::Files ? QStringLiteral(" -r -F")
                        : option.completion == Completion::Folders
                            ? QStringLiteral(" -x -a '(__fish_complete_directories)'")
                            : QStringLiteral(" -x");
            }
            if (option.completion == Completion::Words) {
                QStringList words;
                for (QString word : option.words) {
                    words.append(word.replace(QLatin1Char(' '), QStringLiteral("\\ ")));
                }
                line += QStringLiteral(" -a %1").arg(Quoted(words.join(QLatin1Char(' '))));
            }
            text += line + QStringLiteral(" -d %1\n").arg(Quoted(option.help));
        }
        if (!command.words.isEmpty()) {
            QStringList words;
            for (QString word : command.words) {
                words.append(word.replace(QLatin1Char(' '), QStringLiteral("\\ ")));
            }
            text += QStringLiteral("complete -c velkora-batch %1 -f -a %2\n")
                        .arg(condition, Quoted(words.join(QLatin1Char(' '))));
        }
    }
    return text;
}

} // namespace BatchCli
