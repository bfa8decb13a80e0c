// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"

namespace BatchCli {

/// Which of `count` parts to make, from 1: what --part says, else what the environment of a cluster says. Throws
/// RequestError.
int PartNumber(const ParsedArguments& arguments, int count);

} // namespace BatchCli
