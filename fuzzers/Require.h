// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>

/// Ends the process when `condition` is false: the fuzzer keeps the input that has led there.
inline void Require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}
