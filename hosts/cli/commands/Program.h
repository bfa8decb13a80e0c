#pragma once

#include "hosts/cli/terminal/ExitCode.h"

#include <QStringList>

namespace BatchCli {

/// Does what `arguments`, those behind the program's name, ask for. Needs a QCoreApplication.
ExitCode RunProgram(const QStringList& arguments);

/// Tells the user what was wrong with the arguments.
ExitCode ReportUsageError(const QString& text);

} // namespace BatchCli
