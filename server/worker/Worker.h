#pragma once

#include "JobSettings.h"
#include "ReportQueue.h"
#include "WorkerMessages.h"

#include <optional>

namespace BatchServer {

/// Takes a supervisor's messages, one after the other, and has a report sent for each task.
class Worker
{
public:
    /// Reports go through `reports`, which outlives this object.
    explicit Worker(ReportQueue& reports);

    /// Reads messages from the open file `input` until its end. False when what came was no message.
    bool Run(int input);

private:
    void Handle(const ToWorker& message);
    void Take(const Job& job);
    void Probe(const ProbeTask& task);
    void Make(const PictureTask& task);

    ReportQueue& reports;
    std::optional<JobSettings> settings;
    Report jobProblem; ///< what is wrong with the job, as long as there are no settings
};

} // namespace BatchServer
