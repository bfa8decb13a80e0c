// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"
#include "JobOptions.h"

namespace BatchCli {

/// --quality: the quality of the job's format, in place of --format-option quality=N.
JobOption QualityOption();

/// Throws RequestError when the arguments give two qualities.
void CheckQuality(const ParsedArguments& arguments);

} // namespace BatchCli
