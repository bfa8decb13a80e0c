// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourScheme.h"

namespace BatchDesktop {

void ColourScheme::Set(Preference wanted)
{
    if (preference != wanted) {
        preference = wanted;
        Q_EMIT Changed(preference);
    }
}

} // namespace BatchDesktop
