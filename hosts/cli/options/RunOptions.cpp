#include "RunOptions.h"

#include "ValueTexts.h"

#include "hosts/common/UsageError.h"
#include "hosts/common/UserPath.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <array>

using namespace BatchHost;

namespace BatchCli {

namespace {

struct Limit
{
    const char* option;
    const char* valueName;
    const char* help;
    const char* variable; ///< see ServerLimits.h
    int minimum;
    int maximum;
};

constexpr std::array limits{
    Limit{"--workers", "NUMBER", "how many pictures are in work at a time; default: one for each core",
          "VELKORA_BATCH_WORKERS", 1, 256},
    Limit{"--max-megapixels", "NUMBER", "pictures with more are not read; default: 400", "VELKORA_BATCH_MAX_MEGAPIXELS",
          1, 100'000},
    Limit{"--worker-memory", "MIB", "memory that one picture may take; default: 2048", "VELKORA_BATCH_WORKER_MIB", 128,
          1 << 20},
    Limit{"--picture-time", "SECONDS", "time that one picture may take; default: 300", "VELKORA_BATCH_PICTURE_SECONDS",
          1, 86'400},
};

} // namespace

QVector<OptionInfo> RunOptionInfos()
{
    const QString run = QStringLiteral("Run");
    QVector<OptionInfo> infos{
        {QStringLiteral("--report"), QStringLiteral("FILE"),
         QStringLiteral("writes what became of every input, as CSV or JSON by the name's end"), run, false,
         Completion::Files},
        {QStringLiteral("--resume"), QString(),
         QStringLiteral("goes on with the run that was interrupted in the output folder, exactly as it would have gone "
                        "on: with its job and its policies"),
         run},
        {QStringLiteral("--json"), QString(),
         QStringLiteral("prints every event of the run as a JSON object on a line of its own to standard output"), run},
        {QStringLiteral("--settings"), QStringLiteral("DIR"),
         QStringLiteral("the folder with BatchExceptionPolicy.ini, which holds the policies that no option sets"), run,
         false, Completion::Folders},
    };
    for (const Limit& limit : limits) {
        infos.append({QString::fromLatin1(limit.option), QString::fromLatin1(limit.valueName),
                      QString::fromLatin1(limit.help), QStringLiteral("Limits")});
    }
    return infos;
}

void ApplyServerLimits(const ParsedArguments& arguments)
{
    for (const Limit& limit : limits) {
        const QString option = QString::fromLatin1(limit.option);
        if (!arguments.Has(option)) {
            continue;
        }
        try {
            const int value = IntegerFromText(arguments.Value(option), limit.minimum, limit.maximum);
            qputenv(limit.variable, QByteArray::number(value));
        } catch (const UsageError& error) {
            throw UsageError{QStringLiteral("%1: %2").arg(option, error.text)};
        }
    }
}

QString SettingsFolder(const ParsedArguments& arguments)
{
    const QString option = QStringLiteral("--settings");
    if (!arguments.Has(option)) {
        return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    }
    const QString folder = AbsolutePath(arguments.Value(option));
    if (QFileInfo::exists(folder) && !QFileInfo(folder).isDir()) {
        throw UsageError{QStringLiteral("%1: %2 is no folder").arg(option, folder)};
    }
    return folder;
}

} // namespace BatchCli
