// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Writes the debug lines and checks the assertions of one source file.
///
/// Each source file that needs it has one constant of this class. `source` is the file's path as logs show it: relative
/// to the root of the sources, with backslashes on every platform and without extension. Explicit line numbers are
/// fixed, because tools that read the logs rely on them; they do not change when the code moves.
class ZTDiagnostics
{
public:
    constexpr explicit ZTDiagnostics(const char* source)
        : source(source)
    {
    }

    /// Writes "[source:line] text" as a debug line.
    void Log(const QString& text, int line = __builtin_LINE()) const;

    /// If `condition` is false, writes "[source:line] Assert failed" and ends the process. Nobody can handle a broken
    /// invariant.
    void Assert(bool condition, int line = __builtin_LINE()) const
    {
        if (!condition) {
            Fail(line);
        }
    }

    /// Writes "[source:line] Assert failed" and returns, for places that must not end the process.
    void LogFailedAssert(int line = __builtin_LINE()) const;

private:
    [[noreturn]] void Fail(int line) const;

    const char* source;
};
