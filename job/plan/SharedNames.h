// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunPlan.h"

#include "job/settings/JobCheck.h"

#include <QString>
#include <QStringList>

namespace BatchJob {

/// Refuses a job whose plan has shared names, with how many there are and the first few; no error if there is none.
Refusal RefusalOfSharedNames(const RunPlan& plan);

/// The message of such a refusal in lines: how many there are, then each example.
QStringList LinesOfSharedNames(const QString& message);

} // namespace BatchJob
