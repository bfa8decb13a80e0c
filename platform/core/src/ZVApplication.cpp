// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZVApplication.h"

#include <atomic>

namespace {
std::atomic<int> texturePatternIndex{0};
}

int ZVApplication::GetTexturePatternIndex()
{
    return texturePatternIndex;
}

void ZVApplication::SetTexturePatternIndex(int index)
{
    texturePatternIndex = index;
}
