// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "StandardStreams.h"

#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>

namespace BatchWorker {

namespace {

constexpr int input = 0;
constexpr int output = 1;
constexpr int errors = 2;

} // namespace

int TakeStandardOutput()
{
    const int own = _dup(output);
    // Frames are bytes, not lines of text.
    _setmode(own, _O_BINARY);
    _dup2(errors, output);
    return own;
}

int StandardInput()
{
    _setmode(input, _O_BINARY);
    return input;
}

bool IsInputTyped()
{
    DWORD mode = 0;
    return GetConsoleMode(reinterpret_cast<HANDLE>(_get_osfhandle(input)), &mode) != 0;
}

} // namespace BatchWorker
