// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <qt_windows.h>

namespace BatchProtocol {

/// The process that started the process `id`, opened so that its end can be waited for; null when it has ended.
HANDLE OpenParentOf(DWORD id);

/// A process of this user's that runs a program with the file name `program`, was started less than `age` ms ago, and
/// has lost its parent, opened so that its end can be waited for, or null.
HANDLE OpenYoungOrphan(const QString& program, int age);

} // namespace BatchProtocol
