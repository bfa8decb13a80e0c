// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The manual page and the shell completions, generated from the tables of commands.
namespace BatchCli {

/// The manual page, in roff. In `frame`, "@COMMANDS@", "@EXAMPLES@" and "@VERSION@" are replaced.
QString ManualPage(const QString& frame);

QString BashCompletion();
QString ZshCompletion();
QString FishCompletion();

} // namespace BatchCli
