// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TokenTable.h"

#include <QDateTime>
#include <QString>

/// The arguments of tokens.
namespace BatchJob {

/// What `argument`, which may be empty but was given, must be instead; empty if it is allowed.
QString ArgumentProblem(TokenArgument kind, const QString& argument);

/// `time` in the form of `pattern`, which has no ArgumentProblem(). An empty one is YYYYMMDD or HHMMSS. An invalid time
/// is empty.
QString TimeInPattern(TokenArgument kind, const QString& pattern, const QDateTime& time);

/// `number` with at least as many digits as `argument` says.
QString NumberWithDigits(qint64 number, const QString& argument);

} // namespace BatchJob
