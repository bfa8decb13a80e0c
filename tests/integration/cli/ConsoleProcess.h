#pragma once

#include <QString>
#include <QStringList>

/// A process with a console of Windows of its own, which has no window, and the test as the user before it: it reads
/// the console's screen and types. One at a time.
class ConsoleProcess
{
public:
    /// Starts `program` in `folder`. The test joins its console.
    ConsoleProcess(const QString& program, const QStringList& arguments, const QString& folder);

    /// Ends what still runs, and leaves the console.
    ~ConsoleProcess();

    /// Everything on the screen, rows one after the other without line ends. Where a console does not interpret the
    /// sequences of terminals they stand in it.
    QString Screen() const;

    /// The rows of the screen that are not empty, without such sequences.
    QStringList Rows() const;

    /// Waits until the screen shows `text` so many times; false when it has not within a minute.
    bool WaitFor(const QString& text, int count = 1) const;

    /// Whether `text` stands in the colour of this number, as terminals count (32 is green): by its attributes, or by
    /// the sequence before it.
    bool HasColour(const QString& text, int colour) const;

    /// Whether the process has asked the console to interpret the sequences of terminals.
    bool InterpretsSequences() const;

    void Type(const QString& line);
    static void PressCtrlC();

    /// Waits for the end of the process; -1 when it did not end by itself in a minute.
    int ExitCode() const;

private:
    Q_DISABLE_COPY(ConsoleProcess)

    void* process = nullptr;
    void* output = nullptr;
    void* input = nullptr;
};
