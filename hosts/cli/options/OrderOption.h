// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"

#include "hosts/common/InputOrder.h"

#include <optional>

namespace BatchCli {

/// The option that sorts the inputs of a job.
extern const QString orderOption;

/// The order that `arguments` ask for, if they do. Throws RequestError for a word that is no order.
std::optional<BatchHost::InputOrder> OrderIn(const ParsedArguments& arguments);

} // namespace BatchCli
