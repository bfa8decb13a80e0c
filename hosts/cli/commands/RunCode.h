// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/terminal/ExitCode.h"
#include "hosts/common/RunResults.h"

namespace BatchCli {

/// The exit code of a run, when `problems` inputs could not be collected.
ExitCode CodeOf(const BatchHost::RunEnd& end, const ParsedArguments& arguments, int problems, bool isReportMissing);

} // namespace BatchCli
