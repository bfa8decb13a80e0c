#pragma once

class ZVApplication
{
public:
    static int GetTexturePatternIndex() { return 3; }
};
