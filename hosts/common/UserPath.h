// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchHost {

/// The absolute, clean form of a path that a user gave, resolved against the current folder.
QString AbsolutePath(const QString& path);

/// The folder with the user's policies and presets, which all hosts share.
QString UserSettingsFolder();

/// The folder for what hosts remember of themselves, such as a job that is not saved.
QString UserDataFolder();

} // namespace BatchHost
