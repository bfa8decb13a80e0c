// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

class ZVApplication
{
public:
    static int GetTexturePatternIndex() { return 3; }
};
