// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/PolicyValues.h"

/// The policies of the batch manager as plain values. Needs an instance of the manager.
namespace BatchHost {

/// Until they are set: those that the manager has read from its settings folder.
BatchJob::PolicyValues PoliciesOfManager();

void SetPoliciesOfManager(const BatchJob::PolicyValues& values);

} // namespace BatchHost
