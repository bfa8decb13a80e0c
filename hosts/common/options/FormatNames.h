// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// Formats as users name them.
namespace BatchHost {

/// All formats that a job may have, the original one first.
QStringList FormatNames();

/// The format that `text` names, by its name or by an extension of its files, in any letter case. Throws RequestError.
QString FormatName(const QString& text);

/// The formats that results are written in and that have the format option `option`.
QStringList FormatsWithOption(const QString& option);

} // namespace BatchHost
