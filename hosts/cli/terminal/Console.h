// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Standard output and standard error, as UTF-8, and properties of the terminal. Writes are not buffered.
namespace BatchCli {

/// Writes to standard output: the results of a command. After a failure nothing more is written.
void WriteOut(const QString& text);

/// Why WriteOut() has failed; empty when it has not.
QString OutputError();

/// Writes to standard error: problems, progress, questions. Failures are ignored.
void WriteError(const QString& text);

/// Writes one line to standard error, see BatchJob::VisibleText().
void WriteErrorLine(const QString& text);

/// Writes JSON to standard output, see BatchJob::VisibleJson().
void WriteJson(const QByteArray& json);

/// What depends on the terminal.
namespace Terminal {

bool IsInputTerminal();
bool IsErrorTerminal();

/// The columns of the terminal at standard error; 80 when unknown.
int Columns();

/// The columns of the terminal at standard output; 80 when it is none.
int OutputColumns();

/// How many columns `text` takes: none for combining characters, two for wide ones.
int WidthOf(const QString& text);

/// `text` in at most `columns` columns, with "..." in its middle when it is longer. Control characters become "?".
QString Shortened(const QString& text, int columns);

} // namespace Terminal

} // namespace BatchCli
