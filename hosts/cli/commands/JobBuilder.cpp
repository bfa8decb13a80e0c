#include "JobBuilder.h"

#include "hosts/cli/options/JobOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/RunSummary.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/InputCollector.h"
#include "hosts/common/InputList.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/WildcardInputs.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QFileInfo>
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

void CheckForStandardInput(const QStringList& inputs)
{
    if (inputs.contains(QStringLiteral("-")) && !QFileInfo::exists(QStringLiteral("-"))) {
        throw RequestError{
            QStringLiteral("there is no file \"-\"; to read names from standard input, use --files-from -")};
    }
}

/// The names in the list of --files-from.
QStringList ListedInputs(const ParsedArguments& arguments)
{
    const QString filesFrom = QStringLiteral("--files-from");
    const bool isNulSeparated = arguments.Has(QStringLiteral("--null"));
    if (!arguments.Has(filesFrom)) {
        if (isNulSeparated) {
            throw RequestError{QStringLiteral("--null needs %1").arg(filesFrom)};
        }
        return {};
    }
    const QString list = arguments.Value(filesFrom);
    if (list == QLatin1String("-") && Terminal::IsInputTerminal()) {
        throw RequestError{
            QStringLiteral("%1 -: standard input is a terminal; pipe a list into it, or name a file").arg(filesFrom)};
    }
    return ReadInputList(list, isNulSeparated);
}

} // namespace

InputLosses BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
                     const QStringList& inputs)
{
    SetJobDefaults(job);
    if (!savedJob.isEmpty()) {
        LoadJob(job, savedJob);
    }
    if (arguments.Has(QStringLiteral("--no-inputs"))) {
        job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    }
    ApplyOptions(job, arguments);

    const InputFilter filter = FilterOf(arguments, job);
    InputCollector collector(job, filter);
    CheckForStandardInput(inputs);
    const QStringList listed = ListedInputs(arguments);
    const ExpandedInputs named = ExpandWildcards(inputs, filter);
    StatusLine line(!arguments.Has(QStringLiteral("--quiet")));
    collector.onProgress = [&line](int folders, int files, const QString& folder) {
        line.Show([&] {
            return QStringLiteral("Folders read: %1, pictures found: %2, now in %3")
                .arg(QLocale::c().toString(folders), QLocale::c().toString(files), folder);
        });
    };
    collector.Add(named.paths + listed);
    line.Clear();
    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    const QStringList problems = named.problems + collector.Problems();
    for (const QString& text : isQuiet ? problems : collector.Repetitions() + problems) {
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
    return {problems.size(), collector.LeftOut()};
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
