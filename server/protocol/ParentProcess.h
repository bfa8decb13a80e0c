// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <qt_windows.h>

namespace BatchProtocol {

/// The process that started the process `id`, opened so that its end can be waited for; null when it has ended.
HANDLE OpenParentOf(DWORD id);

} // namespace BatchProtocol
