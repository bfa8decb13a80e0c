#include "JobBuilder.h"

#include "hosts/cli/options/JobOptions.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/RunSummary.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/InputCollector.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/Presets.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QLocale>

using namespace BatchHost;

namespace BatchCli {

namespace {

void ApplyOptions(ZTBatchDocument& job, const ParsedArguments& arguments)
{
    for (const JobOption& option : JobOptions()) {
        for (const QString& value : arguments.Values(option.info.name)) {
            try {
                option.apply(job, value);
            } catch (const RequestError& error) {
                throw error.In(option.info.name);
            }
        }
    }
}

/// A preset or a job may say where results go relative to where it is run.
void ResolveOutputFolder(ZTBatchOutputSettings& output)
{
    const QString folder = output.GetPath();
    if (!folder.isEmpty() && QDir::isRelativePath(folder)) {
        output.SetPath(AbsolutePath(folder));
    }
}

InputFilter FilterOf(const ParsedArguments& arguments, const ZTBatchDocument& job)
{
    InputFilter filter;
    filter.only = arguments.Values(QStringLiteral("--include"));
    filter.except = arguments.Values(QStringLiteral("--exclude"));
    filter.subfolders = !arguments.Has(QStringLiteral("--no-subfolders"));
    filter.hidden = arguments.Has(QStringLiteral("--hidden"));
    filter.outputFolder = job.GetOutputSettings()->GetPath();
    return filter;
}

} // namespace

void BuildSettings(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob)
{
    const QString preset = QStringLiteral("--preset");
    SetJobDefaults(job);
    if (arguments.Has(preset)) {
        if (!savedJob.isEmpty()) {
            throw RequestError{QStringLiteral("%1 and --preset exclude each other: give one of them to start from")
                                   .arg(arguments.Has(QStringLiteral("--from")) ? QStringLiteral("--from") : savedJob)};
        }
        Presets(SettingsFolder(arguments)).Load(job, arguments.Value(preset));
    } else if (!savedJob.isEmpty()) {
        LoadJob(job, savedJob);
    }
    if (arguments.Has(QStringLiteral("--no-inputs"))) {
        job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    }
    ApplyOptions(job, arguments);
}

InputLosses BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
                     const QStringList& inputs)
{
    BuildSettings(job, arguments, savedJob);
    ResolveOutputFolder(*job.GetOutputSettings());

    InputCollector collector(job, FilterOf(arguments, job));
    StatusLine line(!arguments.Has(QStringLiteral("--quiet")));
    collector.onProgress = [&line](int folders, int files, const QString& folder) {
        line.Show([&] {
            return QStringLiteral("Folders read: %1, pictures found: %2, now in %3")
                .arg(QLocale::c().toString(folders), QLocale::c().toString(files), folder);
        });
    };
    collector.Add(inputs);
    line.Clear();
    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    for (const QString& text : isQuiet ? collector.Problems() : collector.Repetitions() + collector.Problems()) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(text));
    }
    if (arguments.Has(QStringLiteral("--verbose"))) {
        for (const LeftOutFile& file : collector.LeftOut()) {
            WriteErrorLine(
                QStringLiteral("velkora-batch: %1 is left out: it begins like a %2 file, but its extension is "
                               "not known.")
                    .arg(file.path, file.format));
        }
    }
    return {collector.Problems().size(), collector.LeftOut()};
}

void TellLeftOut(const LeftOutFiles& files, const ParsedArguments& arguments)
{
    if (!files.isEmpty() && !arguments.Has(QStringLiteral("--quiet"))) {
        WriteErrorLine(LeftOutText(files.size()));
    }
}

QString TakeSavedJob(QStringList& inputs)
{
    return inputs.value(0).endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) ? inputs.takeFirst() : QString();
}

} // namespace BatchCli
