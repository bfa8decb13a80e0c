// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandLine.h"

#include "Contradictions.h"
#include "ForeignWords.h"

#include "hosts/common/JobFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/options/Words.h"
#include "job/values/Phrase.h"
#include "server/protocol/SystemProtection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <list>

using namespace BatchHost;

namespace BatchCli {

namespace {

std::string Bytes(const QString& text)
{
    return text.toStdString();
}

QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

/// What CLI11 fills in while it parses. It keeps references to the fields, so slots are kept in a list.
struct Slot
{
    const OptionInfo* info = nullptr;
    CLI::Option* option = nullptr;
    std::vector<std::string> values;
    bool isSet = false;
};

void AddOption(CLI::App& app, const OptionInfo& info, std::list<Slot>& slots)
{
    Slot& slot = slots.emplace_back();
    slot.info = &info;
    const std::string names =
        Bytes(info.shortName.isEmpty() ? info.name : info.shortName + QLatin1Char(',') + info.name);
    if (info.valueName.isEmpty()) {
        slot.option = app.add_flag(names, slot.isSet, Bytes(info.help));
    } else {
        slot.option = app.add_option(names, slot.values, Bytes(info.help));
        slot.option->type_name(Bytes(info.valueName));
        slot.option->type_size(1);
        slot.option->expected(1);
        slot.option->allow_extra_args(false);
        slot.option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll); // Collect() reports repetitions.
    }
    slot.option->group(Bytes(info.group));
}

QString WithoutDashes(QString name)
{
    while (name.startsWith(QLatin1Char('-'))) {
        name.remove(0, 1);
    }
    return name;
}

/// The option of `command` whose name is nearest to `name`, dashes aside; empty when none is near.
QString NearestOption(const QString& name, const CommandInfo& command)
{
    QStringList names;
    for (const OptionInfo& option : command.options) {
        names.append(WithoutDashes(option.name));
    }
    const QString nearest = BatchJob::NearestWord(WithoutDashes(name), names);
    return nearest.isEmpty() ? QString() : QStringLiteral("--") + nearest;
}

QStringList CommandNames()
{
    QStringList names;
    for (const CommandInfo& command : Commands()) {
        names.append(command.name);
    }
    return names;
}

/// The names of the commands other than `command` that have the option `name`.
QStringList OtherCommandsWith(const QString& name, const CommandInfo& command)
{
    QStringList names;
    for (const CommandInfo& other : Commands()) {
        const bool hasOption = std::any_of(other.options.begin(), other.options.end(), [&](const OptionInfo& option) {
            return option.name == name || (!name.isEmpty() && option.shortName == name);
        });
        if (hasOption && other.name != command.name) {
            names.append(other.name);
        }
    }
    return names;
}

/// The error of `text`, an option that `command` does not have. `next` is the argument after it.
RequestError UnknownOption(const QString& text, const QString& next, const CommandInfo& command)
{
    const QString name = text.section(QLatin1Char('='), 0, 0);
    const bool hasValue = text.contains(QLatin1Char('='));
    const QString value = hasValue                            ? text.section(QLatin1Char('='), 1)
                          : next.startsWith(QLatin1Char('-')) ? QString()
                                                              : next;
    const auto unknown = [&name](const QString& more) {
        return RequestError{BatchJob::Phrase::English("unknown option %1; %2").arg(name, more)};
    };
    const QString advice = AdviceForOption(name, value, command);
    if (!advice.isEmpty()) {
        return unknown(advice);
    }
    const QStringList others = OtherCommandsWith(name, command);
    if (!others.isEmpty()) {
        return unknown(BatchJob::Phrase::English("it is an option of %1; \"velkora-batch %2 --help\" lists the options")
                           .arg(others.join(QStringLiteral(", ")), command.name));
    }
    const QString nearest = NearestOption(name, command);
    return unknown(nearest.isEmpty()
                       ? BatchJob::Phrase::English("\"velkora-batch %1 --help\" lists the options").arg(command.name)
                       : BatchJob::Phrase::English("did you mean \"%1\"?").arg(nearest));
}

/// The error of a first argument that is no command.
RequestError UnknownCommand(const QString& text)
{
    const QFileInfo info(text);
    if (info.exists()) {
        return {
            (info.isDir()
                 ? BatchJob::Phrase::English("%1 is a folder, not a command; did you mean \"velkora-batch run %1\"?")
                 : BatchJob::Phrase::English("%1 is a file, not a command; did you mean \"velkora-batch run %1\"?"))
                .arg(text)};
    }
    if (text.contains(QRegularExpression(QStringLiteral("[/\\\\*?]")))) {
        return {BatchJob::Phrase::English("%1 is no command; did you mean \"velkora-batch run %1\"?").arg(text)};
    }
    const QString advice = AdviceForCommand(text);
    if (!advice.isEmpty()) {
        return {
            BatchJob::Phrase::English("unknown command \"%1\"; did you mean \"velkora-batch %2\"?").arg(text, advice)};
    }
    return {BatchJob::Phrase::English("unknown command: %1").arg(NoSuchWord(text, CommandNames()).text)};
}

void CheckFirstArgument(const QStringList& arguments)
{
    const QString first = arguments.value(0);
    if (first.isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("no command: use one of %1, or \"velkora-batch --help\"")
                               .arg(CommandNames().join(QStringLiteral(", ")))};
    }
    if (first.startsWith(QLatin1Char('-'))) {
        const QStringList known{QStringLiteral("--help"), QStringLiteral("-h"), QStringLiteral("--version"),
                                QStringLiteral("-V")};
        if (!known.contains(first)) {
            throw RequestError{BatchJob::Phrase::English("%1 is not allowed before the command, only %2")
                                   .arg(first, known.join(QStringLiteral(", "))) +
                               NearestHint(first, known)};
        }
    } else if (!CommandNames().contains(first)) {
        throw UnknownCommand(first);
    }
}

const CommandInfo& CommandNamed(const QString& name)
{
    return *std::find_if(Commands().begin(), Commands().end(),
                         [&name](const CommandInfo& known) { return known.name == name; });
}

/// What the command "help" prints.
QString HelpFor(const QStringList& names, int columns)
{
    if (names.isEmpty()) {
        return ProgramHelp(columns);
    }
    if (names.size() > 1) {
        throw RequestError{
            BatchJob::Phrase::English("help takes one command, but got %1").arg(names.join(QStringLiteral(", ")))};
    }
    if (!CommandNames().contains(names.first())) {
        throw NoSuchWord(names.first(), CommandNames()).In(QStringLiteral("help"));
    }
    return CommandHelp(CommandNamed(names.first()), columns);
}

QString VersionText(bool isVerbose)
{
    QString text = QStringLiteral("velkora-batch %1\n").arg(QCoreApplication::applicationVersion());
    if (isVerbose) {
        for (const QString& line : BatchProtocol::SystemProtection::OfThisSystem().Description()) {
            text += Translated(line) + QLatin1Char('\n');
        }
    }
    return text;
}

void CheckTexts(const QStringList& arguments)
{
    for (int i = 0; i < arguments.size(); ++i) {
        if (!CanBeSaved(arguments.at(i))) {
            throw RequestError{
                BatchJob::Phrase::English("argument %1, \"%2\", contains a character that a job cannot hold")
                    .arg(QString::number(i + 1), arguments.at(i))};
        }
    }
}

/// "--json=no" looks like the opposite of --json, and the parser has its own idea of what such a value means.
void CheckSwitches(const QStringList& arguments, const CommandInfo& command)
{
    QStringList switches;
    QStringList namesWithValue;
    for (const OptionInfo& option : command.options) {
        if (option.valueName.isEmpty()) {
            switches.append(option.name);
        } else {
            namesWithValue.append(option.name);
            namesWithValue.append(option.shortName.isEmpty() ? option.name : option.shortName);
        }
    }
    for (int i = 1; i < arguments.size() && arguments.at(i) != QLatin1String("--"); ++i) {
        const QString name = arguments.at(i).section(QLatin1Char('='), 0, 0);
        const bool isValue = namesWithValue.contains(arguments.at(i - 1));
        if (name != arguments.at(i) && switches.contains(name) && !isValue) {
            throw RequestError{
                BatchJob::Phrase::English("%1 is a switch and takes no value; type %1 alone, or leave it out")
                    .arg(name)};
        }
    }
}

/// An empty name is a mistake, such as an unset variable in a script; it must not mean the current folder.
void CheckNames(const ParsedArguments& parsed, const CommandInfo& command)
{
    if (parsed.inputs.contains(QString())) {
        throw RequestError{BatchJob::Phrase::English("an input of %1 has an empty name").arg(command.name)};
    }
    for (const OptionInfo& option : command.options) {
        const bool isName = option.completion == Completion::Files || option.completion == Completion::Folders;
        if (isName && parsed.Values(option.name).contains(QString())) {
            throw RequestError{BatchJob::Phrase::English("the name is empty")}.In(option.name);
        }
    }
}

/// The inputs among the arguments that are not options of `command`. They are not a positional option of CLI11, which
/// would take the name "[2024]" for a list.
QStringList InputsAmong(const std::vector<std::string>& rest, const CommandInfo& command)
{
    QStringList inputs;
    bool areOptionsOver = false;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        const std::string& text = rest[i];
        if (!areOptionsOver && text == "--") {
            areOptionsOver = true;
        } else if (!areOptionsOver && text.size() > 1 && text[0] == '-') {
            throw UnknownOption(Text(text), i + 1 < rest.size() ? Text(rest[i + 1]) : QString(), command);
        } else {
            inputs.append(Text(text));
        }
    }
    return inputs;
}

ParsedArguments Collect(const CommandInfo& command, const std::list<Slot>& slots, const QStringList& inputs)
{
    ParsedArguments parsed;
    parsed.command = command.name;
    parsed.inputs = inputs;
    for (const Slot& slot : slots) {
        if (slot.option->count() == 0) {
            continue;
        }
        QStringList values;
        for (const std::string& value : slot.values) {
            values.append(Text(value));
        }
        if (!slot.info->isRepeatable && values.size() > 1) {
            throw RequestError{
                BatchJob::Phrase::English("%1 is given %2 times, but takes one value; remove \"%3\" or \"%4\"")
                    .arg(slot.info->name, QString::number(values.size()), values.first(), values.last())};
        }
        parsed.options.insert(slot.info->name, slot.info->valueName.isEmpty() ? QStringList{QString()} : values);
    }
    return parsed;
}

/// A missing value is all that the parser itself can find; its text begins with the option.
RequestError ParserError(const CLI::ParseError& error, const CommandInfo& command)
{
    const QString text = Text(error.what());
    const QString name = text.section(QLatin1Char(':'), 0, 0);
    const auto option = std::find_if(command.options.begin(), command.options.end(),
                                     [&name](const OptionInfo& known) { return known.name == name; });
    if (option == command.options.end() || dynamic_cast<const CLI::ArgumentMismatch*>(&error) == nullptr) {
        return {text};
    }
    return {BatchJob::Phrase::English("%1: 1 required %2 missing").arg(name, option->valueName)};
}

} // namespace

ParsedArguments ParseArguments(const QStringList& arguments, int columns)
{
    CheckTexts(arguments);
    CheckFirstArgument(arguments);
    ParsedArguments parsed;
    if (arguments.first() == QLatin1String("--version") || arguments.first() == QLatin1String("-V")) {
        parsed.message = VersionText(arguments.contains(QStringLiteral("--verbose")));
        return parsed;
    }
    if (arguments.first().startsWith(QLatin1Char('-'))) {
        parsed.message = ProgramHelp(columns);
        return parsed;
    }
    const CommandInfo& command = CommandNamed(arguments.first());

    CheckSwitches(arguments, command);
    CLI::App app;
    app.set_help_flag();
    app.allow_extras();
    std::list<Slot> slots;
    for (const OptionInfo& option : command.options) {
        AddOption(app, option, slots);
    }
    std::vector<std::string> reversed;
    for (int i = arguments.size() - 1; i > 0; --i) {
        reversed.push_back(Bytes(arguments.at(i)));
    }
    try {
        app.parse(reversed);
    } catch (const CLI::ParseError& error) {
        throw ParserError(error, command);
    }
    parsed = Collect(command, slots, InputsAmong(app.remaining(), command));
    CheckNames(parsed, command);
    CheckFormatShorthands(parsed);
    if (parsed.Has(QStringLiteral("--help"))) {
        parsed.message = CommandHelp(command, columns);
    } else if (command.name == QLatin1String("help")) {
        parsed.message = HelpFor(parsed.inputs, columns);
    }
    return parsed;
}

} // namespace BatchCli
