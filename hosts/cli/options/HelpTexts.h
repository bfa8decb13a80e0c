#pragma once

#include "OptionInfo.h"

namespace BatchCli {

/// One line about the program.
QString ProgramDescription();

/// The texts that --help prints for the program and for a command.
QString ProgramHelp();
QString CommandHelp(const CommandInfo& command);

/// `text` in lines of at most `columns` columns. All but the first are indented by `indent` blanks.
QString Wrapped(const QString& text, int indent, int columns);

} // namespace BatchCli
