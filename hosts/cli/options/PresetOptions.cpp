// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetOptions.h"

#include "job/values/Phrase.h"

namespace BatchCli {

OptionInfo PresetOptionInfo()
{
    return {QStringLiteral("--preset"), QStringLiteral("NAME"),
            BatchJob::Phrase::English("starts from a preset; \"velkora-batch presets\" lists them"),
            BatchJob::Phrase::English("Inputs")};
}

OptionInfo PresetsOptionInfo()
{
    OptionInfo info = PresetOptionInfo();
    info.help = BatchJob::Phrase::English("starts from a preset; \"velkora-batch presets\" lists them. Given several "
                                          "times, each picture gets a result of "
                                          "each preset, in a folder of its name in the output folder");
    info.isRepeatable = true;
    return info;
}

OptionInfo SettingsOptionInfo()
{
    return {QStringLiteral("--settings"),
            QStringLiteral("DIR"),
            BatchJob::Phrase::English(
                "the folder with BatchExceptionPolicy.ini (default policies) and presets/ (your presets)"),
            BatchJob::Phrase::English("General"),
            false,
            Completion::Folders};
}

OptionInfo FromOptionInfo()
{
    return {QStringLiteral("--from"),
            QStringLiteral("JOB.xml"),
            BatchJob::Phrase::English("starts from a saved job"),
            BatchJob::Phrase::English("Inputs"),
            false,
            Completion::Files};
}

OptionInfo ForceOptionInfo()
{
    return {QStringLiteral("--force"), QString(), BatchJob::Phrase::English("replaces an existing file"),
            BatchJob::Phrase::English("General")};
}

CommandInfo PresetsCommandInfo(const QVector<OptionInfo>& ofJobs, const QVector<OptionInfo>& general)
{
    const QVector<OptionInfo> ofPresets{PresetOptionInfo(), FromOptionInfo()};
    const QVector<OptionInfo> others{ForceOptionInfo(),
                                     {QStringLiteral("--json"), QString(),
                                      BatchJob::Phrase::English("prints the list as JSON"),
                                      BatchJob::Phrase::English("General")},
                                     SettingsOptionInfo()};
    return {QStringLiteral("presets"),
            QStringLiteral("[list | save NAME | remove NAME]"),
            BatchJob::Phrase::English(
                "lists the presets, saves the options as a preset, or removes one. A preset is a job without "
                "inputs that run, plan, show and create take by --preset NAME; a relative --output starts "
                "where it is run. Exit status: 1 when a preset cannot be used"),
            ofPresets + ofJobs + others + general,
            Completion::Words,
            {QStringLiteral("list"), QStringLiteral("save"), QStringLiteral("remove")}};
}

} // namespace BatchCli
