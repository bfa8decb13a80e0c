// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "job/values/PolicyValues.h"

#include <QVector>

namespace BatchHost {
class JournaledJob;
}

namespace BatchCli {

/// Throws RequestError when an option has a word that is no policy.
void CheckPolicyOptions(const ParsedArguments& arguments);

struct RunPolicies
{
    BatchJob::PolicyValues values{};
    QVector<BatchJob::PolicyKind> unasked; ///< skip instead of asking, as there is no terminal
};

/// The policies of a run: those of the options, else of the interrupted run, else of the settings folder. Without a
/// terminal asking becomes skipping, and the server is told to refuse names that several results would have. Needs an
/// instance of the manager. Throws RequestError for settings that hold an invalid value.
RunPolicies PoliciesOfRun(const ParsedArguments& arguments, const BatchHost::JournaledJob& job,
                          const QString& settingsFolder);

} // namespace BatchCli
