// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/// The program exiftool, which sees metadata with other eyes than this project's.
namespace ExifTool {

bool IsThere();

/// Runs it on the file `path`. Returns its standard output; nothing when it fails.
std::optional<QByteArray> Run(const QStringList& arguments, const QString& path);

} // namespace ExifTool
