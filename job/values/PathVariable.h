// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

/// Paths in the environment.
namespace BatchJob {

/// Sets the variable `name` to `path`, for this process and those that it starts from now on.
void SetPathVariable(const char* name, const QString& path);

/// The variables by which programs and libraries find the folder for temporary files, first the one that counts most.
const std::vector<const char*>& TemporaryFolderVariables();

} // namespace BatchJob
