// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CompletionTexts.h"
#include "ShellDocs.h"

#include "hosts/cli/options/CommandLine.h"

namespace BatchCli {

namespace {

/// Before the command is known. Bash divides "--format=J" and "off:b" into three words.
const char* const head = R"(# Completion of velkora-batch for bash. Made from the program's own tables.
_velkora_batch()
{
    local parts=() part before='' word='' joined='' format='' i
    for part in "${COMP_WORDS[@]:0:COMP_CWORD+1}"; do
        if [[ ${#parts[@]} -gt 0 && ( $part == [=:]* || $joined ) ]]; then
            parts[${#parts[@]}-1]+=$part
        else
            parts+=("$part")
        fi
        joined=''
        [[ $part == *[=:] ]] && joined=yes
    done
    COMPREPLY=()
    word=${parts[${#parts[@]}-1]}
    [ ${#parts[@]} -gt 1 ] && before=${parts[${#parts[@]}-2]}
    if [[ $word == --*=* ]]; then
        before=${word%%=*} word=${word#*=}
    fi
    # The part before the last border of words stays in the line as it is.
    local kept=${word%"${word##*[=:]}"}
    case $before in
        --effect) kept=${kept#off:} word=${word#off:} ;;
    esac
    local kind='' options='' words=()
)";

const char* const tail = R"(    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    elif [ "$kind" = file ]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    elif [ "$kind" = folder ]; then
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    else
        local candidate
        for candidate in "${words[@]}"; do
            if [[ ${candidate,,} == "${word,,}"* ]]; then
                COMPREPLY+=("${candidate:${#kept}}")
                [[ $candidate == *= ]] && compopt -o nospace 2> /dev/null
            fi
        done
    fi
}
complete -o filenames -F _velkora_batch velkora-batch
)";

QString WordList(const QVector<Candidate>& candidates)
{
    QStringList quoted;
    for (const Candidate& candidate : candidates) {
        quoted.append(Quoted(candidate.word));
    }
    return QStringLiteral("words=(%1)").arg(quoted.join(QLatin1Char(' ')));
}

QString KindOf(Completion completion)
{
    switch (completion) {
    case Completion::Files:
        return QStringLiteral("kind=file");
    case Completion::Folders:
        return QStringLiteral("kind=folder");
    default:
        return QStringLiteral("kind=none");
    }
}

QString ValuesOf(const OptionInfo& option)
{
    if (option.name == formatOption) {
        return QStringLiteral("_velkora_batch_format_options");
    }
    return option.completion == Completion::Words ? WordList(CandidateValues(option)) : KindOf(option.completion);
}

/// A function that fills the variable "words" of its caller.
QString FormatOptionFunction()
{
    QString text = QStringLiteral("_velkora_batch_format_options()\n{\n"
                                  "    local format='' i\n"
                                  "    for ((i = 1; i < ${#parts[@]}; i++)); do\n"
                                  "        case ${parts[i]} in\n"
                                  "            --format=*) format=${parts[i]#*=} ;;\n"
                                  "            --format|-f) format=${parts[i+1]-} ;;\n"
                                  "            -f*) format=${parts[i]#-f} ;;\n"
                                  "        esac\n"
                                  "    done\n"
                                  "    case ${format,,} in\n");
    for (const FormatCandidates& format : CandidateFormatOptions()) {
        QStringList patterns;
        for (const QString& name : format.names) {
            patterns.append(Quoted(name));
        }
        text += QStringLiteral("        %1) %2 ;;\n")
                    .arg(patterns.isEmpty() ? QStringLiteral("*") : patterns.join(QLatin1Char('|')),
                         WordList(format.options));
    }
    return text + QStringLiteral("    esac\n}\n");
}

} // namespace

QString BashCompletion()
{
    const QString commands = WordsOf(CandidateCommands()).join(QLatin1Char(' '));
    QString text = QString::fromLatin1(head) +
                   QStringLiteral("    if [ \"${#parts[@]}\" -eq 2 ]; then\n"
                                  "        mapfile -t COMPREPLY < <(compgen -W '%1 --help --version' -- \"$word\")\n"
                                  "        return\n    fi\n"
                                  "    case ${COMP_WORDS[1]} in\n")
                       .arg(commands);
    for (const CommandInfo& command : Commands()) {
        QStringList names;
        QString values;
        for (const OptionInfo& option : command.options) {
            names.append(option.name);
            if (!option.valueName.isEmpty()) {
                const QString pattern =
                    option.shortName.isEmpty() ? option.name : option.name + QLatin1Char('|') + option.shortName;
                values += QStringLiteral("            %1) %2 ;;\n").arg(pattern, ValuesOf(option));
            }
        }
        const bool takesWords = command.completion == Completion::Words;
        text += QStringLiteral("    %1)\n        options='%2'\n        case $before in\n%3            *) %4 ;;\n"
                               "        esac ;;\n")
                    .arg(command.name, names.join(QLatin1Char(' ')), values,
                         takesWords ? WordList(CandidateArguments(command)) : KindOf(command.completion));
    }
    return FormatOptionFunction() + text + QString::fromLatin1(tail);
}

} // namespace BatchCli
