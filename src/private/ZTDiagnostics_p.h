#pragma once

#include <QString>

/// What one source file says to the developer: debug lines and failed assertions.
///
/// A source file that has something to say holds one constant of this class, made with its path in the form that
/// stands in every log: from the root of the sources, with backslashes on every platform and without extension.
/// A line number given by hand is one that tools which read our logs rely on; it stays when the code moves.
class ZTDiagnostics
{
public:
    constexpr explicit ZTDiagnostics(const char* source)
        : source(source)
    {
    }

    /// Writes "[source:line] text" as a debug line.
    void Log(const QString& text, int line = __builtin_LINE()) const;

    /// Ends the process when `condition` is false, after the line "[source:line] Assert failed". A broken invariant is
    /// not an error that anybody could handle.
    void Assert(bool condition, int line = __builtin_LINE()) const
    {
        if (!condition) {
            Fail(line);
        }
    }

    /// Writes "[source:line] Assert failed" and goes on, for the places that must not end the process.
    void LogFailedAssert(int line = __builtin_LINE()) const;

private:
    [[noreturn]] void Fail(int line) const;

    const char* source;
};
