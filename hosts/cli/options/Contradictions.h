// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"

namespace BatchCli {

/// Throws RequestError if two options of one command line exclude each other. An option that contradicts a saved job
/// does not: it replaces what the job says.
void CheckContradictions(const ParsedArguments& arguments);

/// Throws RequestError when an option such as --quality and a --format-option give two values.
void CheckFormatShorthands(const ParsedArguments& arguments);

} // namespace BatchCli
