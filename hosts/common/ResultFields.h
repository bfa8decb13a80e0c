// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunResults.h"

#include <QJsonObject>
#include <QStringList>

namespace BatchHost {

/// The names of the fields that say more about a result than what became of it, in the order of reports.
const QStringList& FactFieldNames();

/// These fields of `result`, as events and reports have them. What is not known is left out.
QJsonObject FactFieldsOf(const FileResult& result);

} // namespace BatchHost
