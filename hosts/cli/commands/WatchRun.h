// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/terminal/ExitCode.h"
#include "hosts/cli/terminal/InterruptWatcher.h"
#include "hosts/common/JournaledJob.h"
#include "hosts/common/WatchState.h"
#include "hosts/common/WatchedFolder.h"

#include <optional>

namespace BatchCli {

/// The runs of a folder that is watched, one after the other, each with the pictures that have come since the last.
class WatchRun
{
public:
    /// `settings` is the text of a job without inputs. Everything must outlive this object.
    WatchRun(const ParsedArguments& arguments, const QString& settings, BatchHost::WatchState& state,
             InterruptWatcher& interrupts)
        : arguments(arguments)
        , settings(settings)
        , state(state)
        , interrupts(interrupts)
    {
    }

    /// Finishes what an earlier process has left. Nothing if watching goes on, else how it ends.
    std::optional<ExitCode> Resume();

    /// Makes the pictures `files` of `folder`, of which some may have gone; `gone` then holds their paths.
    std::optional<ExitCode> Make(const BatchHost::WatchedFolder& folder, const QVector<BatchHost::SeenFile>& files,
                                 QStringList& gone);

    /// One line about all runs.
    QString Totals() const;

private:
    std::optional<ExitCode> Run(ZTBatchDocument& job, BatchHost::JournaledJob& journaled);
    BatchJob::PolicyValues Policies(const BatchHost::JournaledJob& journaled) const;
    std::optional<ExitCode> EndOf(const BatchHost::RunEnd& end, const BatchJob::PolicyValues& policies,
                                  BatchHost::JournaledJob& journaled);

    const ParsedArguments& arguments;
    const QString& settings;
    BatchHost::WatchState& state;
    InterruptWatcher& interrupts;
    bool isResumed = false;
    int written = 0;
    int skipped = 0;
    int failed = 0;
};

} // namespace BatchCli
