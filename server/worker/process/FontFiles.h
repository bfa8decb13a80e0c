// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

namespace BatchWorker {

/// The files and folders that fontconfig of this user reads: its fonts, their caches and its settings. Loads them,
/// which takes some milliseconds.
QVector<QByteArray> FontFiles();

} // namespace BatchWorker
