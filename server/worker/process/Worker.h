#pragma once

#include "JobSettings.h"
#include "ReportQueue.h"

#include "server/protocol/WorkerMessages.h"

#include <optional>

namespace BatchWorker {

/// Takes a supervisor's messages, one after the other, and has a report sent for each task.
class Worker
{
public:
    /// Reports go through `reports`, which outlives this object.
    explicit Worker(ReportQueue& reports);

    /// Reads messages from the open file `input` until its end. False when what came was no message.
    bool Run(int input);

private:
    void Handle(const BatchProtocol::ToWorker& message);
    void Take(const BatchProtocol::Job& job);
    void Probe(const BatchProtocol::ProbeTask& task);
    void Make(const BatchProtocol::PictureTask& task);

    ReportQueue& reports;
    std::optional<JobSettings> settings;
    BatchProtocol::Report jobProblem; ///< what is wrong with the job, as long as there are no settings
};

} // namespace BatchWorker
