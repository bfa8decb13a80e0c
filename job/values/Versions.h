// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

namespace BatchJob {

/// What makes pictures, by its name, with its version: the program, and the libraries that have a say in the pixels.
using Versions = QMap<QString, QString>;

/// What `versions` has otherwise than `others`, for users: "libjxl 0.7.0, libraw (none)".
QString DifferenceBetween(const Versions& versions, const Versions& others);

} // namespace BatchJob
