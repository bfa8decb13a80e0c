// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "JobBuilder.h"

#include "hosts/cli/options/PresetOptions.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/Presets.h"
#include "hosts/common/options/Words.h"
#include "job/values/Phrase.h"
#include "job/values/VisibleText.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

const QString list = QStringLiteral("list");
const QString save = QStringLiteral("save");
const QString remove = QStringLiteral("remove");

/// Options that do not fit the action are mistakes: what they say would be lost.
void RequireOptionsOf(const QString& action, const ParsedArguments& arguments)
{
    const QStringList always{QStringLiteral("--settings"), QStringLiteral("--quiet"), QStringLiteral("--verbose")};
    const QStringList given = arguments.options.keys();
    for (const QString& option : given) {
        const bool isOfList = option == QLatin1String("--json");
        const bool fits = always.contains(option) || (action == list ? isOfList : action == save && !isOfList);
        if (!fits) {
            throw RequestError{BatchJob::Phrase::English("%1 is not for \"presets %2\", but for \"presets %3\"")
                                   .arg(option, action, isOfList ? list : save)};
        }
    }
}

QString NameAmong(const QStringList& rest, const QString& action)
{
    if (rest.isEmpty()) {
        throw RequestError{
            BatchJob::Phrase::English("the name of the preset is missing: velkora-batch presets %1 NAME").arg(action)};
    }
    if (rest.size() > 1) {
        throw RequestError{
            action == save ? BatchJob::Phrase::English("a preset has no inputs, but \"%1\" is given behind its name")
                                 .arg(rest.at(1))
                           : BatchJob::Phrase::English("one preset at a time, but \"%1\" is given behind its name")
                                 .arg(rest.at(1))};
    }
    return rest.first();
}

QString Json(const QVector<Preset>& presets)
{
    QJsonArray array;
    for (const Preset& preset : presets) {
        QJsonObject object{{QStringLiteral("name"), preset.name},
                           {QStringLiteral("title"), preset.title},
                           {QStringLiteral("file"), preset.file},
                           {QStringLiteral("comesAlong"), preset.comesAlong}};
        if (!preset.problem.isEmpty()) {
            object.insert(QStringLiteral("error"), preset.problem);
        }
        array.append(object);
    }
    return QString::fromUtf8(BatchJob::VisibleJson(QJsonDocument(array).toJson()));
}

QString Listing(const QVector<Preset>& presets)
{
    int width = 0;
    for (const Preset& preset : presets) {
        width = std::max(width, Terminal::WidthOf(BatchJob::VisibleText(preset.name)));
    }
    const QString alongText = Messages::tr("comes along");
    const QString yoursText = Messages::tr("yours");
    const int originWidth = std::max(Terminal::WidthOf(alongText), Terminal::WidthOf(yoursText));
    QString text;
    for (const Preset& preset : presets) {
        if (!preset.problem.isEmpty()) {
            continue;
        }
        const QString name = BatchJob::VisibleText(preset.name);
        const QString origin = preset.comesAlong ? alongText : yoursText;
        const QString title = BatchJob::VisibleText(preset.comesAlong ? Translated(preset.title) : preset.title);
        text += name + QString(width - Terminal::WidthOf(name) + 2, QLatin1Char(' ')) + origin +
                QString(originWidth - Terminal::WidthOf(origin), QLatin1Char(' ')) +
                (title.isEmpty() ? QString() : QStringLiteral("  ") + title) + QLatin1Char('\n');
    }
    return text;
}

ExitCode ListPresets(const Presets& presets, const ParsedArguments& arguments)
{
    const QVector<Preset> all = presets.All();
    WriteOut(arguments.Has(QStringLiteral("--json")) ? Json(all) : Listing(all));
    ExitCode code = ExitCode::Done;
    for (const Preset& preset : all) {
        if (!preset.problem.isEmpty()) {
            WriteErrorLine(QStringLiteral("velkora-batch: ") +
                           Messages::tr("the preset %1 in %2 cannot be used: %3")
                               .arg(preset.name, preset.file, WithFullStop(Translated(preset.problem))));
            code = ExitCode::Incomplete;
        }
    }
    return code;
}

/// A folder that was given relative stays so: results go below the folder where the preset is run.
void KeepRelativeOutput(ZTBatchOutputSettings& output, const ParsedArguments& arguments)
{
    const QString folder = arguments.Value(QStringLiteral("--output"));
    if (!folder.isEmpty() && QDir::isRelativePath(folder)) {
        output.SetPath(QDir::cleanPath(folder));
    }
}

void SavePreset(const Presets& presets, const QString& name, const ParsedArguments& arguments)
{
    ZTBatchDocument job;
    BuildSettings(job, arguments, arguments.Value(QStringLiteral("--from")));
    KeepRelativeOutput(*job.GetOutputSettings(), arguments);
    job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    RequireUsableSettingsButFolder(job);
    const QString file = presets.Save(job, name, arguments.Has(QStringLiteral("--force")));
    if (!arguments.Has(QStringLiteral("--quiet"))) {
        WriteErrorLine(Messages::tr("%1: the preset %2.").arg(file, name));
    }
}

} // namespace

ExitCode KeepPresets(const ParsedArguments& arguments)
{
    const Presets presets(SettingsFolder(arguments));
    const QString action = arguments.inputs.value(0, list);
    const QStringList actions{list, save, remove};
    if (!actions.contains(action)) {
        throw NoSuchWord(action, actions);
    }
    RequireOptionsOf(action, arguments);
    const QStringList rest = arguments.inputs.mid(1);
    if (action == save) {
        SavePreset(presets, NameAmong(rest, action), arguments);
    } else if (action == remove) {
        presets.Remove(NameAmong(rest, action));
    } else if (!rest.isEmpty()) {
        throw RequestError{
            BatchJob::Phrase::English("list takes no name, but \"%1\" is given; \"velkora-batch show --preset "
                                      "NAME\" prints a preset")
                .arg(rest.first())};
    } else {
        return ListPresets(presets, arguments);
    }
    return ExitCode::Done;
}

} // namespace BatchCli
