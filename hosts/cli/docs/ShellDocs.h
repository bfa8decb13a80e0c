#pragma once

#include <QString>

/// Texts about the command line for other readers than people at a prompt, made from the tables of commands.
namespace BatchCli {

/// The manual page, in roff. `frame` is its text with "@COMMANDS@" where commands and options go, and "@VERSION@".
QString ManualPage(const QString& frame);

QString BashCompletion();
QString ZshCompletion();
QString FishCompletion();

} // namespace BatchCli
