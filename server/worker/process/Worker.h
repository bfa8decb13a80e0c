#pragma once

#include "ReportQueue.h"

#include "job/settings/JobCheck.h"
#include "server/protocol/WorkerMessages.h"

#include <optional>

namespace BatchWorker {

/// Handles a supervisor's messages, one after the other, and sends a report for each task.
class Worker
{
public:
    /// Reports go through `reports`, which outlives this object.
    explicit Worker(ReportQueue& reports);

    /// Reads messages from the open file `input` until its end. False when the input is not valid.
    bool Run(int input);

private:
    void Handle(const BatchProtocol::ToWorker& message);
    void Accept(const BatchProtocol::Job& job);
    BatchProtocol::Report Read(const BatchProtocol::Job& job);
    void Probe(const BatchProtocol::ProbeTask& task);
    void Make(const BatchProtocol::PictureTask& task);

    ReportQueue& reports;
    BatchProtocol::ServerLimits limits;            ///< of the last job
    std::optional<BatchJob::JobSettings> settings; ///< of the last job, if it can be done
    BatchProtocol::Report jobProblem;              ///< what is wrong with the job when there are no settings
};

} // namespace BatchWorker
