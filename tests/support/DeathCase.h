// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// One way to make the library end its process. The cases are part of the helper executable "deaths", which runs the
/// one that its argument names. A test starts it with RunDeathCase() and checks the report.
class DeathCase
{
public:
    using Function = void (*)();

    /// Registers `function` under `name`. Defined as a constant at file scope in the helper.
    DeathCase(const char* name, Function function);
};

/// Runs the case that the first argument names. The whole of a helper's main().
int RunDeathCases(int argc, char** argv);

/// Whether `line` is the message of a failed assertion of `source`: "[source:line] Assert failed" with any line number.
bool IsFailedAssert(const QString& line, const QString& source);

/// How a case ended.
struct DeathReport
{
    /// Whether a failed assertion of `source`, at any line, has ended the process.
    bool EndedByAssertOf(const QString& source) const { return aborted && IsFailedAssert(lastLine, source); }

    bool aborted = false; ///< std::terminate has ended the process, and nothing else
    QString lastLine;     ///< the last line that it wrote
    QString output;       ///< everything that it wrote, for the message of a failed test
};

/// Runs the case `name` of the helper executable in a process of its own and waits for its end, at most 30 seconds.
DeathReport RunDeathCase(const QString& name);
