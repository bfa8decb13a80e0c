// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchHost {

/// A number of bytes in three digits at most, such as "312 kB".
QString ByteText(qint64 bytes);

} // namespace BatchHost
