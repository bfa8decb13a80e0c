// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandLine.h"
#include "OrderOption.h"
#include "PartOptions.h"
#include "PresetOptions.h"
#include "RunOptions.h"

#include "hosts/common/options/FormatNames.h"
#include "hosts/common/options/JobOptions.h"
#include "hosts/common/options/PolicyOptions.h"
#include "job/effects/EffectCatalog.h"
#include "job/values/JobValues.h"
#include "job/values/Phrase.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

QString Text(const char* text)
{
    return QString::fromUtf8(text);
}

QVector<OptionInfo> InputOptions()
{
    const QString group = BatchJob::Phrase::English("Inputs");
    return {
        {Text("--no-inputs"), QString(), BatchJob::Phrase::English("drops the inputs of the saved job first"), group},
        {Text("--files-from"), Text("FILE"),
         BatchJob::Phrase::English(
             "also takes the files and folders that a file names, one a line, or standard input for \"-\". Relative "
             "names start at the current folder"),
         group, false, Completion::Files},
        {Text("--null"),
         QString(),
         BatchJob::Phrase::English("the names of --files-from are separated by NUL, not by line ends"),
         group,
         false,
         Completion::Nothing,
         {},
         Text("-0")},
        {Text("--include"), Text("WILDCARD"),
         BatchJob::Phrase::English(
             "takes only files whose names match, such as \"*.{nef,cr2}\", or whose paths in the given folders match, "
             "such as \"2024/**/*.jpg\"; default: all that can be read. Files that are given by name are always taken"),
         group, true},
        {Text("--exclude"), Text("WILDCARD"),
         BatchJob::Phrase::English("leaves out files and folders whose names or paths match, inside the given folders"),
         group, true},
        {Text("--no-subfolders"), QString(), BatchJob::Phrase::English("leaves out folders inside folders"), group},
        {Text("--hidden"), QString(),
         BatchJob::Phrase::English("includes files and folders whose names begin with a dot"), group},
        {orderOption, Text("WORD"),
         BatchJob::Phrase::English(
             "the order of the pictures, which numbers in names follow: taken, by capture time, and by the file's own "
             "time where there is none; name, folder by folder; given, as the command line names them. The default is "
             "name, or the order of the saved job"),
         group, false, Completion::Words, BatchJob::AllWords(BatchHost::inputOrderWords)},
    };
}

QVector<OptionInfo> GeneralOptions()
{
    const QString group = BatchJob::Phrase::English("General");
    return {
        {Text("--quiet"),
         QString(),
         BatchJob::Phrase::English("prints problems only"),
         group,
         false,
         Completion::Nothing,
         {},
         Text("-q")},
        {Text("--verbose"),
         QString(),
         BatchJob::Phrase::English("also prints details for finding faults"),
         group,
         false,
         Completion::Nothing,
         {},
         Text("-v")},
        {Text("--help"),
         QString(),
         BatchJob::Phrase::English("prints this text"),
         group,
         false,
         Completion::Nothing,
         {},
         Text("-h")},
    };
}

QVector<OptionInfo> JobOptionInfos()
{
    QVector<OptionInfo> infos;
    for (const JobOption& option : JobOptions()) {
        infos.append(option.info);
    }
    return infos;
}

/// What may follow "watch". The inputs come from the folder alone, as they come.
QVector<OptionInfo> OptionsOfWatching()
{
    const QStringList ofNamedInputs{Text("--no-inputs"), Text("--files-from"), Text("--null"), orderOption};
    QVector<OptionInfo> infos;
    for (const OptionInfo& info : OptionsOfJobs()) {
        if (!ofNamedInputs.contains(info.name)) {
            infos.append(info);
        }
    }
    return infos + PolicyOptionInfos() + WatchOptionInfos() + GeneralOptions();
}

QStringList EffectIds()
{
    QStringList ids;
    for (const BatchJob::EffectSchema& effect : BatchJob::Effects()) {
        ids.append(effect.id);
    }
    return ids;
}

QVector<CommandInfo> WithHelp(QVector<CommandInfo> commands)
{
    CommandInfo help{QStringLiteral("help"),
                     Text("[COMMAND]"),
                     BatchJob::Phrase::English("prints the help of a command"),
                     {GeneralOptions().last()},
                     Completion::Words};
    for (const CommandInfo& command : qAsConst(commands)) {
        help.words.append(command.name);
    }
    commands.append(help);
    return commands;
}

QVector<CommandInfo> MakeCommands()
{
    const QVector<OptionInfo> ofJobs = OptionsOfJobs() + QVector<OptionInfo>{SettingsOptionInfo()} + GeneralOptions();
    const QVector<OptionInfo> ofLists = QVector<OptionInfo>{
        {Text("--json"), QString(), BatchJob::Phrase::English("prints JSON"), BatchJob::Phrase::English("General")},
        GeneralOptions().last()};
    const QVector<OptionInfo> ofCreate = QVector<OptionInfo>{FromOptionInfo(), ForceOptionInfo()} + ofJobs;
    return {
        {Text("run"), Text("[JOB.xml...] [INPUT...]"),
         BatchJob::Phrase::English(
             "processes a saved job, files and folders, or both; options override the job. Several jobs make several "
             "results of each picture, each in a folder of its name. Exit status: 0 when all "
             "pictures were written, or left out by a policy that an option names; 1 when some failed or were left out "
             "otherwise; 2 for wrong arguments or a wrong job; 3 when the server could not be started or was lost; 4 "
             "when the run was cancelled; 5 when there is no picture among the inputs; 6 when this run is going on "
             "already; 7 when there is nothing to resume"),
         OptionsOfJobs(PresetsOptionInfo()) + PolicyOptionInfos() + RunOptionInfos() + PartOptionInfos() +
             GeneralOptions(),
         Completion::Files},
        {Text("watch"), Text("[JOB.xml] FOLDER"),
         BatchJob::Phrase::English(
             "processes the pictures in a folder and its subfolders, and those that come, until it is ended. Pictures "
             "are taken when they have arrived whole, and each once, also over restarts; numbers in names go on. "
             "Nobody is asked: ask becomes rename for names, stop for the output, and skip otherwise. Exit status: 0 "
             "when it was ended between pictures; 4 when it was ended while pictures were in work, which the next "
             "start finishes; 1 when the folder is gone or the output cannot be written; 2 for wrong arguments or a "
             "wrong job; 3 when the server could not be started or was lost; 6 when the output folder is used for "
             "watching already"),
         OptionsOfWatching(), Completion::Files},
        {Text("create"), Text("JOB.xml [INPUT...]"),
         BatchJob::Phrase::English(
             "writes a job with these inputs and options to a file, or to standard output for \"-\""),
         ofCreate, Completion::Files},
        {Text("show"), Text("[JOB.xml] [INPUT...]"),
         BatchJob::Phrase::English(
             "prints a job: its inputs as a tree, its effects, and its output in the words of the options"),
         ofJobs, Completion::Files},
        {Text("plan"), Text("[JOB.xml...] [INPUT...]"),
         BatchJob::Phrase::English(
             "prints every input with its output and its size in pixels, and writes nothing. A problem is printed in "
             "brackets, with what "
             "the policy would do about it. Exit status: 1 when there are problems"),
         OptionsOfJobs(PresetsOptionInfo()) + PolicyOptionInfos() + PlanOptionInfos() +
             QVector<OptionInfo>{
                 {Text("--no-sizes"), QString(),
                  BatchJob::Phrase::English(
                      "does not look at every picture for its size in pixels, which takes time for many"),
                  BatchJob::Phrase::English("General")},
                 {Text("--json"), QString(), BatchJob::Phrase::English("prints one JSON object for each input"),
                  BatchJob::Phrase::English("General")},
                 SettingsOptionInfo()} +
             GeneralOptions(),
         Completion::Files},
        {Text("split"), Text("[JOB.xml...] [INPUT...]"),
         BatchJob::Phrase::English(
             "cuts a job into parts that can be made at once, on many machines, by \"velkora-batch run --plan\": "
             "writes "
             "a plan with every input and the name of every result, and nothing else. Clashes of names are settled by "
             "the policies. Exit status: 2 when the job cannot be split; 5 when there is no picture among the inputs"),
         OptionsOfJobs(PresetsOptionInfo()) + PolicyOptionInfos() + SplitOptionInfos() +
             QVector<OptionInfo>{SettingsOptionInfo()} + GeneralOptions(),
         Completion::Files},
        {Text("collect"), Text("PLAN"),
         BatchJob::Phrase::English(
             "says what the parts of a plan have done and which are to be run again. When all are done without "
             "failures, the plan and its journals are removed. Exit status: 0 when all pictures were written; 1 when "
             "some failed, were left out or are not made yet; 2 when the plan cannot be used"),
         CollectOptionInfos() + QVector<OptionInfo>{GeneralOptions().last()}, Completion::Files},
        {Text("effects"), Text("[NAME...]"), BatchJob::Phrase::English("lists the effects with their parameters"),
         ofLists, Completion::Words, EffectIds()},
        {Text("formats"), Text("[NAME...]"),
         BatchJob::Phrase::English("lists the output formats with their options, and the files that can be read"),
         ofLists, Completion::Words, FormatNames()},
        PresetsCommandInfo(JobOptionInfos(), GeneralOptions()),
    };
}

} // namespace

QVector<OptionInfo> OptionsOfJobs(const OptionInfo& preset)
{
    return QVector<OptionInfo>{preset} + InputOptions() + JobOptionInfos();
}

const QVector<CommandInfo>& Commands()
{
    static const QVector<CommandInfo> commands = WithHelp(MakeCommands());
    return commands;
}

} // namespace BatchCli
