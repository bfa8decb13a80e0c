// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"

#include "hosts/cli/options/PartOptions.h"
#include "hosts/cli/options/PolicyArguments.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/Language.h"
#include "hosts/common/PartJob.h"
#include "hosts/common/ReportFile.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "job/plan/Trouble.h"
#include "job/values/Phrase.h"

#include <QFile>

#include <algorithm>
#include <memory>
#include <set>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

const QString reportOption = QStringLiteral("--report");

/// What the parts of a plan have done.
struct Collection
{
    QVector<int> unfinished; ///< parts, from 1
    QVector<int> withFailures;
    std::set<PolicyKind> leftOut;           ///< the policies that have left pictures out; None if nobody knows why
    QVector<QPair<int, Versions>> byOthers; ///< parts, and the other versions that have made pictures of them
    int finished = 0;
    int written = 0;
    int skipped = 0;
    int failed = 0;
    int notProcessed = 0;
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
        if (!HasResult(result.kind)) {
            all.leftOut.insert(PolicyOfError(result.errorCode));
        }
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

    void Miss()
    {
        ++all.notProcessed;
        isUnfinished = true;
    }

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

/// Whether a run of its part has settled a result, and what it has written is still there.
bool IsSettled(const PartJournals::Known& known, int index, const QString& output)
{
    const auto found = known.results.constFind(index);
    return found != known.results.constEnd() && (!HasResult(found->kind) || IsStillThere(*found, output));
}

FileResult ResultOf(const JournalState::Result& settled)
{
    FileResult result;
    result.kind = settled.kind;
    result.errorCode = settled.errorCode;
    result.reason = settled.reason;
    result.warnings = settled.warnings;
    result.facts = settled.facts;
    result.finished = settled.finished;
    return result;
}

/// Looks at one part at a time, as a job may have very many pictures. Writes an entry for each result to `report`, if
/// there is one.
Collection Collect(const QString& path, const PartPlan& plan, const FolderNames& names, ReportFile* report)
{
    Collection all;
    RunInputs variants;
    variants.variants = VariantsOf(plan, names);
    const PartJournals journals(path, plan);
    const QString folder = names.Here(plan.folder);
    if (report) {
        report->Begin(!variants.variants.isEmpty());
    }
    for (int number = 1; number <= plan.parts.size(); ++number) {
        const PartJournals::Known known = journals.Of(number);
        for (const Versions& makers : known.others) {
            all.byOthers.append({number, makers});
        }
        PartCount count(all, number);
        int index = 0;
        VisitPart(path, plan, number, [&](const PlannedFile& file) {
            for (const PlannedResult& planned : file.results) {
                const QString output = folder + QLatin1Char('/') + planned.name.output;
                const bool isSettled = IsSettled(known, index, output);
                FileResult result = isSettled ? ResultOf(known.results.value(index)) : FileResult();
                result.input = names.Here(file.input);
                result.inputBytes = file.stamp.bytes;
                result.preset = variants.VariantAt(index);
                if (isSettled) {
                    result.output = planned.name.output.isEmpty() ? QString() : output;
                    count.Add(result);
                } else {
                    count.Miss();
                }
                if (report) {
                    report->Add(result, isSettled ? ResultWord(result.kind) : WordOfUnprocessed());
                }
                ++index;
            }
        });
        count.Finish();
    }
    if (report) {
        report->Commit();
    }
    return all;
}

/// Whether the report, if one is wanted, was written. Says why it was not.
bool IsReported(const ReportFile* report)
{
    if (report && !report->Error().isEmpty()) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(Translated(report->Error())));
        return false;
    }
    return true;
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
                      QString::number(all.skipped), QString::number(all.failed), QString::number(all.notProcessed)) +
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
    return all.notProcessed == 0 && std::all_of(all.leftOut.begin(), all.leftOut.end(),
                                                [&said](PolicyKind kind) { return AreLeftOut(said, kind); });
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

std::unique_ptr<ReportFile> ReportOf(const ParsedArguments& arguments)
{
    if (!arguments.Has(reportOption)) {
        return nullptr;
    }
    try {
        return std::make_unique<ReportFile>(arguments.Value(reportOption));
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
    const std::unique_ptr<ReportFile> report = ReportOf(arguments);
    const Collection all = Collect(path, plan, names, report.get());
    const bool isReported = IsReported(report.get());
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
