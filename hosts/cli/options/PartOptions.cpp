// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartOptions.h"

#include "hosts/common/RequestError.h"
#include "hosts/common/options/PolicyOptions.h"
#include "job/values/Phrase.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

const QString plan = QStringLiteral("--plan");
const QString part = QStringLiteral("--part");
const QString map = QStringLiteral("--map");
const QString sameVersions = QStringLiteral("--same-versions");

QString Parts()
{
    return BatchJob::Phrase::English("Parts");
}

QVector<OptionInfo> SharedInfos()
{
    return {
        {map, QStringLiteral("FROM=TO"),
         BatchJob::Phrase::English("the folder FROM of the plan is the folder TO on this machine; both are absolute"),
         Parts(), true},
        {sameVersions, QString(),
         BatchJob::Phrase::English("makes it an error, not a warning, when parts are made by other versions than the "
                                   "plan"),
         Parts()},
    };
}

} // namespace

QVector<OptionInfo> SplitOptionInfos()
{
    return {
        {QStringLiteral("--parts"), QStringLiteral("NUMBER"),
         BatchJob::Phrase::English("how many parts to cut the job into; each gets about as many bytes of pictures"),
         Parts()},
        {plan, QStringLiteral("FILE"), BatchJob::Phrase::English("the file to write the plan to; it is replaced"),
         Parts(), false, Completion::Files},
    };
}

QVector<OptionInfo> PartOptionInfos()
{
    return QVector<OptionInfo>{
               {plan, QStringLiteral("FILE"),
                BatchJob::Phrase::English(
                    "makes one part of the job that \"velkora-batch split\" has written to a file"),
                Parts(), false, Completion::Files},
               {part, QStringLiteral("NUMBER"),
                BatchJob::Phrase::English(
                    "which part, from 1; default: what the environment says in SLURM_ARRAY_TASK_ID, "
                    "JOB_COMPLETION_INDEX, which counts from 0, or PARALLEL_SEQ"),
                Parts()},
           } +
           SharedInfos();
}

QVector<OptionInfo> CollectOptionInfos()
{
    return QVector<OptionInfo>{
               {QStringLiteral("--report"), QStringLiteral("FILE"),
                BatchJob::Phrase::English(
                    "writes the result of every input to a file, as CSV or JSON by the extension of its name"),
                Parts(), false, Completion::Files},
               {QStringLiteral("--remove"), QString(),
                BatchJob::Phrase::English("removes the plan and its journals also when pictures have failed; without "
                                          "this option they stay until all parts are done without failures"),
                Parts()},
           } +
           SharedInfos();
}

ParsedArguments WithPolicies(const ParsedArguments& arguments, const QMap<QString, QString>& said)
{
    ParsedArguments all = arguments;
    for (auto it = said.begin(); it != said.end(); ++it) {
        all.options.insert(it.key(), {it.value()});
    }
    return all;
}

void CheckPartOptions(const ParsedArguments& arguments)
{
    if (!arguments.Has(plan)) {
        for (const QString& option : {part, map, sameVersions}) {
            if (arguments.Has(option)) {
                throw RequestError{
                    BatchJob::Phrase::English("%1 is for a part of a job; name its plan with --plan").arg(option)};
            }
        }
        return;
    }
    if (!arguments.inputs.isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("the plan has a job and pictures of its own; leave out \"%1\"")
                               .arg(arguments.inputs.first())};
    }
    QVector<OptionInfo> others = OptionsOfJobs() + PolicyOptionInfos();
    for (const char* const name : {"--resume", "--run", "--update", "--checksum", "--delete-orphans", "--dry-run",
                                   "--in-place", "--allow-empty"}) {
        others.append({QString::fromLatin1(name), {}, {}, {}});
    }
    for (const OptionInfo& other : others) {
        if (arguments.Has(other.name)) {
            throw RequestError{
                BatchJob::Phrase::English("%1 and %2 contradict each other; remove one of them").arg(plan, other.name)};
        }
    }
}

} // namespace BatchCli
