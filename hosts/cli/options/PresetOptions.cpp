#include "PresetOptions.h"

namespace BatchCli {

OptionInfo PresetOptionInfo()
{
    return {QStringLiteral("--preset"), QStringLiteral("NAME"),
            QStringLiteral("starts from a preset; \"velkora-batch presets\" lists them"), QStringLiteral("Inputs")};
}

OptionInfo SettingsOptionInfo()
{
    return {QStringLiteral("--settings"),
            QStringLiteral("DIR"),
            QStringLiteral("the folder with BatchExceptionPolicy.ini (default policies) and presets/ (your presets)"),
            QStringLiteral("General"),
            false,
            Completion::Folders};
}

OptionInfo FromOptionInfo()
{
    return {QStringLiteral("--from"),
            QStringLiteral("JOB.xml"),
            QStringLiteral("starts from a saved job"),
            QStringLiteral("Inputs"),
            false,
            Completion::Files};
}

OptionInfo ForceOptionInfo()
{
    return {QStringLiteral("--force"), QString(), QStringLiteral("replaces an existing file"),
            QStringLiteral("General")};
}

CommandInfo PresetsCommandInfo(const QVector<OptionInfo>& ofJobs, const QVector<OptionInfo>& general)
{
    const QVector<OptionInfo> ofPresets{PresetOptionInfo(), FromOptionInfo()};
    const QVector<OptionInfo> others{
        ForceOptionInfo(),
        {QStringLiteral("--json"), QString(), QStringLiteral("prints the list as JSON"), QStringLiteral("General")},
        SettingsOptionInfo()};
    return {
        QStringLiteral("presets"),
        QStringLiteral("[list | save NAME | remove NAME]"),
        QStringLiteral("lists the presets, saves the options as a preset, or removes one. A preset is a job without "
                       "inputs that run, plan, show and create take by --preset NAME; a relative --output starts "
                       "where it is run. Exit status: 1 when a preset cannot be used"),
        ofPresets + ofJobs + others + general,
        Completion::Words,
        {QStringLiteral("list"), QStringLiteral("save"), QStringLiteral("remove")}};
}

} // namespace BatchCli
