// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CompletionTexts.h"
#include "ShellDocs.h"

#include "hosts/cli/options/CommandLine.h"

namespace BatchCli {

namespace {

const char* const matching = "-M 'm:{[:upper:]}={[:lower:]}' -M 'm:{[:lower:]}={[:upper:]}'";

/// For the words of an array of _describe, and of an entry of _arguments.
QString Escaped(QString text, const char* characters)
{
    for (const char* character = characters; *character != '\0'; ++character) {
        text.replace(QLatin1Char(*character), QLatin1Char('\\') + QString(QLatin1Char(*character)));
    }
    return text;
}

/// An array "items" of candidates, and its offer.
QString Offer(const QVector<Candidate>& candidates, const QString& title, const QString& indent)
{
    QStringList closed;
    QStringList open;
    for (const Candidate& candidate : candidates) {
        const QString item = Quoted(Escaped(candidate.word, "\\:") + QLatin1Char(':') + candidate.text);
        (candidate.word.endsWith(QLatin1Char('=')) ? open : closed).append(item);
    }
    QString text;
    if (!open.isEmpty()) {
        text += indent + QStringLiteral("items=(%1)\n").arg(open.join(QLatin1Char(' '))) + indent +
                QStringLiteral("_describe -t keys %1 items %2 -S ''\n").arg(Quoted(title), QLatin1String(matching));
    }
    if (!closed.isEmpty()) {
        text += indent + QStringLiteral("items=(%1)\n").arg(closed.join(QLatin1Char(' '))) + indent +
                QStringLiteral("_describe -t values %1 items %2\n").arg(Quoted(title), QLatin1String(matching));
    }
    return text;
}

QString FormatOptionFunction()
{
    QString text = QStringLiteral("_velkora_batch_format_options() {\n"
                                  "    local -a items\n"
                                  "    local format i\n"
                                  "    for ((i = 1; i < $#words; i++)); do\n"
                                  "        case $words[i] in\n"
                                  "            --format=*) format=${words[i]#*=} ;;\n"
                                  "            --format|-f) format=$words[i+1] ;;\n"
                                  "            -f*) format=${words[i]#-f} ;;\n"
                                  "        esac\n"
                                  "    done\n"
                                  "    case ${(L)format} in\n");
    for (const FormatCandidates& format : CandidateFormatOptions()) {
        QStringList patterns;
        for (const QString& name : format.names) {
            patterns.append(Quoted(name));
        }
        text += QStringLiteral("        %1)\n%2            ;;\n")
                    .arg(patterns.isEmpty() ? QStringLiteral("*") : patterns.join(QLatin1Char('|')),
                         Offer(format.options, QStringLiteral("option of the format"), QString(12, QLatin1Char(' '))));
    }
    return text + QStringLiteral("    esac\n}\n");
}

/// Offers the words of an option of any command, or the arguments of a command, by its name.
QString ValueFunction()
{
    QString text = QStringLiteral("_velkora_batch_values() {\n    local -a items\n    case $1 in\n");
    QStringList known;
    const auto add = [&](const QString& name, const QVector<Candidate>& candidates, const QString& title) {
        if (!known.contains(name)) {
            known.append(name);
            text += QStringLiteral("        %1)\n%2            ;;\n")
                        .arg(name, Offer(candidates, title, QString(12, QLatin1Char(' '))));
        }
    };
    for (const CommandInfo& command : Commands()) {
        if (command.completion == Completion::Words) {
            add(command.name, CandidateArguments(command), QStringLiteral("name"));
        }
        for (const OptionInfo& option : command.options) {
            if (option.completion == Completion::Words) {
                add(option.name, CandidateValues(option), option.valueName);
            }
        }
    }
    return text + QStringLiteral("    esac\n}\n");
}

QString ActionOf(Completion completion, const QString& name)
{
    switch (completion) {
    case Completion::Words:
        return QStringLiteral(" _velkora_batch_values ") + name;
    case Completion::Files:
        return QStringLiteral("_files");
    case Completion::Folders:
        return QStringLiteral("_files -/");
    case Completion::Nothing:
        break;
    }
    return name == formatOption ? QStringLiteral(" _velkora_batch_format_options") : QStringLiteral(" ");
}

/// The names of an option, each with the sign that tells zsh where to expect its value.
QString Names(const OptionInfo& option)
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

QString ZshCompletion()
{
    QString text = QStringLiteral("#compdef velkora-batch\n"
                                  "# Completion of velkora-batch for zsh. Made from the program's own tables.\n") +
                   FormatOptionFunction() + ValueFunction() +
                   QStringLiteral("_velkora_batch() {\n"
                                  "    if (( CURRENT == 2 )); then\n"
                                  "        local -a items\n") +
                   Offer(CandidateCommands(), QStringLiteral("command"), QString(8, QLatin1Char(' '))) +
                   QStringLiteral("        compadd -- --help --version\n        return\n    fi\n"
                                  "    local command=$words[2]\n    shift words\n    (( CURRENT-- ))\n"
                                  "    case $command in\n");
    for (const CommandInfo& command : Commands()) {
        text += QStringLiteral("    %1)\n        _arguments -s -S").arg(command.name);
        for (const OptionInfo& option : command.options) {
            const QString help = QStringLiteral("[%1]").arg(Escaped(Summary(option.help), "\\[]:"));
            const QString value = option.valueName.isEmpty()
                                      ? QString()
                                      : QStringLiteral(":%1:%2").arg(Escaped(option.valueName, "\\[]:"),
                                                                     ActionOf(option.completion, option.name));
            text += QStringLiteral(" \\\n            ") + Names(option) + Quoted(help + value);
        }
        text += QStringLiteral(" \\\n            %1 ;;\n")
                    .arg(Quoted(QStringLiteral("*:input:") + ActionOf(command.completion, command.name)));
    }
    return text + QStringLiteral("    esac\n}\n_velkora_batch \"$@\"\n");
}

} // namespace BatchCli
