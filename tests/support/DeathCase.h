#pragma once

#include <QString>

/// One way to make the library end its process. Cases live in the helper executable "deaths", which runs the one that
/// its argument names; a test starts it with RunDeathCase() and looks at what was left behind.
class DeathCase
{
public:
    using Function = void (*)();

    /// Registers `function` under `name`. Made as a constant at file scope in the helper.
    DeathCase(const char* name, Function function);
};

/// Runs the case that the first argument names. The whole of a helper's main().
int RunDeathCases(int argc, char** argv);

/// How a case ended.
struct DeathReport
{
    bool aborted = false; ///< the process was ended by std::terminate, and by nothing else
    QString lastLine;     ///< the last line that it wrote
    QString output;       ///< everything that it wrote, for the message of a failed test
};

/// Runs the case `name` of the helper executable in a process of its own and waits for its end, at most 30 seconds.
DeathReport RunDeathCase(const QString& name);
