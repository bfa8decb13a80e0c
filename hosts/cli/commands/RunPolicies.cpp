#include "RunPolicies.h"

#include "hosts/cli/options/PolicyOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JournaledJob.h"
#include "hosts/common/ManagerPolicies.h"
#include "hosts/common/RequestError.h"

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
                QStringLiteral(
                    "%1/BatchExceptionPolicy.ini holds the value %2, which is invalid; use %3 to override it")
                    .arg(settingsFolder, word, PolicyOption(kind))};
        }
    }
}

void ReplaceQuestions(PolicyValues& policies, bool isQuiet)
{
    QStringList options;
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        int& value = policies[std::size_t(i)];
        if (value == AskingPolicy(kind)) {
            value = safePolicy;
            options.append(PolicyOption(kind));
        }
    }
    if (!options.isEmpty() && !isQuiet) {
        WriteErrorLine(QStringLiteral("velkora-batch: without a terminal, \"ask\" becomes \"skip\" for %1.")
                           .arg(options.join(QStringLiteral(", "))));
    }
}

} // namespace

void CheckPolicyOptions(const ParsedArguments& arguments)
{
    PolicyValues values{};
    ApplyPolicies(arguments, values);
}

PolicyValues PoliciesOfRun(const ParsedArguments& arguments, const JournaledJob& job, const QString& settingsFolder)
{
    PolicyValues policies = job.Policies() ? *job.Policies() : PoliciesOfManager();
    ApplyPolicies(arguments, policies);
    CheckSettings(policies, settingsFolder);
    if (!Terminal::IsInputTerminal() || !Terminal::IsErrorTerminal()) {
        ReplaceQuestions(policies, arguments.Has(QStringLiteral("--quiet")));
    }
    return policies;
}

} // namespace BatchCli
