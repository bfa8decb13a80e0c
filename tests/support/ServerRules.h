// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// Writes the rules of the scripted server whose executable is `server`, see ServerScript. They are valid for all
/// servers that start from now on. Ends the test if the file cannot be written.
void WriteServerRules(const QString& server, const QStringList& rules);

/// The same for servers that start after one of them has executed the action "next".
void WriteNextServerRules(const QString& server, const QStringList& rules);
