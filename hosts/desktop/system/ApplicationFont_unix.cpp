// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ApplicationFont.h"

namespace BatchDesktop {

// The desktop's platform theme has told Qt.
void UseFontOfSystem() {}

} // namespace BatchDesktop
