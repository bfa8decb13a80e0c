// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/// Command lines for help texts and the manual page.
namespace BatchCli {

struct Example
{
    QString text; ///< what it does
    QString line; ///< the whole command
};

/// The examples of the command with this name; of all commands when it is empty.
QVector<Example> ExamplesOf(const QString& command = QString());

} // namespace BatchCli
