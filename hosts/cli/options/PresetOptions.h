// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandInfo.h"

namespace BatchCli {

/// "--preset", which every command takes that works with a job.
OptionInfo PresetOptionInfo();

/// The same for commands that take several presets at a time.
OptionInfo PresetsOptionInfo();

/// "--settings", for commands that need presets or policies.
OptionInfo SettingsOptionInfo();

/// The command that lists, saves and removes presets. `ofJobs` are the options that say what a job does.
CommandInfo PresetsCommandInfo(const QVector<OptionInfo>& ofJobs, const QVector<OptionInfo>& general);

/// "--from", the saved job to start from.
OptionInfo FromOptionInfo();

/// "--force".
OptionInfo ForceOptionInfo();

} // namespace BatchCli
