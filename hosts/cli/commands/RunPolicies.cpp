// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunPolicies.h"

#include "hosts/cli/options/PolicyArguments.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JournaledJob.h"
#include "hosts/common/ManagerPolicies.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/options/PolicyOptions.h"
#include "job/values/Phrase.h"
#include "server/protocol/ServerLimits.h"

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

/// Only the settings can hold an invalid value.
void CheckSettings(const PolicyValues& policies, const QString& settingsFolder)
{
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        const QString word = PolicyWord(kind, policies[std::size_t(i)]);
        if (!PolicyWords(kind).contains(word)) {
            throw RequestError{
                Phrase::English(
                    "%1/BatchExceptionPolicy.ini holds the value %2, which is invalid; use %3 to override it")
                    .arg(settingsFolder, word, PolicyOption(kind))};
        }
    }
}

void ReplaceQuestions(RunPolicies& policies)
{
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        int& value = policies.values[std::size_t(i)];
        if (value == AskingPolicy(kind)) {
            value = safePolicy;
            policies.unasked.append(kind);
        }
    }
}

} // namespace

void CheckPolicyOptions(const ParsedArguments& arguments)
{
    PolicyValues values{};
    ApplyPolicies(arguments, values);
}

RunPolicies PoliciesOfRun(const ParsedArguments& arguments, const JournaledJob& job, const QString& settingsFolder)
{
    RunPolicies policies{job.Policies() ? *job.Policies() : PoliciesOfManager(), {}};
    ApplyPolicies(arguments, policies.values);
    CheckSettings(policies.values, settingsFolder);
    if (!Terminal::IsInputTerminal() || !Terminal::IsErrorTerminal()) {
        ReplaceQuestions(policies);
    }
    if (policies.unasked.contains(PolicyKind::Naming)) {
        BatchProtocol::sharedNamesLimit.Set(1);
    }
    return policies;
}

} // namespace BatchCli
