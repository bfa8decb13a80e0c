// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

namespace BatchJob {

/// A key of a JSON object, without a copy: files of a hundred thousand lines look up a million of them.
constexpr QLatin1String Key(const char* name)
{
    return QLatin1String(name);
}

} // namespace BatchJob
