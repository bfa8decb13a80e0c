// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunPreparation.h"

#include "JobReader.h"

#include "job/journal/LockFiles.h"
#include "job/journal/OwnFile.h"
#include "job/plan/SharedNames.h"
#include "job/values/FileIdentity.h"
#include "job/values/Phrase.h"
#include "job/values/Shares.h"
#include "server/protocol/TemporaryFile.h"
#include "server/protocol/WorkerJob.h"

#include <QFileInfo>

#include <algorithm>
#include <future>
#include <utility>
#include <vector>

using namespace BatchJob;
using BatchProtocol::TemporaryFile;

namespace BatchSupervisor {

void RunPreparation::ReadJob(QString document, const QString& journalPath, const Cancelled& isCancelled)
{
    OpenJournal(journalPath, document);
    if (refusal.code != ZTBatchMessage::NoError) {
        return;
    }
    std::future<void> recordReader;
    if (earlier && earlier->update) {
        // Beside the reading of the job and its inputs: both look at each picture.
        recordReader = std::async(std::launch::async, [this, &isCancelled, folder = QFileInfo(journalPath).path()] {
            ReadRecord(folder, isCancelled);
        });
    }
    const JobReader::Job job = JobReader::Read(std::exchange(document, {}), isCancelled);
    refusal = job.refusal;
    if (isCancelled() || refusal.code != ZTBatchMessage::NoError) {
        return;
    }
    const bool isBundle = !job.folder.isEmpty();
    using BatchProtocol::WorkerJob;
    const QVector<WorkerJob> jobs = isBundle ? WorkerJob::Of(job.settings, job.files, job.folder)
                                             : QVector<WorkerJob>{WorkerJob::Of(job.settings.value(0), job.files)};
    QVector<JobSettings> accepted;
    for (const WorkerJob& ofWorkers : jobs) {
        refusal = ofWorkers.refusal; // A file that the settings name may have changed since the job was read.
        if (refusal.code != ZTBatchMessage::NoError) {
            return;
        }
        accepted.append(ofWorkers.settings);
    }
    if (jobs.size() > 1 && replacesOriginals) {
        refusal = {ZTBatchMessage::ReadOutputSettingsError,
                   Phrase::English("Several results of one picture cannot replace their original")};
        return;
    }
    settings = job.settings;
    const QString folder = isBundle ? job.folder : accepted.first().outputFolder;
    // Where the output folder exists, workers that have probed files can go on to make pictures.
    const bool hasFolder = QFileInfo(folder).isDir();
    rightsToProbe = hasFolder ? jobs.first().rightsToMake : jobs.first().rightsToRead;
    rightsToMake = jobs.first().rightsToMake;
    plan = RunPlan(OutputPlan(job.files, accepted, folder));
    if (replacesOriginals) {
        plan.ReplaceOriginals();
    }
    EnterEarlierResults();
    plan.ReadInputs(isCancelled);
    if (recordReader.valid()) {
        for (int i = 0; i < accepted.size(); ++i) {
            recipes.append(Recipe(settings.at(i), accepted.at(i)));
        }
        recordReader.get();
        plan.ReplaceOwnResults(ownResults);
    }
}

void RunPreparation::OpenJournal(const QString& path, const QString& document)
{
    if (path.isEmpty() || !QFileInfo::exists(path)) {
        return;
    }
    const auto refuse = [this, &path](const QString& reason) {
        refusal = {ZTBatchMessage::WriteOutputFormatError,
                   Phrase::English("the journal %1 cannot be used: %2").arg(path, reason)};
    };
    const QString lockPath = path + QLatin1String(journalHoldEnd);
    const QString problemOfLock = WhyNotOwnLock(lockPath);
    if (!problemOfLock.isEmpty()) {
        refuse(QStringLiteral("%1: %2").arg(lockPath, problemOfLock));
        return;
    }
    // The server of a host that was killed may still be cleaning up.
    constexpr int lockTimeout = 15'000; // ms
    journalLock = std::make_unique<QLockFile>(lockPath);
    journalLock->setStaleLockTime(0); // Only the end of its holder makes a lock stale, not its age.
    if (!TakeLock(*journalLock, lockPath, lockTimeout)) {
        const bool isHeld = journalLock->error() == QLockFile::LockFailedError;
        refuse(isHeld ? Phrase::English("another server holds %1").arg(lockPath)
                      : Phrase::English("%1 cannot be written; the disk may be full").arg(lockPath));
        return;
    }
    if (!journal.Open(path)) {
        refuse(journal.Problem());
        return;
    }
    earlier = ReadJournal(path);
    if (!earlier || earlier->document != document) {
        earlier.reset();
        journal = {};
    }
}

void RunPreparation::EnterEarlierResults()
{
    using Kind = JournalState::Result::Kind;
    if (!earlier) {
        return;
    }
    for (auto it = earlier->names.constBegin(); it != earlier->names.constEnd(); ++it) {
        if (it.key() < plan.Count()) {
            plan.UseName(it.key(), *it);
        }
    }
    for (auto it = earlier->begun.constBegin(); it != earlier->begun.constEnd(); ++it) {
        if (it.key() >= plan.Count() || plan.HasFixedName(it.key())) {
            continue; // A fixed name may be that of anybody's file. The worker compares them.
        }
        const std::optional<FileIdentity> identity = IdentityOf(it->output);
        if (identity && it->before.isEmpty() && QFileInfo(it->output).size() == 0) {
            placeholders.append(it->output); // No result is empty.
        } else if (identity && identity->Text() != it->before) {
            earlier->results.insert(it.key(), {Kind::Written, it->output, 0, {}});
            unreported.append(it.key());
        }
    }
    for (auto it = earlier->results.constBegin(); it != earlier->results.constEnd(); ++it) {
        if (it.key() >= plan.Count()) {
            continue;
        }
        if (HasResult(it->kind)) {
            plan.KeepResult(it.key(), it->output);
        } else {
            plan.KeepWithoutResult(it.key(), it->output);
        }
    }
}

void RunPreparation::MakeNames(const Policies& policies, const Cancelled& isCancelled)
{
    if (earlier && !earlier->isComplete) {
        plan.ExpectResultsSince(earlier->beganAt);
    }
    for (const QString& path : qAsConst(placeholders)) {
        TemporaryFile beside(path, outputRoot);
        if (beside.Create()) {
            beside.RemovePlaceholder();
        }
    }
    if (!plan.MakeNames(policies, isCancelled)) {
        return;
    }
    if (refusesSharedNames && policies.Of(PolicyKind::Naming) == Decision::Skip) {
        refusal = RefusalOfSharedNames(plan);
    }
    if (refusal.code != ZTBatchMessage::NoError) {
        return;
    }
    FindUnjournaledResults();
    FindUnchanged(isCancelled);
    for (const QString& folder : plan.Folders()) {
        if (!isCancelled()) {
            const TemporaryFile::Sweeping sweeping = TemporaryFile::Sweep(folder, outputRoot);
            removedFiles += sweeping.removed;
            unclearFiles += sweeping.unclear;
        }
    }
}

void RunPreparation::FindUnjournaledResults()
{
    if (!earlier || earlier->isComplete) {
        return;
    }
    for (int i = 0; i < plan.Count(); ++i) {
        const bool isKnown = earlier->results.contains(i) || earlier->begun.contains(i);
        if (isKnown || plan.HasFixedName(i) || plan.TroubleOf(i).kind != PolicyKind::None) {
            continue;
        }
        const std::optional<qint64> changed = ChangeTimeOf(plan.Names().Output(i));
        if (changed && *changed >= earlier->beganAt) {
            unjournaled.append(i);
        }
    }
}

void RunPreparation::ReadRecord(const QString& folder, const Cancelled& isCancelled)
{
    const ResultRecord record = BatchJob::ReadRecord(folder, recordProblem);
    update.emplace(folder, record, earlier->update->comparesContents);
    ownResults = update->FindStanding(isCancelled);
}

void RunPreparation::FindUnchanged(const Cancelled& isCancelled)
{
    if (!update) {
        return;
    }
    std::vector<const RecordedResult*> kept(std::size_t(plan.Count()), nullptr);
    InShares(plan.Count(), [&](int begin, int end) {
        for (int i = begin; i < end && !isCancelled(); ++i) {
            kept[std::size_t(i)] = UnchangedResult(i);
        }
    });
    for (int i = 0; i < plan.Count(); ++i) {
        if (const RecordedResult* const recorded = kept[std::size_t(i)]) {
            unchanged.append(
                {i,
                 {ResultKind::Unchanged, plan.Names().Output(i), 0, {}, recorded->warnings, recorded->facts, {}, {}}});
        }
    }
}

/// What the record says of the result `index`; nothing if it is to be made. Safe on several threads.
const RecordedResult* RunPreparation::UnchangedResult(int index) const
{
    const bool isKnown =
        earlier->results.contains(index) || std::binary_search(unjournaled.begin(), unjournaled.end(), index);
    if (isKnown || plan.TroubleOf(index).kind != PolicyKind::None) {
        return nullptr;
    }
    const OutputPlan& names = plan.Names();
    return update->Unchanged(names.Output(index), names.Input(index),
                             recipes.at(names.JobOf(index)).For(names.Format(index)->name, names.NumberOf(index)));
}

} // namespace BatchSupervisor
