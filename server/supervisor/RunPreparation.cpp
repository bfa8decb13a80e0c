#include "RunPreparation.h"

#include "JobReader.h"

#include "server/protocol/TemporaryFile.h"
#include "server/protocol/WorkerFiles.h"

#include "ZTBatchDocument.h"

#include <QFileInfo>

#include <utility>

using namespace BatchJob;

namespace BatchSupervisor {

void RunPreparation::ReadJob(QString document, const QString& journalPath, const Cancelled& isCancelled)
{
    OpenJournal(journalPath, document);
    const JobReader::Job job = JobReader::Read(std::exchange(document, {}), isCancelled);
    refusal = job.refusal;
    if (isCancelled() || refusal.code != ZTBatchMessage::NoError) {
        return;
    }
    ZTBatchDocument withoutInputs;
    withoutInputs.Deserialize(job.settings);
    settings = job.settings;
    const JobSettings checked = CheckSettings(withoutInputs).settings;
    // Where the output folder exists, workers that have probed files can go on to make pictures.
    rightsToProbe = BatchProtocol::RightsToRead(checked, job.files);
    rightsToMake = BatchProtocol::RightsToWrite(rightsToProbe, checked);
    if (QFileInfo(checked.outputFolder).isDir()) {
        rightsToProbe = rightsToMake;
    }
    plan = RunPlan(OutputPlan(job.files, checked));
    EnterEarlierResults();
    plan.ReadInputs(isCancelled);
}

void RunPreparation::OpenJournal(const QString& path, const QString& document)
{
    if (path.isEmpty()) {
        return;
    }
    // The server of a host that was killed may still be cleaning up.
    constexpr int lockTimeout = 15'000; // ms
    journalLock = std::make_unique<QLockFile>(path + QLatin1String(journalHoldEnd));
    journalLock->setStaleLockTime(0); // Only the end of its holder makes a lock stale, not its age.
    if (journalLock->tryLock(lockTimeout)) {
        earlier = ReadJournal(path);
    }
    if (earlier && earlier->document != document) {
        earlier.reset();
    }
}

void RunPreparation::EnterEarlierResults()
{
    using Kind = JournalState::Result::Kind;
    if (!earlier) {
        return;
    }
    for (auto it = earlier->begun.constBegin(); it != earlier->begun.constEnd(); ++it) {
        const std::optional<FileIdentity> identity = IdentityOf(it->output);
        if (it.key() < plan.Count() && identity && identity->Text() != it->before) {
            earlier->results.insert(it.key(), {Kind::Written, it->output, 0, {}});
            unreported.append(it.key());
        }
    }
    for (auto it = earlier->results.constBegin(); it != earlier->results.constEnd(); ++it) {
        if (it.key() >= plan.Count()) {
            continue;
        }
        if (it->kind == Kind::Written) {
            plan.KeepResult(it.key(), it->output);
        } else {
            plan.KeepWithoutResult(it.key(), it->output);
        }
    }
}

void RunPreparation::MakeNames(const Policies& policies, const Cancelled& isCancelled)
{
    if (!plan.MakeNames(policies, isCancelled)) {
        return;
    }
    for (const QString& folder : plan.Folders()) {
        removedFiles += isCancelled() ? 0 : BatchProtocol::TemporaryFile::Sweep(folder);
    }
}

} // namespace BatchSupervisor
