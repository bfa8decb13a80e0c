// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"

#include "hosts/cli/options/PartOptions.h"
#include "hosts/cli/options/PolicyArguments.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/Language.h"
#include "hosts/common/PartJob.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/RunReport.h"
#include "hosts/common/UserPath.h"
#include "job/plan/Trouble.h"
#include "job/values/Phrase.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

const QString reportOption = QStringLiteral("--report");

/// What the parts of a plan have done.
struct Collection
{
    RunInputs inputs;
    QVector<QPair<int, FileResult>> results; ///< by their places in `inputs`
    QVector<int> unfinished;                 ///< parts, from 1
    QVector<int> withFailures;
    QVector<QPair<int, Versions>> byOthers; ///< parts, and the other versions that have made pictures of them
    int finished = 0;
    int written = 0;
    int skipped = 0;
    int failed = 0;

    int NotProcessed() const { return inputs.files.size() - results.size(); }
};

/// Counts the results of one part.
class PartCount
{
public:
    PartCount(Collection& all, int number)
        : all(all)
        , number(number)
    {
    }

    void Add(const FileResult& result)
    {
        all.results.append({all.inputs.files.size() - 1, result});
        switch (result.kind) {
        case ResultKind::Written:
        case ResultKind::Unchanged:
            ++all.written;
            break;
        case ResultKind::Skipped:
            ++all.skipped;
            break;
        case ResultKind::Failed:
            ++all.failed;
            hasFailures = true;
            break;
        }
    }

    void Miss() { isUnfinished = true; }

    void Finish()
    {
        all.finished += isUnfinished ? 0 : 1;
        if (isUnfinished) {
            all.unfinished.append(number);
        } else if (hasFailures) {
            all.withFailures.append(number);
        }
    }

private:
    Collection& all;
    const int number;
    bool hasFailures = false;
    bool isUnfinished = false;
};

/// The result of `planned`, or nothing if no run of its part has settled it, or what it has written is gone.
std::optional<FileResult> ResultOf(const PlannedResult& planned, const PartJournals::Known& known, int index,
                                   const QString& output)
{
    const auto found = known.results.constFind(index);
    if (found == known.results.constEnd() || (HasResult(found->kind) && !QFileInfo::exists(output))) {
        return std::nullopt;
    }
    FileResult result;
    result.output = planned.name.output.isEmpty() ? QString() : output;
    result.kind = found->kind;
    result.errorCode = found->errorCode;
    result.reason = found->reason;
    result.warnings = found->warnings;
    result.facts = found->facts;
    result.finished = found->finished;
    return result;
}

Collection Collect(const QString& path, const PartPlan& plan, const FolderNames& names)
{
    Collection all;
    all.inputs.variants = VariantsOf(plan, names);
    const PartJournals journals(path, plan);
    const QString folder = names.Here(plan.folder);
    for (int number = 1; number <= plan.parts.size(); ++number) {
        const PartJournals::Known known = journals.Of(number);
        for (const Versions& makers : known.others) {
            all.byOthers.append({number, makers});
        }
        PartCount count(all, number);
        int index = 0;
        for (const PlannedFile& file : FilesOfPart(path, plan, number)) {
            for (const PlannedResult& planned : file.results) {
                all.inputs.files.append(names.Here(file.input));
                all.inputs.bytes.append(file.stamp.bytes);
                std::optional<FileResult> result =
                    ResultOf(planned, known, index++, folder + QLatin1Char('/') + planned.name.output);
                if (result) {
                    result->input = all.inputs.files.last();
                    result->inputBytes = file.stamp.bytes;
                    result->preset = all.inputs.VariantAt(all.inputs.files.size() - 1);
                    count.Add(*result);
                } else {
                    count.Miss();
                }
            }
        }
        count.Finish();
    }
    return all;
}

/// False if it could not be written.
bool WriteReport(RunReport& report, const Collection& all, const QString& folder)
{
    report.OnStart(all.inputs, folder);
    for (const auto& [place, result] : all.results) {
        report.OnResult(result, 0, 0);
    }
    report.OnEnd({});
    if (!report.Error().isEmpty()) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(Translated(report.Error())));
    }
    return report.Error().isEmpty();
}

QString ListOf(const QVector<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return texts.join(QLatin1Char(','));
}

void Tell(const Collection& all, const PartPlan& plan)
{
    WriteOut(Messages::tr("Parts done: %1 of %2. Written: %3, skipped: %4, failed: %5, not processed: %6.")
                 .arg(QString::number(all.finished), QString::number(plan.parts.size()), QString::number(all.written),
                      QString::number(all.skipped), QString::number(all.failed), QString::number(all.NotProcessed())) +
             QLatin1Char('\n'));
    if (!all.unfinished.isEmpty()) {
        WriteOut(Messages::tr("Parts to run again, as they are not done: %1").arg(ListOf(all.unfinished)) +
                 QLatin1Char('\n'));
    }
    if (!all.withFailures.isEmpty()) {
        WriteOut(Messages::tr("Parts to run again, as pictures have failed: %1").arg(ListOf(all.withFailures)) +
                 QLatin1Char('\n'));
    }
}

/// Whether every picture was written, or left out as an option of split said.
bool IsAsWanted(const Collection& all, const ParsedArguments& arguments, const PartPlan& plan)
{
    const ParsedArguments said = WithPolicies(arguments, plan.said);
    return all.NotProcessed() == 0 && std::all_of(all.results.begin(), all.results.end(), [&said](const auto& one) {
               const FileResult& result = one.second;
               return HasResult(result.kind) || AreLeftOut(said, PolicyOfError(result.errorCode));
           });
}

void TellOthers(const Collection& all, const PartPlan& plan)
{
    for (const auto& [number, makers] : all.byOthers) {
        WriteErrorLine(QStringLiteral("velkora-batch: ") +
                       Messages::tr("part %1 was made with %2, but the plan with %3; its pictures may differ.")
                           .arg(QString::number(number), DifferenceBetween(makers, plan.makers),
                                DifferenceBetween(plan.makers, makers)));
    }
}

std::unique_ptr<RunReport> ReportOf(const ParsedArguments& arguments)
{
    if (!arguments.Has(reportOption)) {
        return nullptr;
    }
    try {
        return std::make_unique<RunReport>(arguments.Value(reportOption));
    } catch (const RequestError& error) {
        throw error.In(reportOption);
    }
}

} // namespace

ExitCode CollectParts(const ParsedArguments& arguments)
{
    if (arguments.inputs.size() != 1) {
        throw RequestError{Phrase::English("collect takes one plan, the file that split has written")};
    }
    const QString path = AbsolutePath(arguments.inputs.first());
    const PartPlan plan = PlanIn(path);
    const FolderNames names(arguments.Values(QStringLiteral("--map")));
    const std::unique_ptr<RunReport> report = ReportOf(arguments);
    const Collection all = Collect(path, plan, names);
    const bool isReported = !report || WriteReport(*report, all, names.Here(plan.folder));
    Tell(all, plan);
    TellOthers(all, plan);
    const bool isSame = all.byOthers.isEmpty() || !arguments.Has(QStringLiteral("--same-versions"));
    const bool isDone =
        isSame && all.unfinished.isEmpty() && (all.failed == 0 || arguments.Has(QStringLiteral("--remove")));
    if (isDone && isReported && (!PartJournals(path, plan).Remove() || !QFile::remove(path))) {
        WriteErrorLine(QStringLiteral("velkora-batch: ") +
                       Messages::tr("the plan %1 or its journals cannot be removed.").arg(path));
    }
    return IsAsWanted(all, arguments, plan) && isReported && isSame ? ExitCode::Done : ExitCode::Incomplete;
}

} // namespace BatchCli
