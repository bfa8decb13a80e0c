// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchHost {

/// "0:07", "12:30" or "1:02:03": whole seconds, rounded up. `seconds` must not be negative.
QString DurationText(double seconds);

} // namespace BatchHost
