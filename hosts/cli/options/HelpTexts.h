#pragma once

#include "OptionInfo.h"

namespace BatchCli {

/// The columns of texts that do not go to a terminal.
constexpr int defaultColumns = 80;

/// One line about the program.
QString ProgramDescription();

/// What is printed without arguments: the commands, and where more is said.
QString ShortHelp(int columns);

/// The texts that --help prints for the program and for a command, in lines of about `columns` columns.
QString ProgramHelp(int columns);
QString CommandHelp(const CommandInfo& command, int columns);

/// All that help texts say about an option, without a full stop at the end.
QString FullHelp(const OptionInfo& option);

/// `text` in lines of at most `columns` columns. All but the first are indented by `indent` blanks.
QString Wrapped(const QString& text, int indent, int columns);

} // namespace BatchCli
