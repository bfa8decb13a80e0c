// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OptionInfo.h"

#include "job/values/PolicyValues.h"

#include <QVector>

/// The five exception policies as options.
namespace BatchHost {

/// The name of the option for `kind`, such as "--on-input-error".
QString PolicyOption(BatchJob::PolicyKind kind);

/// The kinds that have an option, in the order of help texts.
const QVector<BatchJob::PolicyKind>& PolicyOptionKinds();

QVector<OptionInfo> PolicyOptionInfos();

/// The value of `word` for the policy `kind`. Throws RequestError.
int PolicyValue(BatchJob::PolicyKind kind, const QString& word);

} // namespace BatchHost
