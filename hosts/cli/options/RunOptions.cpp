#include "RunOptions.h"

#include "PresetOptions.h"
#include "ValueTexts.h"

#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "server/protocol/ServerLimits.h"

#include <QFileInfo>

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
    LimitOption{"--workers", "NUMBER", "how many pictures are processed at a time; default: one for each core",
                workersLimit, "-j"},
    LimitOption{"--max-megapixels", "NUMBER", "larger pictures are not read; default: 400", megapixelsLimit},
    LimitOption{"--worker-memory", "MIB", "memory that one picture may take; default: 2048", workerMemoryLimit},
    LimitOption{"--picture-time", "SECONDS", "time that one picture may take; default: 300", pictureTimeLimit},
};

const QString followLinks = QStringLiteral("--follow-links");
const QString inPlace = QStringLiteral("--in-place");

} // namespace

QVector<OptionInfo> PlanOptionInfos()
{
    const QString run = QStringLiteral("Run");
    return {
        {inPlace, QString(),
         QStringLiteral(
             "lets results replace their own originals. Without --output, results go to the folders of their "
             "originals. Without this option no original is ever replaced"),
         run},
        {QStringLiteral("--allow-empty"), QString(),
         QStringLiteral("ends with 0, not with 5, when there is no picture among the inputs"), run},
    };
}

QVector<OptionInfo> RunOptionInfos()
{
    const QString run = QStringLiteral("Run");
    QVector<OptionInfo> infos{
        {QStringLiteral("--dry-run"),
         QString(),
         QStringLiteral("prints what the run would write, as \"velkora-batch plan\" does, and writes nothing"),
         run,
         false,
         Completion::Nothing,
         {},
         QStringLiteral("-n")},
        {QStringLiteral("--report"), QStringLiteral("FILE"),
         QStringLiteral("writes the result of every input to a file, as CSV or JSON by the extension of its name"), run,
         false, Completion::Files},
        {QStringLiteral("--resume"), QString(),
         QStringLiteral("resumes the run that was interrupted in the output folder, with its job and its policies"),
         run},
        {QStringLiteral("--run"), QStringLiteral("NAME"),
         QStringLiteral("says which run to resume if several were interrupted; --resume lists their names"), run},
        {QStringLiteral("--strict"), QString(),
         QStringLiteral("counts a picture with a warning as failed; its result is kept"), run},
        {QStringLiteral("--json"), QString(),
         QStringLiteral("prints each event of the run to standard output, as one line of JSON"), run},
        SettingsOptionInfo(),
    };
    infos.append({followLinks, QString(),
                  QStringLiteral("lets results go through links to folders below the output folder; otherwise such a "
                                 "link is an error of output"),
                  run});
    for (const LimitOption& option : limitOptions) {
        infos.append({QString::fromLatin1(option.name),
                      QString::fromLatin1(option.valueName),
                      QString::fromLatin1(option.help),
                      QStringLiteral("Limits"),
                      false,
                      Completion::Nothing,
                      {},
                      QString::fromLatin1(option.shortName)});
    }
    return infos + PlanOptionInfos();
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
    if (arguments.Has(inPlace)) {
        inPlaceLimit.Set(1);
    }
}

QString SettingsFolder(const ParsedArguments& arguments)
{
    const QString option = QStringLiteral("--settings");
    if (!arguments.Has(option)) {
        return UserSettingsFolder();
    }
    const QString folder = AbsolutePath(arguments.Value(option));
    if (QFileInfo::exists(folder) && !QFileInfo(folder).isDir()) {
        throw RequestError{QStringLiteral("%1: %2 is not a folder").arg(option, folder)};
    }
    return folder;
}

} // namespace BatchCli
