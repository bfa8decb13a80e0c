// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunOptions.h"

#include "PresetOptions.h"

#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/options/ValueTexts.h"
#include "job/values/Phrase.h"
#include "server/protocol/ServerLimits.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace BatchHost;
using namespace BatchProtocol;

namespace BatchCli {

namespace {

struct LimitOption
{
    const char* name;
    const char* valueName;
    const char* help;
    ServerLimit limit;
    const char* shortName = "";
};

constexpr std::array limitOptions{
    LimitOption{"--workers", "NUMBER",
                BatchJob::Phrase::Marked("how many pictures are processed at a time; default: one for each core"),
                workersLimit, "-j"},
    LimitOption{"--max-megapixels", "NUMBER", BatchJob::Phrase::Marked("larger pictures are not read; default: 400"),
                megapixelsLimit},
    LimitOption{"--worker-memory", "MIB", BatchJob::Phrase::Marked("memory that one picture may take; default: 2048"),
                workerMemoryLimit},
    LimitOption{"--picture-time", "SECONDS", BatchJob::Phrase::Marked("time that one picture may take; default: 300"),
                pictureTimeLimit},
};

const QString followLinks = QStringLiteral("--follow-links");
const QString normalPriority = QStringLiteral("--normal-priority");
const QString inPlace = QStringLiteral("--in-place");
const QString update = QStringLiteral("--update");
const QString checksum = QStringLiteral("--checksum");
const QString deleteOrphans = QStringLiteral("--delete-orphans");

} // namespace

QVector<OptionInfo> PlanOptionInfos()
{
    const QString run = BatchJob::Phrase::English("Run");
    return {
        {inPlace, QString(),
         BatchJob::Phrase::English(
             "lets results replace their own originals. Without --output, results go to the folders of their "
             "originals. Without this option no original is ever replaced"),
         run},
        {QStringLiteral("--allow-empty"), QString(),
         BatchJob::Phrase::English("ends with 0, not with 5, when there is no picture among the inputs"), run},
    };
}

QVector<OptionInfo> RunOptionInfos()
{
    const QString run = BatchJob::Phrase::English("Run");
    QVector<OptionInfo> infos{
        {QStringLiteral("--dry-run"),
         QString(),
         BatchJob::Phrase::English(
             "prints what the run would write, as \"velkora-batch plan\" does, and writes nothing"),
         run,
         false,
         Completion::Nothing,
         {},
         QStringLiteral("-n")},
        {QStringLiteral("--report"), QStringLiteral("FILE"),
         BatchJob::Phrase::English(
             "writes the result of every input to a file, as CSV or JSON by the extension of its name"),
         run, false, Completion::Files},
        {QStringLiteral("--resume"), QString(),
         BatchJob::Phrase::English(
             "resumes the run that was interrupted in the output folder, with its job and its policies"),
         run},
        {QStringLiteral("--run"), QStringLiteral("NAME"),
         BatchJob::Phrase::English("says which run to resume if several were interrupted; --resume lists their names"),
         run},
        {update, QString(),
         BatchJob::Phrase::English(
             "makes only what has changed since the last update into the output folder: its input, the job's settings, "
             "or a file that they name. All other results stay as they are"),
         run},
        {checksum, QString(),
         BatchJob::Phrase::English("lets an update compare the contents of files, not only their sizes and times"),
         run},
        {deleteOrphans, QString(),
         BatchJob::Phrase::English("lets an update remove results that it has made earlier and whose inputs are gone"),
         run},
        {QStringLiteral("--strict"), QString(),
         BatchJob::Phrase::English("counts a picture with a warning as failed; its result is kept"), run},
        {QStringLiteral("--json"), QString(),
         BatchJob::Phrase::English("prints each event of the run to standard output, as one line of JSON"), run},
        SettingsOptionInfo(),
    };
    infos.append(
        {followLinks, QString(),
         BatchJob::Phrase::English("lets results go through links to folders below the output folder; otherwise such a "
                                   "link is an error of output"),
         run});
    for (const LimitOption& option : limitOptions) {
        infos.append({QString::fromLatin1(option.name),
                      QString::fromLatin1(option.valueName),
                      QString::fromLatin1(option.help),
                      BatchJob::Phrase::English("Limits"),
                      false,
                      Completion::Nothing,
                      {},
                      QString::fromLatin1(option.shortName)});
    }
    infos.append(
        {normalPriority, QString(),
         BatchJob::Phrase::English("shares the processor equally with other programs; otherwise they come first"),
         BatchJob::Phrase::English("Limits")});
    return infos + PlanOptionInfos();
}

QVector<OptionInfo> WatchOptionInfos()
{
    const QString watch = BatchJob::Phrase::English("Watching");
    QVector<OptionInfo> infos{
        {QStringLiteral("--settle"), QStringLiteral("SECONDS"),
         BatchJob::Phrase::English("how long a picture has to stay the same before it is taken; default: 2. Pictures "
                                   "that are moved into the folder are taken at once"),
         watch},
        {QStringLiteral("--poll"), QStringLiteral("SECONDS"),
         BatchJob::Phrase::English("looks for pictures every so many seconds, in place of waiting for the system's "
                                   "word; default: 5 where the system tells nothing, as for network folders"),
         watch},
    };
    const QStringList ofRuns{QStringLiteral("--strict"), QStringLiteral("--json"), QStringLiteral("--settings"),
                             followLinks, normalPriority};
    const auto isLimit = [](const OptionInfo& info) {
        return std::any_of(limitOptions.begin(), limitOptions.end(),
                           [&info](const LimitOption& option) { return info.name == QLatin1String(option.name); });
    };
    const QVector<OptionInfo> runInfos = RunOptionInfos();
    for (const OptionInfo& info : runInfos) {
        if (ofRuns.contains(info.name) || isLimit(info)) {
            infos.append(info);
        }
    }
    return infos;
}

void ApplyServerLimits(const ParsedArguments& arguments)
{
    for (const LimitOption& option : limitOptions) {
        const QString name = QString::fromLatin1(option.name);
        if (!arguments.Has(name)) {
            continue;
        }
        try {
            option.limit.Set(IntegerFromText(arguments.Value(name), option.limit.minimum, option.limit.maximum));
        } catch (const RequestError& error) {
            throw error.In(name);
        }
    }
    if (arguments.Has(followLinks)) {
        followLinksLimit.Set(1);
    }
    if (arguments.Has(normalPriority)) {
        normalPriorityLimit.Set(1);
    }
    if (arguments.Has(inPlace)) {
        inPlaceLimit.Set(1);
    }
}

std::optional<BatchJob::Update> UpdateOf(const ParsedArguments& arguments)
{
    for (const QString& option : {checksum, deleteOrphans}) {
        if (arguments.Has(option) && !arguments.Has(update)) {
            throw RequestError{BatchJob::Phrase::English("%1 needs --update").arg(option)};
        }
    }
    if (!arguments.Has(update)) {
        return std::nullopt;
    }
    for (const QString& other : {inPlace, QStringLiteral("--resume"), QStringLiteral("--dry-run")}) {
        if (arguments.Has(other)) {
            throw RequestError{
                BatchJob::Phrase::English("%1 and %2 contradict each other; remove one of them").arg(update, other)};
        }
    }
    return BatchJob::Update{arguments.Has(checksum)};
}

QString SettingsFolder(const ParsedArguments& arguments)
{
    const QString option = QStringLiteral("--settings");
    if (!arguments.Has(option)) {
        return UserSettingsFolder();
    }
    const QString folder = AbsolutePath(arguments.Value(option));
    if (QFileInfo::exists(folder) && !QFileInfo(folder).isDir()) {
        throw RequestError{BatchJob::Phrase::English("%1 is not a folder").arg(folder)}.In(option);
    }
    return folder;
}

} // namespace BatchCli
