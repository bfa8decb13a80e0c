// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZVCoreGlobal.h"

/// Values of the running application that its libraries share.
class VELKORA_CORE_EXPORT ZVApplication
{
public:
    ZVApplication() = delete;

    /// The default background pattern: an index into the built-in patterns, 0 until one is set. Thread-safe.
    static int GetTexturePatternIndex();

    /// Makes `index` the default background pattern. Thread-safe.
    static void SetTexturePatternIndex(int index);
};
