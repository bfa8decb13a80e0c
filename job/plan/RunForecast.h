// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunPlan.h"

#include <QHash>
#include <QVector>

#include <optional>

namespace BatchJob {

/// What a run would do with each file of a job, as far as that can be told before a picture is read. It takes the steps
/// that a run takes, on the same plan and in the same order.
class RunForecast
{
public:
    struct Prospect
    {
        Trouble trouble;                  ///< the trouble that decides; none when the file is written as planned
        std::optional<Decision> decision; ///< what is done about it: Skip, Stop, Ask, Overwrite or Rename
        bool isInPlace = false;           ///< without trouble: the result replaces its own original
    };

    /// `names` has read the inputs and got the probes' results, but has no names yet. `unreadable` are files whose
    /// trouble is known, but that a run notices only when it processes them, so it does not change any name.
    RunForecast(RunPlan names, const Policies& policies, const QHash<int, Trouble>& unreadable = {});

    const RunPlan& Plan() const { return plan; }
    const OutputPlan& Names() const { return plan.Names(); }
    const Prospect& Of(int file) const { return prospects[file]; }

private:
    Prospect Foresee(int file);
    Trouble TroubleOfFiles(int file);

    RunPlan plan;
    const Policies policies;
    const QHash<int, Trouble> unreadable;
    QVector<Prospect> prospects;
    QHash<QString, QString> folderProblems;
};

} // namespace BatchJob
