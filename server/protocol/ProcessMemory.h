// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace BatchProtocol {

/// The resident memory of the process `id` in bytes; 0 when it cannot be determined.
qint64 MemoryOfProcess(qint64 id);

} // namespace BatchProtocol
