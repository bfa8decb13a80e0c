// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ValueChecks.h"

#include "ZTBatchOutputSettings.h"

/// The checks of a job's output settings, one subject each. Values that the settings do not use are not checked.
namespace BatchJob {

void CheckOutputFolder(ValueChecks& checks, const ZTBatchOutputSettings& settings);
void CheckNaming(ValueChecks& checks, const ZTBatchOutputSettings& settings);
void CheckImageSize(ValueChecks& checks, const ZTBatchOutputSettings::ImageSize& size);
void CheckCrop(ValueChecks& checks, const ZTBatchOutputSettings::Crop& crop);
void CheckFraming(ValueChecks& checks, const ZTBatchOutputSettings::Transformation& framing);

} // namespace BatchJob
