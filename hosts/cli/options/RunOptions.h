#pragma once

#include "CommandLine.h"

namespace BatchCli {

/// The options of "run" beside those of jobs and policies.
QVector<OptionInfo> RunOptionInfos();

/// Sets the limits of the server, which it reads from its environment, as `arguments` say. Throws RequestError.
void ApplyServerLimits(const ParsedArguments& arguments);

/// The folder with the policies: --settings, else the user's.
QString SettingsFolder(const ParsedArguments& arguments);

} // namespace BatchCli
