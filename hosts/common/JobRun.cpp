// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobRun.h"

#include "PipeUse.h"
#include "RunInputs.h"

#include "job/journal/RunJournal.h"
#include "job/values/PathVariable.h"
#include "server/protocol/ServerLimits.h"

#include "ZTBatchDocument.h"
#include "ZTBatchManager.h"

namespace BatchHost {

namespace {

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
