// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandInfo.h"

namespace BatchCli {

/// The columns of texts that do not go to a terminal.
constexpr int defaultColumns = 80;

/// One line about the program, as a phrase.
QString ProgramDescription();

/// What is printed without arguments: the commands, and where more is said.
QString ShortHelp(int columns);

/// The texts that --help prints for the program and for a command, in lines of about `columns` columns.
QString ProgramHelp(int columns);
QString CommandHelp(const CommandInfo& command, int columns);

/// All that help texts say about an option, in the user's language, without a full stop at the end.
QString FullHelp(const OptionInfo& option);

} // namespace BatchCli
