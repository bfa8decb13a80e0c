// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What the first bytes of a file tell.
namespace BatchJob {

/// The name of the format of the file at `path`, see FormatOfFile(); empty when it cannot be read, or the server reads
/// no such files.
QString FormatOfFileAt(const QString& path);

/// Whether the file at `path` has a format that takes long to decode, see FormatSchema.
bool IsSlowToDecode(const QString& path);

} // namespace BatchJob
