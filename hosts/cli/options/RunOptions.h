// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"

#include "job/journal/RunJournal.h"

#include <optional>

namespace BatchCli {

/// The options of "run" other than those of jobs and policies.
QVector<OptionInfo> RunOptionInfos();

/// Those of them that "plan" has, too.
QVector<OptionInfo> PlanOptionInfos();

/// The options of "watch" other than those of jobs and policies.
QVector<OptionInfo> WatchOptionInfos();

/// Puts the limits in `arguments` into the environment, which the server inherits. Throws RequestError.
void ApplyServerLimits(const ParsedArguments& arguments);

/// What `arguments` say about an update; nothing if all results are to be made. Throws RequestError.
std::optional<BatchJob::Update> UpdateOf(const ParsedArguments& arguments);

/// The folder with the policies and the presets: --settings, else the user's.
QString SettingsFolder(const ParsedArguments& arguments);

} // namespace BatchCli
