// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// How texts fill the lines of a terminal.
namespace BatchCli {

/// The columns that `character` takes: 0, 1 or 2.
int ColumnsOf(uint character);

/// `text` in lines of at most `columns` columns. All but the first are indented by `indent` blanks. Lines end at
/// blanks, and in scripts that are written without them between characters.
QString Wrapped(const QString& text, int indent, int columns);

} // namespace BatchCli
