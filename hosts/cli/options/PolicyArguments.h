// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"

#include "job/values/PolicyValues.h"

/// The five exception policies on the command line.
namespace BatchCli {

/// Sets the values for which `arguments` have an option. Throws RequestError.
void ApplyPolicies(const ParsedArguments& arguments, BatchJob::PolicyValues& values);

/// Whether an option of `arguments` says that files for which the policy `kind` decides are left out.
bool AreLeftOut(const ParsedArguments& arguments, BatchJob::PolicyKind kind);

} // namespace BatchCli
