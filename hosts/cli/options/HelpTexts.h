#pragma once

#include "OptionInfo.h"

namespace BatchCli {

/// One line about the program.
QString ProgramDescription();

/// What --help prints, of the program and of a command.
QString ProgramHelp();
QString CommandHelp(const CommandInfo& command);

/// `text` in lines of at most `columns` columns, each behind `indent` blanks but the first.
QString Wrapped(const QString& text, int indent, int columns);

} // namespace BatchCli
