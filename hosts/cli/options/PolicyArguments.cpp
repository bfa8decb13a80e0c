// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PolicyArguments.h"

#include "hosts/common/RequestError.h"
#include "hosts/common/options/PolicyOptions.h"

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

void ApplyPolicies(const ParsedArguments& arguments, PolicyValues& values)
{
    for (const PolicyKind kind : PolicyOptionKinds()) {
        const QString option = PolicyOption(kind);
        if (!arguments.Has(option)) {
            continue;
        }
        try {
            values[std::size_t(kind)] = PolicyValue(kind, arguments.Value(option));
        } catch (const RequestError& error) {
            throw error.In(option);
        }
    }
}

bool AreLeftOut(const ParsedArguments& arguments, PolicyKind kind)
{
    const QString option = PolicyOption(kind);
    return arguments.Has(option) && PolicyValue(kind, arguments.Value(option)) == safePolicy;
}

} // namespace BatchCli
