// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CompletionTexts.h"
#include "ShellDocs.h"

#include "hosts/cli/options/CommandLine.h"

namespace BatchCli {

namespace {

/// A command is the first argument; an input may have its name too.
const char* const head = R"(# Completion of velkora-batch for fish. Made from the program's own tables.
function __velkora_batch_has_command
    set -l tokens (commandline -opc)
    test (count $tokens) -gt 1; and test "$tokens[2]" = "$argv[1]"
end
function __velkora_batch_needs_command
    test (count (commandline -opc)) -eq 1
end
function __velkora_batch_format
    set -l tokens (commandline -opc)
    set -l format ''
    for i in (seq (count $tokens))
        switch $tokens[$i]
            case '--format=*'
                set format (string replace -- --format= '' $tokens[$i])
            case --format -f
                test $i -lt (count $tokens); and set format $tokens[(math $i + 1)]
            case '-f*'
                set format (string replace -- -f '' $tokens[$i])
        end
    end
    string lower -- $format
end
)";

QString FishQuoted(QString text)
{
    text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    text.replace(QLatin1Char('\''), QStringLiteral("\\'"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

/// A list of arguments for "complete -a".
QString WordList(const QVector<Candidate>& candidates)
{
    QStringList items;
    for (const Candidate& candidate : candidates) {
        items.append(FishQuoted(candidate.word) + QStringLiteral("\\t") + FishQuoted(candidate.text));
    }
    return FishQuoted(items.join(QLatin1Char(' ')));
}

QString FormatOptionFunction()
{
    QString text = QStringLiteral("function __velkora_batch_format_options\n    switch (__velkora_batch_format)\n");
    for (const FormatCandidates& format : CandidateFormatOptions()) {
        QStringList patterns;
        for (const QString& name : format.names) {
            patterns.append(FishQuoted(name));
        }
        text += QStringLiteral("        case %1\n")
                    .arg(patterns.isEmpty() ? QStringLiteral("'*'") : patterns.join(QLatin1Char(' ')));
        for (const Candidate& option : format.options) {
            text += QStringLiteral("            printf '%s\\t%s\\n' ") + FishQuoted(option.word) + QLatin1Char(' ') +
                    FishQuoted(option.text) + QLatin1Char('\n');
        }
    }
    return text + QStringLiteral("    end\nend\n");
}

QString ValuesOf(const OptionInfo& option)
{
    if (option.name == formatOption) {
        return QStringLiteral(" -x -a '(__velkora_batch_format_options)'");
    }
    switch (option.completion) {
    case Completion::Files:
        return QStringLiteral(" -r -F");
    case Completion::Folders:
        return QStringLiteral(" -x -a '(__fish_complete_directories)'");
    case Completion::Words:
        return QStringLiteral(" -x -a ") + WordList(CandidateValues(option));
    case Completion::Nothing:
        break;
    }
    return QStringLiteral(" -x");
}

} // namespace

QString FishCompletion()
{
    const QString complete = QStringLiteral("complete -c velkora-batch ");
    const QString first = complete + QStringLiteral("-n __velkora_batch_needs_command ");
    QString text = QString::fromLatin1(head) + FormatOptionFunction() + first +
                   QStringLiteral("-f -a %1\n").arg(WordList(CandidateCommands())) + first +
                   QStringLiteral("-l help -s h -d 'prints the commands'\n") + first +
                   QStringLiteral("-l version -s V -d 'prints the version'\n");
    for (const CommandInfo& command : Commands()) {
        const QString condition = complete + QStringLiteral("-n '__velkora_batch_has_command %1' ").arg(command.name);
        for (const OptionInfo& option : command.options) {
            text += condition + QStringLiteral("-l %1").arg(option.name.mid(2));
            if (!option.shortName.isEmpty()) {
                text += QStringLiteral(" -s %1").arg(option.shortName.mid(1));
            }
            if (!option.valueName.isEmpty()) {
                text += ValuesOf(option);
            }
            text += QStringLiteral(" -d %1\n").arg(FishQuoted(Summary(option.help)));
        }
        if (!command.words.isEmpty()) {
            text += condition + QStringLiteral("-f -a %1\n").arg(WordList(CandidateArguments(command)));
        }
    }
    return text;
}

} // namespace BatchCli
