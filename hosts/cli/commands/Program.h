// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/terminal/ExitCode.h"
#include "hosts/common/RequestError.h"

#include <QStringList>

namespace BatchCli {

/// Executes the command in `arguments`, which do not include the program's name. Needs a QCoreApplication.
ExitCode RunProgram(const QStringList& arguments);

/// Tells the user about an error in the arguments or the job.
ExitCode Report(const BatchHost::RequestError& error);

} // namespace BatchCli
