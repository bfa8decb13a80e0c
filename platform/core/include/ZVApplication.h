#pragma once

#include "ZVCoreGlobal.h"

/// Values of the running application that its libraries share.
class VELKORA_CORE_EXPORT ZVApplication
{
public:
    ZVApplication() = delete;

    /// The background pattern that is offered first: an index into the built-in patterns, 0 until one was set.
    /// Safe on any thread.
    static int GetTexturePatternIndex();

    /// Makes `index` the background pattern that is offered first. Safe on any thread.
    static void SetTexturePatternIndex(int index);
};
