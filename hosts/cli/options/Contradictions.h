// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"

namespace BatchCli {

/// Throws RequestError if two options of one command line exclude each other. An option that contradicts a saved job
/// does not: it replaces what the job says.
void CheckContradictions(const ParsedArguments& arguments);

/// Throws RequestError when the arguments give two qualities.
void CheckQuality(const ParsedArguments& arguments);

} // namespace BatchCli
