// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// Texts for terminals. Names of files and messages of libraries may hold characters that break a line, change the
/// order in which others are shown, or control the terminal.
namespace BatchJob {

/// Whether `character` is a control character, a separator of lines, or a control of the direction of text.
bool IsControl(uint character);

/// `text` with each such character as \xNN or \uNNNN.
QString VisibleText(const QString& text);

/// The JSON text `json` with each such character in its strings as JSON writes it, \uNNNN. The value stays the same.
QByteArray VisibleJson(const QByteArray& json);

} // namespace BatchJob
