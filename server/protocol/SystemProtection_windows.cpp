// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SystemProtection.h"

namespace BatchProtocol {

SystemProtection SystemProtection::OfThisSystem()
{
    return {};
}

} // namespace BatchProtocol
