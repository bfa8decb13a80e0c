#pragma once

#include <QString>

/// Standard output and standard error, as UTF-8, and what the terminal can do. Each write goes out at once and whole.
namespace BatchCli {

/// Results: what was asked for. Once it has failed, nothing more is written.
void WriteOut(const QString& text);

/// Why WriteOut() has failed; empty when it has not.
QString OutputError();

/// Everything else: problems, progress, questions. Nobody is told when it fails.
void WriteError(const QString& text);

/// WriteError() of one line, whatever names are in it.
void WriteErrorLine(const QString& text);

/// `text` with control characters as \xNN: a name with a line break stays in its line, and none commands the terminal.
QString Visible(const QString& text);

/// What only the platform knows about a terminal.
namespace Terminal {

bool IsInputTerminal();
bool IsErrorTerminal();

/// The columns of the terminal at standard error; 80 when nobody knows.
int Columns();

/// How many columns `text` takes: none for combining characters, two for wide ones.
int WidthOf(const QString& text);

/// `text` in at most `columns` columns, with "..." in its middle when it is longer. Control characters become "?".
QString Shortened(const QString& text, int columns);

} // namespace Terminal

} // namespace BatchCli
