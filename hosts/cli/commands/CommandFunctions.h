// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/terminal/ExitCode.h"

/// The commands that work with jobs. They throw RequestError for arguments or jobs that cannot be used.
namespace BatchCli {

ExitCode CreateJob(const ParsedArguments& arguments);
ExitCode ShowJob(const ParsedArguments& arguments);
ExitCode PlanJob(const ParsedArguments& arguments);
ExitCode RunJob(const ParsedArguments& arguments);
ExitCode SplitJob(const ParsedArguments& arguments);
ExitCode CollectParts(const ParsedArguments& arguments);
ExitCode WatchFolder(const ParsedArguments& arguments);
ExitCode KeepPresets(const ParsedArguments& arguments);

/// "run" with --plan: one part of a job that was split.
ExitCode RunPart(const ParsedArguments& arguments);

/// "run" with --dry-run: what PlanJob() prints for the same arguments.
ExitCode DryRun(const ParsedArguments& arguments);

} // namespace BatchCli
