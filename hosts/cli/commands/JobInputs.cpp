// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobInputs.h"

#include "hosts/cli/options/OrderOption.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/RunSummary.h"
#include "hosts/cli/terminal/StatusLine.h"
#include "hosts/common/InPlaceOutput.h"
#include "hosts/common/InputList.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/WildcardInputs.h"
#include "hosts/common/options/Words.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QFileInfo>
#include <QLocale>

using namespace BatchHost;

namespace BatchCli {

namespace {

void CheckForStandardInput(const QStringList& inputs)
{
    if (inputs.contains(QStringLiteral("-")) && !QFileInfo::exists(QStringLiteral("-"))) {
        throw RequestError{
            BatchJob::Phrase::English("there is no file \"-\"; to read names from standard input, use --files-from -")};
    }
}

/// The names in the list of --files-from.
QStringList ListedInputs(const ParsedArguments& arguments)
{
    const QString filesFrom = QStringLiteral("--files-from");
    const bool isNulSeparated = arguments.Has(QStringLiteral("--null"));
    if (!arguments.Has(filesFrom)) {
        if (isNulSeparated) {
            throw RequestError{BatchJob::Phrase::English("--null needs %1").arg(filesFrom)};
        }
        return {};
    }
    const QString list = arguments.Value(filesFrom);
    if (list == QLatin1String("-") && Terminal::IsInputTerminal()) {
        throw RequestError{
            BatchJob::Phrase::English("%1 -: standard input is a terminal; pipe a list into it, or name a file")
                .arg(filesFrom)};
    }
    return ReadInputList(list, isNulSeparated);
}

void Sort(ZTBatchDocument& job, InputOrder order, const QStringList& inputs, StatusLine& line)
{
    QStringList paths;
    for (const QString& input : inputs) {
        paths.append(AbsolutePath(input));
    }
    SortInputs(job, order, paths, [&line](int done, int files) {
        line.Show([&] { return Messages::tr("Looking at pictures: %1 of %2").arg(done).arg(files); });
    });
}

/// Lets results go to the folders of their originals.
void StayInPlace(ZTBatchDocument& job, const ParsedArguments& arguments)
{
    const QString structure = QStringLiteral("--structure");
    if (arguments.Has(structure)) {
        throw RequestError{
            BatchJob::Phrase::English("%1 cannot be used with --in-place without --output: results go to the folders "
                                      "of their originals")
                .arg(structure)};
    }
    SetOutputInPlace(job);
}

RequestError NoPictures(const ParsedArguments& arguments)
{
    QStringList wildcards;
    for (const QString& wildcard : arguments.Values(QStringLiteral("--include"))) {
        wildcards.append(QStringLiteral("--include \"%1\"").arg(wildcard));
    }
    if (wildcards.isEmpty()) {
        return {BatchJob::Phrase::English("no pictures"), RequestError::Kind::NoPictures};
    }
    if (wildcards.size() == 1) {
        return {BatchJob::Phrase::English("no pictures: %1 matches nothing").arg(wildcards.first()),
                RequestError::Kind::NothingMatches};
    }
    const QString last = wildcards.takeLast();
    return {BatchJob::Phrase::English("no pictures: %1 and %2 match nothing")
                .arg(wildcards.join(QStringLiteral(", ")), last),
            RequestError::Kind::NothingMatches};
}

/// Writes what was not taken to standard error.
void TellLosses(const InputCollector& collector, const QStringList& problems, const ParsedArguments& arguments)
{
    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    for (const QString& text : isQuiet ? problems : collector.Repetitions() + problems) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(Translated(text)));
    }
    if (arguments.Has(QStringLiteral("--verbose"))) {
        for (const LeftOutFile& file : collector.LeftOut()) {
            WriteErrorLine(QStringLiteral("velkora-batch: ") +
                           Messages::tr("%1 is left out: it begins like a %2 file, but its extension is not known.")
                               .arg(file.path, file.format));
        }
    }
}

} // namespace

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

InputLosses AddInputs(ZTBatchDocument& job, const ParsedArguments& arguments, const QStringList& inputs)
{
    const std::optional<InputOrder> order = OrderIn(arguments);
    const InputFilter filter = FilterOf(arguments, job);
    InputCollector collector(job, filter);
    CheckForStandardInput(inputs);
    const QStringList listed = ListedInputs(arguments);
    const ExpandedInputs named = ExpandWildcards(inputs, filter);
    StatusLine line(!arguments.Has(QStringLiteral("--quiet")));
    collector.onProgress = [&line](int folders, int files, const QString& folder) {
        line.Show([&] {
            return Messages::tr("Folders read: %1, pictures found: %2, now in %3")
                .arg(QLocale::c().toString(folders), QLocale::c().toString(files), folder);
        });
    };
    const QStringList paths = named.paths + listed;
    collector.Add(paths);
    if (order) {
        Sort(job, *order, paths, line);
    }
    line.Clear();
    const QStringList problems = named.problems + collector.Problems();
    TellLosses(collector, problems, arguments);
    if (arguments.Has(QStringLiteral("--in-place")) && job.GetOutputSettings()->GetPath().isEmpty()) {
        StayInPlace(job, arguments);
    }
    return {problems.size(), collector.LeftOut()};
}

bool HasPictures(const ZTBatchDocument& job, const ParsedArguments& arguments, const QStringList& inputs)
{
    if (job.GetInputModel()->GetFileNodesCount() > 0) {
        return true;
    }
    if (inputs.isEmpty() && !arguments.Has(QStringLiteral("--files-from"))) {
        throw RequestError{BatchJob::Phrase::English("no inputs"), RequestError::Kind::NoInputs};
    }
    if (!arguments.Has(QStringLiteral("--allow-empty"))) {
        throw NoPictures(arguments);
    }
    const bool needsNoFolder = arguments.Has(QStringLiteral("--in-place")); // That is the folder of the pictures.
    if (!needsNoFolder || !job.GetOutputSettings()->GetPath().isEmpty()) {
        RequireUsableSettings(job);
    }
    if (!arguments.Has(QStringLiteral("--quiet"))) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(WithFullStop(Translated(NoPictures(arguments).text))));
    }
    return false;
}

void TellLeftOut(const LeftOutFiles& files, const ParsedArguments& arguments)
{
    if (!files.isEmpty() && !arguments.Has(QStringLiteral("--quiet"))) {
        WriteErrorLine(LeftOutText(files.size()));
    }
}

} // namespace BatchCli
