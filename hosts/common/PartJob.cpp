// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartJob.h"

#include "JournaledJob.h"
#include "RequestError.h"

#include "job/plan/Policies.h"
#include "job/plan/Trouble.h"
#include "job/record/Recipe.h"
#include "job/settings/JobBundle.h"
#include "job/settings/JobFiles.h"
#include "job/values/Phrase.h"
#include "server/protocol/WorkerProgram.h"
#include "server/protocol/WorkerVersions.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>

#include <algorithm>
#include <memory>

using namespace BatchJob;

namespace BatchHost {

namespace {

/// Only the end of a folder's name ends a match.
bool IsIn(const QString& path, const QString& folder)
{
    return path == folder || path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

void AddInputs(ZTBatchDocument& job, const QVector<PlannedFile>& files)
{
    const int digits = QString::number(files.size()).size();
    for (int i = 0; i < files.size(); ++i) {
        auto node = std::make_unique<TreeNode<BatchNodeData>>();
        node->data.inputText = QStringLiteral("%1").arg(i, digits, 10, QLatin1Char('0')); // They sort by it.
        node->data.fileName = files.at(i).input;
        node->data.type = File;
        node->data.enabled = true;
        node->data.fileNodesCount = 1;
        node->data.bookmark = ZVFileBookmark(files.at(i).input);
        job.GetInputModel()->InsertBranch(node.release(), QModelIndex());
    }
}

void CheckFile(const QString& path, const FileStamp& planned)
{
    const std::optional<FileStamp> now = StampOf(path);
    if (!now) {
        throw RequestError{
            Phrase::English("%1 is missing here, but was there when the job was split; --map names folders "
                            "that are elsewhere on this machine")
                .arg(path)};
    }
    if (!now->LooksLike(planned)) {
        throw RequestError{Phrase::English("%1 has changed since the job was split; split the job again").arg(path)};
    }
}

} // namespace

FolderNames::FolderNames(const QStringList& texts)
{
    for (const QString& text : texts) {
        const int sign = text.indexOf(QLatin1Char('='));
        const QString from = QDir::cleanPath(text.left(sign));
        const QString to = QDir::cleanPath(text.mid(sign + 1));
        if (sign < 1 || QDir::isRelativePath(from) || QDir::isRelativePath(to)) {
            throw RequestError{
                Phrase::English("\"%1\" must be two absolute folders with \"=\" between them").arg(text)};
        }
        names.append({from, to});
    }
}

QString FolderNames::Here(const QString& path) const
{
    for (const auto& [from, to] : names) {
        if (IsIn(path, from)) {
            const QString below = path.mid(from.size());
            return below.isEmpty() ? to : QDir::cleanPath(to + QLatin1Char('/') + below);
        }
    }
    return path;
}

PartPlan PlanIn(const QString& path)
{
    QString problem;
    const std::optional<PartPlan> plan = ReadPlan(path, problem);
    if (!plan) {
        throw RequestError{Phrase::English("the plan %1 cannot be used: %2").arg(path, problem)};
    }
    return *plan;
}

void VisitPart(const QString& path, const PartPlan& plan, int number,
               const std::function<void(const PlannedFile&)>& visit)
{
    const QString damage = Phrase::English("the plan %1 cannot be used: %2")
                               .arg(path, Phrase::English("it is damaged; split the job again"));
    int files = 0;
    const bool isWhole = ReadPart(path, plan, number - 1, [&](const PlannedFile& file) {
        if (file.results.size() != plan.jobs.size()) {
            throw RequestError{damage};
        }
        ++files;
        visit(file);
    });
    if (!isWhole || files != plan.parts.at(number - 1).files) {
        throw RequestError{damage};
    }
}

QVector<PlannedFile> FilesOfPart(const QString& path, const PartPlan& plan, int number)
{
    QVector<PlannedFile> files;
    VisitPart(path, plan, number, [&files](const PlannedFile& file) { files.append(file); });
    return files;
}

Versions MakersHere(const QString& version)
{
    QString problem;
    const std::optional<Versions> ofWorker = BatchProtocol::VersionsOfWorker(BatchProtocol::WorkerProgram(), problem);
    if (!ofWorker) {
        throw RequestError{Phrase::English("%1 was asked for the versions of its libraries: %2")
                               .arg(BatchProtocol::WorkerProgram(), problem)};
    }
    Versions makers = *ofWorker;
    makers.insert(QStringLiteral("velkora-batch"), version);
    makers.insert(QStringLiteral("Qt"), QString::fromLatin1(qVersion()));
    makers.insert(QStringLiteral("pictures"), QString::number(pictureVersion));
    return makers;
}

QString DifferenceOfMakers(const PartPlan& plan, const Versions& here)
{
    return plan.makers == here ? QString()
                               : Phrase::English("the plan was made with %1, but here are %2")
                                     .arg(DifferenceBetween(plan.makers, here), DifferenceBetween(here, plan.makers));
}

QVector<RunVariant> VariantsOf(const PartPlan& plan, const FolderNames& names)
{
    QVector<RunVariant> variants;
    for (const PartPlan::Job& job : plan.jobs) {
        if (!job.name.isEmpty()) {
            variants.append({job.name, names.Here(job.outputFolder)});
        }
    }
    return variants;
}

PartJob::PartJob(const QString& path, const PartPlan& plan, int number, const FolderNames& names)
    : path(path)
    , plan(plan)
    , number(number)
    , names(names)
    , folder(names.Here(plan.folder))
    , files(FilesOfPart(path, plan, number))
    , journals(path, plan)
    , known(journals.Of(number))
{
    for (PlannedFile& file : files) {
        file.input = names.Here(file.input);
    }
}

void PartJob::CheckFiles() const
{
    for (const auto& [source, stamp] : plan.sources) {
        CheckFile(names.Here(source), stamp);
    }
    const int jobs = plan.jobs.size();
    for (int i = 0; i < files.size(); ++i) {
        bool isDone = true;
        for (int result = i * jobs; result < (i + 1) * jobs; ++result) {
            isDone = isDone && (Planned(result).IsLeftOut() || IsWritten(result));
        }
        if (!isDone) {
            CheckFile(files.at(i).input, files.at(i).stamp);
        }
    }
}

JournaledJob PartJob::Begin(ZTBatchDocument& job, const Versions& makers) const
{
    const QString text = TextFor(job);
    const QString journalPath = journals.NewPath(number);
    RunJournal journal;
    QString problem;
    journal.onFailure = [&problem](const QString& what) { problem = what; };
    if (journal.Create(journalPath, text, plan.policies)) {
        journal.FixNames(NamesOfResults());
        journal.SettleAll(SettledResults());
        journal.NoteMakers(makers); // Of what follows.
    } else {
        problem = journal.Problem();
    }
    if (!problem.isEmpty()) {
        throw RequestError{
            Phrase::English("the journal of the part, %1, cannot be written: %2. It belongs beside the plan")
                .arg(journalPath, problem)};
    }
    return JournaledJob::OfPart(text, folder, VariantsOf(plan, names), journalPath, plan.policies);
}

QString PartJob::TextFor(ZTBatchDocument& job) const
{
    JobBundle bundle;
    bundle.folder = folder;
    for (const PartPlan::Job& planned : plan.jobs) {
        ZTBatchDocument other;
        ZTBatchDocument& one = bundle.parts.isEmpty() ? job : other;
        if (!one.Deserialize(planned.document)) {
            throw RequestError{Phrase::English("the plan %1 cannot be used: %2")
                                   .arg(path, Phrase::English("it is damaged; split the job again"))};
        }
        const QString outputFolder = names.Here(planned.outputFolder);
        one.GetOutputSettings()->SetPath(outputFolder);
        MoveFilesOfSettings(one, [this](const QString& file) { return names.Here(file); });
        if (bundle.parts.isEmpty()) {
            AddInputs(one, files);
        }
        bundle.parts.append({planned.name, one.Serialize(nullptr), outputFolder});
    }
    return plan.jobs.size() == 1 ? bundle.parts.first().document : bundle.Text();
}

QVector<FixedName> PartJob::NamesOfResults() const
{
    QVector<FixedName> fixed;
    for (int i = 0; i < ResultCount(); ++i) {
        fixed.append(Planned(i).name);
        fixed.last().output = Output(i);
    }
    return fixed;
}

/// What the plan leaves out, and what other runs of the part have written.
QVector<QPair<int, JournalState::Result>> PartJob::SettledResults() const
{
    const auto leftOut = [](const QString& output, int code, const QString& reason) {
        const auto kind =
            CountsAsSkipped(BatchJob::Action::FileSkipped, code) ? ResultKind::Skipped : ResultKind::Failed;
        return JournalState::Result{kind, output, code, reason, {}, {}, QDateTime::currentDateTimeUtc(), {}};
    };
    QVector<QPair<int, JournalState::Result>> settled;
    for (int i = 0; i < ResultCount(); ++i) {
        const PlannedResult& planned = Planned(i);
        const QString output = Output(i);
        if (planned.IsLeftOut()) {
            settled.append({i, leftOut(output, planned.code, planned.reason)});
        } else if (IsWritten(i)) {
            settled.append({i, known.results.value(i)});
            settled.last().second.output = output;
        }
    }
    return settled;
}

/// Whether another run has written the result, and it is still there.
bool PartJob::IsWritten(int result) const
{
    const auto found = known.results.constFind(result);
    return found != known.results.constEnd() && HasResult(found->kind) && IsStillThere(*found, Output(result));
}

const PlannedResult& PartJob::Planned(int result) const
{
    return files.at(result / plan.jobs.size()).results.at(result % plan.jobs.size());
}

/// Empty for a result that has no name.
QString PartJob::Output(int result) const
{
    const QString name = Planned(result).name.output;
    return name.isEmpty() ? QString() : folder + QLatin1Char('/') + name;
}

} // namespace BatchHost
