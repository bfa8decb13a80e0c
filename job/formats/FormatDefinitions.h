// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormatSchema.h"

/// The records that the catalogue is made of, one function and one file for each format.
namespace BatchJob {

#define BATCHJOB_DECLARE_FORMAT(id) FormatSchema id##Format();
BATCHJOB_FORMATS(BATCHJOB_DECLARE_FORMAT)
#undef BATCHJOB_DECLARE_FORMAT

} // namespace BatchJob
