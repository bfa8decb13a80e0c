// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandInfo.h"

/// What users of other programs type, and how it is said here.
namespace BatchCli {

/// What to do in place of the unknown option `name` of `command`, such as "use --size 800 --side width" for "--width"
/// with the value "800"; empty when nothing is known. `value` may be empty.
QString AdviceForOption(const QString& name, const QString& value, const CommandInfo& command);

/// The command that does what the unknown command `name` may mean; empty when nothing is known.
QString AdviceForCommand(const QString& name);

} // namespace BatchCli
