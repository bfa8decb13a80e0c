// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Confinement.h"
#include "ReportQueue.h"

#include "job/settings/JobCheck.h"
#include "server/protocol/WorkerMessages.h"
#include "server/worker/decode/KeptPixels.h"
#include "server/worker/pipeline/PictureMaker.h"

#include <optional>

namespace BatchWorker {

/// Handles a supervisor's messages, one after the other, and sends a report for each task.
class Worker
{
public:
    /// Reports go through `reports`. The first job says what `confinement` leaves to this process. Both outlive this
    /// object.
    Worker(ReportQueue& reports, Confinement& confinement);

    /// Reads messages from the open file `input` until its end. False, with the reason on standard error, when the
    /// input is not valid, or the process cannot be confined.
    bool Run(int input);

private:
    bool Handle(const BatchProtocol::ToWorker& message);
    bool Accept(const BatchProtocol::Job& job);
    BatchProtocol::Report Read(const BatchProtocol::Job& job);
    void Probe(const BatchProtocol::ProbeTask& task);
    void Make(const BatchProtocol::PictureTask& task);
    MadePicture MadeFrom(const BatchProtocol::PictureTask& task);

    ReportQueue& reports;
    Confinement& confinement;
    bool isConfined = false;
    KeptPixels kept;
    BatchProtocol::ServerLimits limits;            ///< of the last job
    std::optional<BatchJob::JobSettings> settings; ///< of the last job, if it can be done
    BatchProtocol::Report jobProblem;              ///< what is wrong with the job when there are no settings
};

} // namespace BatchWorker
