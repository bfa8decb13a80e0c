// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobRun.h"

#include "RunInputs.h"

#include "job/journal/RunJournal.h"
#include "job/values/PathVariable.h"
#include "server/protocol/HostPipe.h"
#include "server/protocol/ServerLimits.h"

#include "ZTBatchDocument.h"
#include "ZTBatchManager.h"

#include <QLocalSocket>

namespace BatchHost {

namespace {

/// On Unix the pipe lies in the run's own temporary folder, but Windows has one pipe of this name for the whole
/// machine: a second server could not open it, and its host would talk to the first one's server.
bool IsPipeInUse()
{
    constexpr int answerTime = 1000;
    QLocalSocket socket;
    socket.connectToServer(BatchProtocol::HostPipe::Name());
    return socket.waitForConnected(answerTime);
}

JobRun::Obstacle FindObstacle(const PrivateTempFolder& temporary)
{
    if (!temporary.Error().isEmpty()) {
        return JobRun::Obstacle::NoTemporaryFolder;
    }
    return IsPipeInUse() ? JobRun::Obstacle::PipeInUse : JobRun::Obstacle::None;
}

} // namespace

JobRun::JobRun(const QString& settingsFolder)
    : obstacle(FindObstacle(temporary))
{
    if (obstacle == Obstacle::None) {
        ZTBatchManager::InitInstance(settingsFolder);
    }
}

JobRun::~JobRun()
{
    if (obstacle == Obstacle::None) {
        ZTBatchManager::ReleaseInstance();
    }
}

std::unique_ptr<RunController> JobRun::Prepare(const ZTBatchDocument& job, JournaledJob& journaled,
                                               const Circumstances& circumstances,
                                               const QVector<RunObserver*>& observers)
{
    if (ZTBatchManager::Instance()->IsStarted()) {
        ZTBatchManager::KillExistingBatchProcess(true); // It has the journal and the limits of an earlier run.
    }
    const bool isInPlace = journaled.IsInPlace() || BatchProtocol::ServerLimits::FromEnvironment().replacesOriginals;
    BatchProtocol::inPlaceLimit.Set(isInPlace ? 1 : 0);
    const QString journalPath = journaled.BeginJournal(circumstances.policies, isInPlace, circumstances.update);
    // The server, which inherits the environment, continues the journal.
    BatchJob::SetPathVariable(BatchJob::journalVariable, journalPath);
    RunInputs inputs = InputsOf(job, journaled.Variants());
    inputs.leftOut = circumstances.leftOut;
    return std::make_unique<RunController>(RunController::Order{journaled.Document(), inputs, journaled.OutputFolder(),
                                                                circumstances.policies, journalPath,
                                                                circumstances.isStrict, circumstances.ofEachResult},
                                           QVector<RunObserver*>{journaled.Observer()} + observers);
}

} // namespace BatchHost
